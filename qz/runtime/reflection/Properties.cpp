#include <qz/runtime/reflection/Properties.h>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/values/EnumNames.h>
#include <qz/runtime/values/RawValues.h>
#include <qz/runtime/values/VariantConvert.h>
#include <qz/runtime/values/detail/ValueAccess.h>

namespace qz {
namespace {

PTypeInfo RootOf(PTypeInfo AClass) noexcept {
    while (AClass != nullptr && AClass->BaseType() != nullptr)
        AClass = AClass->BaseType();
    return AClass;
}

// The class between AParent and AClass that derives from AParent directly; null for AClass itself.
PTypeInfo ChildOf(PTypeInfo AParent, PTypeInfo AClass) noexcept {
    PTypeInfo Child = nullptr;
    for (PTypeInfo Each = AClass; Each != AParent; Each = Each->BaseType())
        Child = Each;
    return Child;
}

[[noreturn]] void RaiseType(const TPropInfo& AProp) {
    throw EPropertyConvertError(u"Invalid property type: %s", {AProp.PropType()->Name});
}

bool IsOrdinal(PTypeInfo AType) noexcept {
    switch (AType->Kind) {
    case tkInteger:
    case tkInt64:
    case tkChar:
    case tkWChar:
    case tkEnumeration: return true;
    case tkSet: return AType->Ops->Size <= sizeof(std::int64_t);
    default: return false;
    }
}

bool IsText(PTypeInfo AType) noexcept {
    return IsTextKind(AType->Kind);
}

bool IsFloat(PTypeInfo AType) noexcept {
    return AType->Kind == tkFloat;
}

bool IsObject(PTypeInfo AType) noexcept {
    return AType->Kind == tkClass;
}

// The property, if its type passes the test.
const TPropInfo& Checked(const TObject& AObject, const TPropArg& AProp, bool (*ATest)(PTypeInfo) noexcept) {
    const TPropInfo& Prop = AProp.Of(AObject);
    if (!ATest(Prop.PropType()))
        RaiseType(Prop);
    return Prop;
}

// AValue is of the property's type.
void Write(TObject& AObject, const TPropInfo& AProp, const TValue& AValue) {
    if (AProp.Set == nullptr)
        throw EPropertyError(u"Property %s is read-only", {AProp.Name});
    AProp.Set(AObject, AValue.GetReferenceToRawData());
}

TValue MakeFloat(PTypeInfo AType, double AValue) {
    return detail::TValueAccess::Make(AType, [&](void* ATarget) { StoreFloat(AType, ATarget, AValue); });
}

// A number as an ordinal. The 64 bits of an enumeration or a set may be given with or without a sign.
std::int64_t OrdinalFromNumber(PTypeInfo AType, const Variant& AValue) {
    if (AType->IsBoolean)
        return VarToBool(AValue) ? 1 : 0;
    const bool IsUnsigned = !AType->IsSigned && AType->Ops->Size == sizeof(std::uint64_t) &&
        (AType->Kind == tkInt64 || VarType(AValue) == varUInt64);
    return IsUnsigned ? static_cast<std::int64_t>(VarToUInt64(AValue)) : VarToInt64(AValue);
}

// The ordinal in a variant.
std::int64_t OrdinalFrom(PTypeInfo AType, const Variant& AValue) {
    if (!VarIsStr(AValue))
        return OrdinalFromNumber(AType, AValue);
    const UnicodeString Text = VarToStr(AValue);
    if (AType->Kind == tkSet)
        return StringToSet(AType, Text);
    std::int64_t Result = 0;
    if (AType->Kind == tkEnumeration) {
        if (TryGetEnumValue(AType, Text, Result))
            return Result;
        throw EPropertyConvertError(u"Invalid property element: %s", {Text});
    }
    if (IsTextKind(AType->Kind))
        return TValue(Text).Cast(AType).AsOrdinal();
    return AType->IsSigned ? VarToInt64(AValue) : static_cast<std::int64_t>(VarToUInt64(AValue));
}

// The value in a variant, for a type that variants can hold.
TValue ValueFrom(const TPropInfo& AProp, const Variant& AValue) try {
    PTypeInfo Type = AProp.PropType();
    if (IsOrdinal(Type))
        return TValue::FromOrdinal(Type, OrdinalFrom(Type, AValue));
    if (Type == TypeInfo<Currency>())
        return VarToCurrency(AValue);
    if (IsFloat(Type))
        return MakeFloat(
            Type, IsDateType(Type) && VarIsStr(AValue) ? VarToDateTime(AValue).Value : VarToReal(AValue));
    if (IsText(Type))
        return TValue(VarToStr(AValue)).Cast(Type);
    if (Type->Kind == tkVariant)
        return AValue;
    RaiseType(AProp);
} catch (const EVariantOverflowError& E) {
    throw ERangeError(E.Message());
}

Variant OrdinalVariant(const TValue& AValue, bool APreferStrings) {
    PTypeInfo Type = AValue.TypeInfo();
    const std::int64_t Ordinal = AValue.AsOrdinal();
    if (APreferStrings) {
        if (Type->Kind == tkEnumeration)
            return GetEnumName(Type, Ordinal);
        if (Type->Kind == tkSet)
            return SetToString(Type, Ordinal);
    } else if (IsTextKind(Type->Kind)) {
        return static_cast<std::int32_t>(Ordinal);
    }
    return AValue.AsVariant();
}

} // namespace

TPropInfos::TIterator::TIterator(PTypeInfo AClass) noexcept : FClass(AClass), FLevel(RootOf(AClass)) {
    FindNext();
}

TPropInfos::TIterator& TPropInfos::TIterator::operator++() noexcept {
    FindNext();
    return *this;
}

void TPropInfos::TIterator::FindNext() noexcept {
    FProp = nullptr;
    for (; FLevel != nullptr; FLevel = ChildOf(FLevel, FClass), FIndex = 0)
        while (FIndex < FLevel->Properties.size()) {
            const std::u16string_view Name = FLevel->Properties[FIndex++].Name;
            if (GetPropInfo(FLevel->BaseType(), Name) == nullptr) {
                FProp = GetPropInfo(FClass, Name); // as the last descendant declares it
                return;
            }
        }
}

const TPropInfo& TPropArg::Of(PTypeInfo AClass) const {
    if (const TPropInfo* Found = Find(AClass))
        return *Found;
    throw EPropertyError(u"Property %s does not exist in %s", {FName.View(), AClass->Name});
}

TValue GetProp(const TObject& AObject, const TPropArg& AProp) {
    const TPropInfo& Prop = AProp.Of(AObject);
    if (Prop.Get == nullptr)
        throw EPropertyError(u"Property %s cannot be read", {Prop.Name});
    return detail::TValueAccess::Make(Prop.PropType(), [&](void* ATarget) { Prop.Get(AObject, ATarget); });
}

void SetProp(TObject& AObject, const TPropArg& AProp, const TValue& AValue) {
    const TPropInfo& Prop = AProp.Of(AObject);
    Write(AObject, Prop, AValue.Cast(Prop.PropType()));
}

Variant GetPropValue(const TObject& AObject, const TPropArg& AProp, bool APreferStrings) {
    const TPropInfo& Prop = AProp.Of(AObject);
    PTypeInfo Type = Prop.PropType();
    if (IsOrdinal(Type))
        return OrdinalVariant(GetProp(AObject, Prop), APreferStrings);
    if (IsFloat(Type) && Type != TypeInfo<Currency>())
        return GetProp(AObject, Prop).AsExtended().Value;
    if (IsFloat(Type) || IsText(Type) || Type->Kind == tkVariant)
        return GetProp(AObject, Prop).AsVariant();
    if (Type->Kind == tkSet && APreferStrings)
        return SetToString(Type, GetProp(AObject, Prop).GetReferenceToRawData(), false);
    RaiseType(Prop);
}

void SetPropValue(TObject& AObject, const TPropArg& AProp, const Variant& AValue) {
    const TPropInfo& Prop = AProp.Of(AObject);
    Write(AObject, Prop, ValueFrom(Prop, AValue));
}

std::int64_t GetOrdProp(const TObject& AObject, const TPropArg& AProp) {
    return GetProp(AObject, Checked(AObject, AProp, IsOrdinal)).AsOrdinal();
}

void SetOrdProp(TObject& AObject, const TPropArg& AProp, std::int64_t AValue) {
    const TPropInfo& Prop = Checked(AObject, AProp, IsOrdinal);
    Write(AObject, Prop, TValue::FromOrdinal(Prop.PropType(), AValue));
}

UnicodeString GetStrProp(const TObject& AObject, const TPropArg& AProp) {
    return GetProp(AObject, Checked(AObject, AProp, IsText)).AsString();
}

void SetStrProp(TObject& AObject, const TPropArg& AProp, const UnicodeString& AValue) {
    SetProp(AObject, Checked(AObject, AProp, IsText), AValue);
}

double GetFloatProp(const TObject& AObject, const TPropArg& AProp) {
    return GetProp(AObject, Checked(AObject, AProp, IsFloat)).AsExtended();
}

void SetFloatProp(TObject& AObject, const TPropArg& AProp, double AValue) {
    const TPropInfo& Prop = Checked(AObject, AProp, IsFloat);
    Write(AObject, Prop, MakeFloat(Prop.PropType(), AValue));
}

TObject* GetObjectProp(const TObject& AObject, const TPropArg& AProp, TClass AClass) {
    TObject* Result = GetProp(AObject, Checked(AObject, AProp, IsObject)).AsObject();
    return Result != nullptr && (AClass == nullptr || Result->InheritsFrom(AClass)) ? Result : nullptr;
}

void SetObjectProp(TObject& AObject, const TPropArg& AProp, TObject* AValue) {
    SetProp(AObject, Checked(AObject, AProp, IsObject), AValue);
}

} // namespace qz
