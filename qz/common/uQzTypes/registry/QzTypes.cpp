#include <qz/common/uQzTypes/registry/QzTypes.h>

#include <qz/common/uQzTypes/registry/detail/QName.h>
#include <qz/common/uQzTypes/registry/detail/TypeStore.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

using detail::TTypeEntry;
using detail::TTypeStore;

constinit const TClassRec TQzNilType::ClassRec =
    DescribeClass<TQzNilType>(u"TQzNilType", {.Unit = u"uQzTypes"});

namespace {

QZ_REGISTER_TYPES(TQzNilType, TQzTypeInfo);

TTypeStore& Store() {
    return TTypeStore::Instance();
}

PTypeInfo TypeOf(TQzTypeKind AKind) noexcept {
    switch (AKind) {
    case rtkByte: return TypeInfo<std::uint8_t>();
    case rtkWord: return TypeInfo<std::uint16_t>();
    case rtkLongWord: return TypeInfo<std::uint32_t>();
    case rtkUInt64: return TypeInfo<std::uint64_t>();
    case rtkShortInt: return TypeInfo<std::int8_t>();
    case rtkSmallInt: return TypeInfo<std::int16_t>();
    case rtkLongInt: return TypeInfo<std::int32_t>();
    case rtkInt64: return TypeInfo<std::int64_t>();
    case rtkSingle: return TypeInfo<float>();
    case rtkDouble: return TypeInfo<double>();
    case rtkExtended: return TypeInfo<Extended>();
    case rtkChar:
    case rtkWChar: return TypeInfo<char16_t>();
    case rtkAChar: return TypeInfo<char>();
    case rtkString: return TypeInfo<UnicodeString>();
    case rtkAString: return TypeInfo<AnsiString>();
    case rtkWString: return TypeInfo<WideString>();
    case rtkBoolean: return TypeInfo<bool>();
    case rtkDate: return TypeInfo<TDate>();
    case rtkTime: return TypeInfo<TTime>();
    case rtkDatetime: return TypeInfo<TDateTime>();
    default: return TypeInfo<Variant>();
    }
}

template <class T> PTypeInfo TypeOrArray(bool AIsArray) noexcept {
    return AIsArray ? TypeInfo<TDynArray<T>>() : TypeInfo<T>();
}

// ACode is without the flag of arrays.
PTypeInfo TypeOf(TVarType ACode, bool AIsArray) noexcept {
    switch (ACode) {
    case varSmallint: return TypeOrArray<std::int16_t>(AIsArray);
    case varInteger: return TypeOrArray<std::int32_t>(AIsArray);
    case varSingle: return TypeOrArray<float>(AIsArray);
    case varDouble:
    case varDecimal: return TypeOrArray<double>(AIsArray);
    case varCurrency: return TypeOrArray<Extended>(AIsArray);
    case varDate: return TypeOrArray<TDateTime>(AIsArray);
    case varOleStr:
    case varStrArg:
    case varUString: return TypeOrArray<WideString>(AIsArray);
    case varBoolean: return TypeOrArray<bool>(AIsArray);
    case varShortInt: return TypeOrArray<std::int8_t>(AIsArray);
    case varByte: return TypeOrArray<std::uint8_t>(AIsArray);
    case varWord: return TypeOrArray<std::uint16_t>(AIsArray);
    case varLongWord: return TypeOrArray<std::uint32_t>(AIsArray);
    case varInt64: return TypeOrArray<std::int64_t>(AIsArray);
    case varUInt64: return TypeOrArray<std::uint64_t>(AIsArray);
    case varString: return TypeOrArray<UnicodeString>(AIsArray);
    default: return TypeOrArray<Variant>(AIsArray);
    }
}

PTypeInfo Checked(PTypeInfo AType) {
    if (AType == nullptr)
        throw Exception(SNoRttiInfo);
    return AType;
}

detail::TTypeRequest Request(PTypeInfo AType, TQzTypeKind AKind, TVarType AVarType,
                             TQzSchemaDataType ASchemaType, const TStringDynArray& ANames) {
    detail::TTypeRequest Result = detail::RequestOf(Checked(AType));
    Result.Kind = AKind;
    Result.VarType = AVarType;
    Result.SchemaType = ASchemaType;
    Result.Names = {ANames.data(), ANames.size()};
    return Result;
}

detail::TKindRanks Ranks(const TTypeKindArray& AKinds) noexcept {
    return detail::TKindRanks({AKinds.data(), AKinds.size()});
}

} // namespace

TQzTypeInfo* TQzTypes::GetTypeInfo(PTypeInfo ATypeInfo) {
    return Store().InfoOf(ATypeInfo);
}

TQzTypeInfo* TQzTypes::GetTypeInfo(TClass AClass) {
    return AClass == nullptr ? nullptr : Store().InfoOf(AClass->ClassInfo());
}

TQzTypeInfo* TQzTypes::GetTypeInfo(TRttiType AType) {
    return Store().InfoOf(AType.Handle());
}

TQzTypeInfo* TQzTypes::GetTypeInfo(TQzTypeKind AKind) {
    return Store().InfoOf(TypeOf(AKind));
}

TQzTypeInfo* TQzTypes::GetTypeInfo(const TStringArg& AName, TQzTypeNameType ANameType, bool ARaise,
                                   TQzMainTypeKind AMainTypeKind) {
    TQzTypeInfo* const Result = Store().FindType(AName, ANameType, AMainTypeKind);
    if (Result != nullptr || !ARaise)
        return Result;
    if (AName.View().empty())
        throw Exception(SNoTypeName);
    throw Exception(STypeNotFound, {AName.View()});
}

TQzTypeKind TQzTypes::GetTypeKind(const TStringArg& AName, TQzTypeNameType ANameType, TQzTypeKind ADefault) {
    const TQzTypeInfo* const Found = GetTypeInfo(AName, ANameType);
    return Found == nullptr ? ADefault : Found->TypeKind();
}

TVarType TQzTypes::GetVarType(const TStringArg& AName, TQzTypeNameType ANameType, TVarType ADefault) {
    const TQzTypeInfo* const Found = GetTypeInfo(AName, ANameType);
    return Found == nullptr ? ADefault : Found->VarType();
}

TQzTypeInfo* TQzTypes::VarTypeInfo(const Variant& AValue) {
    const TVarType Code = VarType(AValue);
    return Store().InfoOf(TypeOf(static_cast<TVarType>(Code & ~varArray), (Code & varArray) != 0));
}

PQzTypeRec TQzTypes::FindTypeRec(PTypeInfo ATypeInfo) {
    TTypeEntry* const Found = Store().FindHandle(ATypeInfo);
    return Found != nullptr && Found->Info->TypeInfo() == ATypeInfo ? Found : nullptr;
}

TQzTypeInfo* TQzTypes::FindBySchemaName(const TStringArg& AName, const TTypeKindArray& AKinds) {
    return Store().FindName(TTypeStore::SchemaNames, detail::WithoutPrefix(AName), Ranks(AKinds));
}

TQzTypeInfo* TQzTypes::FindByFullName(const TStringArg& AName, const TTypeKindArray& AKinds) {
    return Store().FindName(TTypeStore::FullNames, AName, Ranks(AKinds));
}

TQzTypeInfo* TQzTypes::FindByShortName(const TStringArg& AName, const TTypeKindArray& AKinds) {
    return Store().FindName(TTypeStore::ShortNames, AName, Ranks(AKinds));
}

UnicodeString TQzTypes::CalculateSchemaName(PTypeInfo ATypeInfo, const TStringArg& AName) {
    return Store().CalculateSchemaName(ATypeInfo, AName.ToString());
}

void TQzTypes::DecodeQName(const TStringArg& AQName, char16_t ASeparator, UnicodeString& AQualified,
                           UnicodeString& AShort) {
    const detail::TTypeNameOfSchema Name(detail::WithoutPrefix(AQName), ASeparator);
    UnicodeString Qualified = Name.Qualified(); // AQName may be one of the results
    AShort = Name.Short();
    AQualified = std::move(Qualified);
}

PQzTypeRec TQzTypes::AddTypeInfoTypeRec(PTypeInfo ATypeInfo, TQzTypeKind ATypeKind, TVarType AVarType,
                                        TQzSchemaDataType ASchemaType, const TStringDynArray& ASchemaNames) {
    return &Store().AddByKinds(Request(ATypeInfo, ATypeKind, AVarType, ASchemaType, ASchemaNames));
}

PQzTypeRec TQzTypes::AddRttiTypeRec(TRttiType ARttiType, TQzTypeKind ATypeKind, TVarType AVarType,
                                    TQzSchemaDataType ASchemaType, const TStringDynArray& ASchemaNames) {
    return AddTypeInfoTypeRec(ARttiType.Handle(), ATypeKind, AVarType, ASchemaType, ASchemaNames);
}

PQzTypeRec TQzTypes::AddTypeRec(TRttiType ARttiType, const TStringArg& AShortName,
                                const TStringArg& AFullName, TQzTypeKind ATypeKind, TVarType AVarType,
                                TQzSchemaDataType ASchemaType, const TStringDynArray& ASchemaNames,
                                TTypeKind AVirtualKind, PQzTypeRec AParent) {
    detail::TTypeRequest Full = Request(ARttiType.Handle(), ATypeKind, AVarType, ASchemaType, ASchemaNames);
    Full.ShortName = AShortName.ToString();
    Full.FullName = AFullName.ToString();
    Full.VirtualKind = AVirtualKind;
    Full.Parent = AParent;
    return &Store().Add(Full);
}

void TQzTypes::RegisterTypeAlias(PTypeInfo ATypeInfo, const TStringArg& AName) {
    RegisterTypeAlias(ATypeInfo, TStringDynArray{AName.ToString()});
}

} // namespace qz
