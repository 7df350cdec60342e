#include <qz/runtime/components/BoundValue.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/reflection/Properties.h>
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/EnumNames.h>
#include <qz/runtime/values/RawValues.h>
#include <qz/runtime/values/VariantConvert.h>
#include <qz/runtime/values/detail/ValueAccess.h>

namespace qz {
namespace {

enum class TGroup : std::uint8_t { Ordinal, Float, Text, Object, Other };

constexpr double cTwo63 = 9223372036854775808.0;

TGroup GroupOf(PTypeInfo AType) noexcept {
    switch (AType->Kind) {
    case tkInteger:
    case tkInt64:
    case tkChar:
    case tkWChar:
    case tkEnumeration: return TGroup::Ordinal;
    case tkFloat: return TGroup::Float;
    case tkUString:
    case tkWString:
    case tkLString: return TGroup::Text;
    case tkClass: return TGroup::Object;
    default: return TGroup::Other;
    }
}

[[noreturn]] void RaiseNoWay(PTypeInfo AFrom, PTypeInfo ATo) {
    throw EConvertError(u"A value of type %s does not convert to %s", {AFrom->Name, ATo->Name});
}

[[noreturn]] void RaiseBadText(std::u16string_view AText, PTypeInfo AType) {
    throw EConvertError(u"'%s' is not a valid value of type %s", {AText, AType->Name});
}

[[noreturn]] void RaiseRange(PTypeInfo AType) {
    throw ERangeError(u"The number is outside the range of type %s", {AType->Name});
}

TWideOrdinal Rounded(double AValue, PTypeInfo AType) {
    const double Whole = std::nearbyint(AValue);
    if (Whole >= -cTwo63 && Whole < cTwo63)
        return {static_cast<std::int64_t>(Whole), false};
    if (Whole >= cTwo63 && Whole < 2 * cTwo63)
        return {static_cast<std::int64_t>(static_cast<std::uint64_t>(Whole)), true};
    RaiseRange(AType);
}

bool HasItem(PTypeInfo AType, std::int64_t AValue) noexcept {
    return AType->Items.empty() ||
        std::any_of(AType->Items.begin(), AType->Items.end(),
                    [AValue](const TEnumItem& AItem) { return AItem.Value == AValue; });
}

bool InRange(PTypeInfo AType, TWideOrdinal AOrdinal) noexcept {
    return HoldsOrdinal(AType, AOrdinal) && (AType->Kind != tkEnumeration || HasItem(AType, AOrdinal.Value));
}

TWideOrdinal OrdinalFromText(const UnicodeString& AText, PTypeInfo AType) {
    if (AType->IsBoolean)
        return {StrToBool(AText) ? 1 : 0, false};
    if (AType->Kind == tkEnumeration) {
        std::int64_t Value = 0;
        if (TryGetEnumValue(AType, AText, Value))
            return {Value, false};
        RaiseBadText(AText, AType);
    }
    if (AType->Kind == tkChar || AType->Kind == tkWChar) {
        if (AText.size() != 1)
            RaiseBadText(AText, AType);
        return {AText.View().front(), false};
    }
    if (AType->Kind == tkInt64 && !AType->IsSigned) {
        const std::uint64_t Value = StrToUInt64(AText);
        return {static_cast<std::int64_t>(Value), Value >> 63 != 0};
    }
    return {StrToInt64(AText), false};
}

UnicodeString TextFromOrdinal(TWideOrdinal AOrdinal, PTypeInfo AType) {
    if (AType->Kind == tkEnumeration)
        return GetEnumName(AType, AOrdinal.Value);
    if (AType->Kind == tkChar || AType->Kind == tkWChar)
        return static_cast<char16_t>(AOrdinal.Value);
    return AOrdinal.IsLarge ? UIntToStr(static_cast<std::uint64_t>(AOrdinal.Value))
                            : IntToStr(AOrdinal.Value);
}

UnicodeString TextOf(const TValue& AFrom, PTypeInfo ATo) {
    UnicodeString Result;
    if (!ReadText(AFrom.TypeInfo(), AFrom.GetReferenceToRawData(), Result))
        RaiseNoWay(AFrom.TypeInfo(), ATo);
    return Result;
}

TWideOrdinal OrdinalOf(const TValue& AFrom) noexcept {
    return ReadWideOrdinal(AFrom.TypeInfo(), AFrom.GetReferenceToRawData());
}

double FloatOf(const TValue& AFrom) noexcept {
    return ReadFloat(AFrom.TypeInfo(), AFrom.GetReferenceToRawData());
}

bool IsCurrency(PTypeInfo AType) noexcept {
    return AType == TypeInfo<Currency>();
}

std::int64_t ToBoolean(const TValue& AFrom, PTypeInfo ATo) {
    switch (GroupOf(AFrom.TypeInfo())) {
    case TGroup::Ordinal: return AFrom.AsOrdinal() != 0 ? 1 : 0;
    case TGroup::Float: return FloatOf(AFrom) != 0 ? 1 : 0;
    case TGroup::Text: return OrdinalFromText(TextOf(AFrom, ATo), ATo).Value;
    default: RaiseNoWay(AFrom.TypeInfo(), ATo);
    }
}

std::int64_t ToOrdinal(const TValue& AFrom, PTypeInfo ATo) {
    if (ATo->IsBoolean)
        return ToBoolean(AFrom, ATo);
    PTypeInfo From = AFrom.TypeInfo();
    TWideOrdinal Result{};
    switch (GroupOf(From)) {
    case TGroup::Ordinal: Result = OrdinalOf(AFrom); break;
    case TGroup::Float:
        Result = IsCurrency(From) ? TWideOrdinal{VarToInt64(AFrom.AsCurrency()), false}
                                  : Rounded(FloatOf(AFrom), ATo);
        break;
    case TGroup::Text: Result = OrdinalFromText(TextOf(AFrom, ATo), ATo); break;
    default: RaiseNoWay(From, ATo);
    }
    if (!InRange(ATo, Result))
        RaiseRange(ATo);
    return Result.Value;
}

TValue ToFloat(const TValue& AFrom, PTypeInfo ATo) {
    double Number = 0;
    switch (GroupOf(AFrom.TypeInfo())) {
    case TGroup::Ordinal: Number = NumberOf(OrdinalOf(AFrom)); break;
    case TGroup::Float: Number = FloatOf(AFrom); break;
    case TGroup::Text:
        if (IsCurrency(ATo))
            return StrToCurr(TextOf(AFrom, ATo));
        Number = StrToFloat(TextOf(AFrom, ATo));
        break;
    default: RaiseNoWay(AFrom.TypeInfo(), ATo);
    }
    return detail::TValueAccess::Make(ATo, [&](void* ATarget) { StoreFloat(ATo, ATarget, Number); });
}

TValue ToText(const TValue& AFrom, PTypeInfo ATo) {
    PTypeInfo From = AFrom.TypeInfo();
    UnicodeString Text;
    switch (GroupOf(From)) {
    case TGroup::Ordinal: Text = TextFromOrdinal(OrdinalOf(AFrom), From); break;
    case TGroup::Float:
        Text = IsCurrency(From) ? CurrToStr(AFrom.AsCurrency()) : FloatToStr(FloatOf(AFrom));
        break;
    case TGroup::Text: Text = TextOf(AFrom, ATo); break;
    default: RaiseNoWay(From, ATo);
    }
    TValue Result = TValue::Make(nullptr, ATo);
    if (!AssignText(ATo, detail::TValueAccess::Data(Result), Text))
        RaiseBadText(Text, ATo);
    return Result;
}

TValue ToObject(const TValue& AFrom, PTypeInfo ATo) {
    TValue Result;
    if (!AFrom.TryCast(ATo, Result))
        RaiseNoWay(AFrom.TypeInfo(), ATo);
    return Result;
}

TValue Converted(const TValue& AFrom, PTypeInfo ATo) {
    if (AFrom.TypeInfo() == ATo && ATo->Ops->Copy != nullptr)
        return AFrom;
    switch (GroupOf(ATo)) {
    case TGroup::Ordinal: return TValue::FromOrdinal(ATo, ToOrdinal(AFrom, ATo));
    case TGroup::Float: return ToFloat(AFrom, ATo);
    case TGroup::Text: return ToText(AFrom, ATo);
    case TGroup::Object: return ToObject(AFrom, ATo);
    default: RaiseNoWay(AFrom.TypeInfo(), ATo);
    }
}

} // namespace

TObject* TBoundValue::AsObject() const noexcept {
    return FValue.Kind() == tkClass ? FValue.AsObject() : nullptr;
}

void TBoundValue::Read(const TObject& AObject, const TPropInfo& AProp) {
    FValue = GetProp(AObject, AProp);
}

void TBoundValue::SetObject(TObject* AObject, PTypeInfo AClass) {
    FValue = TValue::Make(&AObject, AClass);
}

void TBoundValue::Assign(const TBoundValue& ASource, PTypeInfo AType) {
    if (ASource.Type() == nullptr)
        throw EConvertError(u"There is no value to convert to %s", {AType->Name});
    FValue = Converted(ASource.FValue, AType);
}

bool TBoundValue::SameAs(const TBoundValue& AOther) const {
    PTypeInfo Type = FValue.TypeInfo();
    if (Type == nullptr || Type != AOther.Type())
        return false;
    switch (GroupOf(Type)) {
    case TGroup::Ordinal: return FValue.AsOrdinal() == AOther.FValue.AsOrdinal();
    case TGroup::Float:
        return IsCurrency(Type) ? FValue.AsCurrency() == AOther.FValue.AsCurrency()
                                : FloatOf(FValue) == FloatOf(AOther.FValue);
    case TGroup::Text: {
        UnicodeString Text;
        UnicodeString Other;
        return ReadText(Type, Data(), Text) && ReadText(Type, AOther.Data(), Other) && Text == Other;
    }
    case TGroup::Object: return AsObject() == AOther.AsObject();
    default: return Type->Ops->IsTrivial && std::memcmp(Data(), AOther.Data(), Type->Ops->Size) == 0;
    }
}

} // namespace qz
