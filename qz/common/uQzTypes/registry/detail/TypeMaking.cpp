#include <algorithm>

#include <qz/common/uQzSysUtils/CharCase.h>
#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/common/uQzTypes/registry/detail/TypeStore.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/lists/Strings.h>

namespace qz::detail {
namespace {

// The types that this thread is making, from the innermost on. An element type of these is not known yet: a
// list class may have itself for its element.
struct TMaking;
constinit thread_local const TMaking* GMaking = nullptr;

struct TMaking {
    explicit TMaking(PTypeInfo AType) noexcept : Type(AType), Outer(GMaking) { GMaking = this; }
    TMaking(const TMaking&) = delete;
    TMaking& operator=(const TMaking&) = delete;
    ~TMaking() { GMaking = Outer; }

    static bool Has(PTypeInfo AType) noexcept {
        const TMaking* Each = GMaking;
        while (Each != nullptr && Each->Type != AType)
            Each = Each->Outer;
        return Each != nullptr;
    }

    PTypeInfo Type;
    const TMaking* Outer;
};

// A list of names that takes each once.
class TNameList {
public:
    explicit TNameList(std::span<const UnicodeString> ANames) : FNames(ANames.begin(), ANames.end()) {}
    void Add(UnicodeString AName) {
        if (std::none_of(FNames.begin(), FNames.end(),
                         [&](const UnicodeString& AEach) { return SameInNameList(AEach, AName); }))
            FNames.push_back(std::move(AName));
    }
    std::vector<UnicodeString> Take() noexcept { return std::move(FNames); }

private:
    std::vector<UnicodeString> FNames;
};

UnicodeString WithUpperFirst(UnicodeString AName) {
    if (!AName.IsEmpty() && AName[0] >= 0x80)
        return QzCharCase(WideString(AName), rcUpperCaseFirstLetter, u" ");
    if (!AName.IsEmpty())
        AName[0] = UpCase(std::as_const(AName)[0]);
    return AName;
}

bool IsListClass(const TTypeRequest& ARequest) {
    if (ARequest.FullName.View().find(u"List") != std::u16string_view::npos)
        return true;
    TClass Class = ARequest.Handle->Class;
    while (Class != nullptr && Class->Name() != u"TList")
        Class = Class->Parent;
    return Class != nullptr;
}

bool IsGenericName(const UnicodeString& AName) noexcept {
    return AName.View().find(u'<') != std::u16string_view::npos;
}

} // namespace

TTypeRequest RequestOf(PTypeInfo AType) {
    return {.Handle = AType, .ShortName = AType->Name, .FullName = AType->QualifiedName()};
}

// Null where the type has no elements.
PTypeInfo TTypeStore::ElementOf(const TTypeRequest& ARequest, TQzTypeKind AKind) const {
    const TRttiType Type(ARequest.Handle);
    if (AKind == rtkArray || AKind == rtkDynArray)
        return Type.TypeKind() == tkArray ? TRttiArrayType(Type).ElementType().Handle()
                                          : TRttiDynamicArrayType(Type).ElementType().Handle();
    if (AKind != rtkClass)
        return nullptr;
    const TClass Class = TRttiInstanceType(Type).MetaclassType();
    if (Class != nullptr && Class->InheritsFrom(ClassOf<TStrings>()))
        return qz::TypeInfo<UnicodeString>();
    return IsListClass(ARequest) ? Type.GetMethod(u"First").ReturnType().Handle() : nullptr;
}

// The schema type is the one that goes with the names.
std::vector<UnicodeString> TTypeStore::NamesOf(const TTypeRequest& ARequest, TQzTypeKind AKind,
                                               PTypeInfo AElement, TQzSchemaDataType& ASchemaType) {
    TNameList Names(ARequest.Names);
    const auto Calculated = [&](const UnicodeString& AName) {
        return CalculateSchemaName(ARequest.Handle, AName);
    };
    const TQzTypeInfo* const Element = InfoOf(AElement);
    const auto ElementName = [&] {
        if (AElement == nullptr)
            return UnicodeString();
        return WithUpperFirst(Element != nullptr ? Element->SchemaName(u"")
                                                 : CalculateSchemaName(AElement, AElement->QualifiedName()));
    };
    const bool IsPlain = ARequest.Handle->IsPublic && !IsGenericName(ARequest.FullName);
    const TQzSchemaDataType ArrayType =
        Element != nullptr && Element->GetIsSimpleType() ? xsdArrayOfSimpleType : xsdArrayOfComplexType;

    ASchemaType = xsdComplexType;
    switch (AKind) {
    case rtkEnumeration:
    case rtkSet:
        Names.Add(Calculated(ARequest.FullName));
        ASchemaType = xsdInt;
        break;
    case rtkArray:
    case rtkDynArray:
        if (!IsPlain)
            Names.Add(u"ArrayOf" + ElementName());
        Names.Add(Calculated(ARequest.FullName));
        ASchemaType = ArrayType;
        break;
    case rtkClass:
        if (AElement != nullptr) {
            if (!IsPlain)
                Names.Add(u"ListOf" + ElementName());
            else if (ARequest.FullName.View().starts_with(u"System."))
                Names.Add(Calculated(ARequest.ShortName));
            ASchemaType = ArrayType;
        }
        [[fallthrough]];
    case rtkRecord:
        Names.Add(Calculated(ARequest.FullName));
        Names.Add(ARequest.ShortName);
        break;
    case rtkVariant: Names.Add(u"any"); break;
    default:
        if (TQzKindConversions::IsSimpleTypeKind(AKind)) // of a virtual type the name of its own kind
            Names.Add(TQzKindConversions::ToSchemaType(ARequest.Kind, &ASchemaType));
        else
            Names.Add(Calculated(ARequest.FullName));
    }
    return Names.Take();
}

std::unique_ptr<TTypeEntry> TTypeStore::Make(const TTypeRequest& ARequest) {
    const TMaking Making(ARequest.Handle);
    const TQzTypeKind Natural = TQzKindConversions::ToTypeKind(ARequest.Handle->Kind);
    const bool IsVirtual = ARequest.VirtualKind != tkUnknown;
    if (IsVirtual) // raises for a kind outside the enumeration
        static_cast<void>(TQzKindConversions::ToTypeKind(ARequest.VirtualKind));
    const TQzTypeKind Kind = IsVirtual ? Natural : ARequest.Kind;
    const PTypeInfo Element = ElementOf(ARequest, Kind);
    TQzSchemaDataType NamesType;
    auto Names = std::make_unique<TSchemaNames>(TSchemaNames{NamesOf(ARequest, Kind, Element, NamesType)});
    TQzSchemaDataType DefaultType;
    const UnicodeString DefaultName = TQzKindConversions::ToSchemaType(ARequest.Kind, &DefaultType);

    auto Result = std::make_unique<TTypeEntry>();
    Result->List = IsVirtual ? ARequest.VirtualKind : ARequest.Handle->Kind;
    TQzTypeInfo& Info = *Result->Info;
    Info.FTypeInfo = ARequest.Handle;
    Info.FShortName = ARequest.ShortName;
    Info.FFullName = ARequest.FullName;
    Info.FTypeKind = ARequest.Kind;
    Info.FVarType = ARequest.VarType;
    Info.FSchemaType =
        ARequest.FinalSchemaType.value_or(ARequest.Names.empty() ? NamesType : ARequest.SchemaType);
    Info.FIsVirtual = IsVirtual;
    Info.FIsGeneric = IsGenericName(ARequest.FullName);
    Info.FIsXMLSchemaSimpleType =
        TQzSchemaSimplexType::Contains(DefaultType) && Names->Names.front() == DefaultName;
    if (!ARequest.FinalName.empty())
        Names->Names.front() = ARequest.FinalName;
    Info.FSchemaNames = Names.get();
    Info.FAllNames = std::move(Names);
    Info.FArrElmTypeInfo = InfoOf(Element);
    Info.FElementHandle = Element;
    if (ARequest.Parent != nullptr)
        Info.FTypeRec = ARequest.Parent;
    return Result;
}

TTypeEntry& TTypeStore::Add(const TTypeRequest& ARequest) {
    TTypeEntry& Result = Insert(Make(ARequest));
    if (Result.Parent.load(std::memory_order_acquire) == nullptr)
        AddParent(Result, ARequest);
    return Result;
}

// A class brings its parents, with the same kind and code.
void TTypeStore::AddParent(TTypeEntry& AEntry, const TTypeRequest& ARequest) {
    const PTypeInfo Base = TRttiInstanceType(TRttiType(ARequest.Handle)).BaseType().Handle();
    if (Base == nullptr)
        return;
    TTypeEntry* Parent = FindHandle(Base);
    if (Parent == nullptr) {
        TTypeRequest Request = RequestOf(Base);
        Request.Kind = ARequest.Kind;
        Request.VarType = ARequest.VarType;
        Parent = &Add(Request);
    }
    AEntry.Parent.store(Parent, std::memory_order_release);
}

TTypeEntry& TTypeStore::AddByKinds(TTypeRequest ARequest) {
    constexpr TVarType cCodeOfOthers = varUnknown;
    if (ARequest.Kind == rtkUnknown)
        ARequest.Kind = TQzKindConversions::ToTypeKind(ARequest.Handle->Kind);
    if (ARequest.VarType == varEmpty)
        ARequest.VarType = TQzKindConversions::IsSimpleTypeKind(ARequest.Kind)
            ? TQzKindConversions::ToVarType(ARequest.Kind)
            : cCodeOfOthers;
    return Add(ARequest);
}

TQzTypeInfo* TTypeStore::InfoOf(PTypeInfo AType) {
    if (AType == nullptr)
        return nullptr;
    if (TTypeEntry* const Found = FindHandle(AType)) [[likely]]
        return Found->Own();
    return TMaking::Has(AType) ? nullptr : AddByKinds(RequestOf(AType)).Own();
}

TTypeKind TTypeStore::VirtualKindOf(TQzSchemaDataType AType) noexcept {
    switch (AType) {
    case xsdArrayOfSimpleType:
    case xsdArrayOfComplexType: return tkDynArray;
    case xsdByte:
    case xsdShort:
    case xsdInt:
    case xsdUnsignedByte:
    case xsdUnsignedShort:
    case xsdUnsignedInt: return tkInteger;
    case xsdLong:
    case xsdUnsignedLong: return tkInt64;
    case xsdFloat:
    case xsdDouble:
    case xsdDecimal:
    case xsdDate:
    case xsdTime:
    case xsdDateTime: return tkFloat;
    case xsdString: return tkString;
    case xsdBase64Binary:
    case xsdHexBinary: return tkLString;
    case xsdBoolean: return tkEnumeration;
    default: return tkClass;
    }
}

TQzTypeInfo* TTypeStore::VirtualType(const TQzTypeInfo& AInfo, TQzSchemaDataType ASchemaType) {
    const TTypeKind Kind[] = {VirtualKindOf(ASchemaType)};
    if (TQzTypeInfo* const Found = FindName(FullNames, AInfo.FullName(), TKindRanks(Kind)))
        return Found;
    return Add({.Handle = AInfo.TypeInfo(),
                .ShortName = AInfo.ShortName(),
                .FullName = AInfo.FullName(),
                .Kind = TQzKindConversions::ToTypeKind(Kind[0]),
                .VarType = TQzKindConversions::ToVarType(Kind[0]),
                .VirtualKind = Kind[0],
                .Parent = AInfo.TypeRec(),
                .FinalSchemaType = ASchemaType})
        .Info;
}

} // namespace qz::detail
