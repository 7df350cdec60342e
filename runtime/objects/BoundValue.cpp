#include "runtime/objects/BoundValue.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>

#include "runtime/errors/Exceptions.h"
#include "runtime/reflection/BasicTypes.h"
#include "runtime/reflection/RawValues.h"
#include "runtime/text/FloatText.h"
#include "runtime/text/NumberText.h"
#include "runtime/text/StringUtils.h"
#include "runtime/values/Currency.h"

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

double NumberOf(TWideOrdinal AOrdinal) noexcept {
    const auto Value = static_cast<double>(AOrdinal.Value);
    return AOrdinal.IsLarge ? Value + 2 * cTwo63 : Value;
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
    if (AType == TypeInfo<bool>())
        return {StrToBool(AText) ? 1 : 0, false};
    if (AType->Kind == tkEnumeration) {
        for (const TEnumItem& Item : AType->Items)
            if (SameText(Item.Name, AText))
                return {Item.Value, false};
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
        for (const TEnumItem& Item : AType->Items)
            if (Item.Value == AOrdinal.Value)
                return Item.Name;
    if (AType->Kind == tkChar || AType->Kind == tkWChar)
        return static_cast<char16_t>(AOrdinal.Value);
    return AOrdinal.IsLarge ? UIntToStr(static_cast<std::uint64_t>(AOrdinal.Value))
                            : IntToStr(AOrdinal.Value);
}

TWideOrdinal ToOrdinal(PTypeInfo AFrom, const void* AData, PTypeInfo ATo) {
    TWideOrdinal Result{};
    switch (GroupOf(AFrom)) {
    case TGroup::Ordinal: Result = ReadWideOrdinal(AFrom, AData); break;
    case TGroup::Float: Result = Rounded(ReadFloat(AFrom, AData), ATo); break;
    case TGroup::Text: Result = OrdinalFromText(ReadText(AFrom, AData), ATo); break;
    default: RaiseNoWay(AFrom, ATo);
    }
    if (ATo == TypeInfo<bool>())
        return {Result.Value != 0 ? 1 : 0, false};
    if (!InRange(ATo, Result))
        RaiseRange(ATo);
    return Result;
}

double ToFloat(PTypeInfo AFrom, const void* AData, PTypeInfo ATo) {
    switch (GroupOf(AFrom)) {
    case TGroup::Ordinal: return NumberOf(ReadWideOrdinal(AFrom, AData));
    case TGroup::Float: return ReadFloat(AFrom, AData);
    case TGroup::Text: return StrToFloat(ReadText(AFrom, AData));
    default: RaiseNoWay(AFrom, ATo);
    }
}

UnicodeString ToText(PTypeInfo AFrom, const void* AData, PTypeInfo ATo) {
    switch (GroupOf(AFrom)) {
    case TGroup::Ordinal: return TextFromOrdinal(ReadWideOrdinal(AFrom, AData), AFrom);
    case TGroup::Float: return FloatToStr(ReadFloat(AFrom, AData));
    case TGroup::Text: return ReadText(AFrom, AData);
    default: RaiseNoWay(AFrom, ATo);
    }
}

// ATarget is raw storage. Digits may get lost, the size of the number may not.
void StoreFloat(PTypeInfo AType, void* ATarget, double AValue) {
    Currency Amount;
    if (AType == TypeInfo<Currency>() && !Currency::TryFromDouble(AValue, Amount))
        RaiseRange(AType);
    WriteFloat(AType, ATarget, AValue);
    if (std::isfinite(AValue) && !std::isfinite(ReadFloat(AType, ATarget)))
        RaiseRange(AType);
}

// ATarget is raw storage.
void StoreText(PTypeInfo AType, void* ATarget, const UnicodeString& AText) {
    AType->Ops->Construct(ATarget);
    if (AssignText(AType, ATarget, AText))
        return;
    AType->Ops->Destroy(ATarget);
    RaiseBadText(AText, AType);
}

} // namespace

TObject* TBoundValue::AsObject() const noexcept {
    return FType != nullptr && FType->Kind == tkClass ? *static_cast<TObject* const*>(Data()) : nullptr;
}

void TBoundValue::Clear() noexcept {
    if (PTypeInfo Old = std::exchange(FType, nullptr); Old != nullptr && Old->Ops != nullptr)
        Old->Ops->Destroy(const_cast<void*>(Data()));
    ::operator delete(std::exchange(FHeap, nullptr));
}

// Raw storage for a value of the type, which FType then announces.
void* TBoundValue::Room(PTypeInfo AType) {
    Clear();
    if (AType->Ops == nullptr && AType->Kind != tkClass)
        throw EConvertError(u"Values of type %s cannot be kept", {AType->Name});
    if (AType->Ops != nullptr && AType->Ops->Size > cRoom)
        FHeap = ::operator new(AType->Ops->Size);
    return const_cast<void*>(Data());
}

void TBoundValue::Read(const TObject& AObject, const TPropInfo& AProp) {
    PTypeInfo Type = AProp.PropType();
    AProp.Get(AObject, Room(Type));
    FType = Type;
}

void TBoundValue::SetObject(TObject* AObject, PTypeInfo AClass) {
    new (Room(AClass)) TObject*(AObject);
    FType = AClass;
}

void TBoundValue::Assign(const TBoundValue& ASource, PTypeInfo AType) {
    PTypeInfo From = ASource.FType;
    if (From == nullptr)
        throw EConvertError(u"There is no value to convert to %s", {AType->Name});
    if (AType->Kind == tkClass)
        return AssignObject(ASource, AType);
    void* Target = Room(AType);
    if (From == AType) {
        if (AType->Ops->Copy == nullptr)
            RaiseNoWay(From, AType);
        AType->Ops->Copy(Target, ASource.Data());
    } else {
        switch (GroupOf(AType)) {
        case TGroup::Ordinal:
            WriteOrdinal(AType, Target, ToOrdinal(From, ASource.Data(), AType).Value);
            break;
        case TGroup::Float: StoreFloat(AType, Target, ToFloat(From, ASource.Data(), AType)); break;
        case TGroup::Text: StoreText(AType, Target, ToText(From, ASource.Data(), AType)); break;
        default: RaiseNoWay(From, AType);
        }
    }
    FType = AType;
}

void TBoundValue::AssignObject(const TBoundValue& ASource, PTypeInfo AType) {
    TObject* Object = ASource.AsObject();
    if (ASource.FType->Kind != tkClass || (Object != nullptr && !Object->InheritsFrom(AType->Class)))
        RaiseNoWay(Object == nullptr ? ASource.FType : &Object->ClassType()->Info, AType);
    SetObject(Object, AType);
}

bool TBoundValue::SameAs(const TBoundValue& AOther) const {
    if (FType == nullptr || FType != AOther.FType)
        return false;
    switch (GroupOf(FType)) {
    case TGroup::Ordinal: return ReadOrdinal(FType, Data()) == ReadOrdinal(FType, AOther.Data());
    case TGroup::Float: return ReadFloat(FType, Data()) == ReadFloat(FType, AOther.Data());
    case TGroup::Text: return ReadText(FType, Data()) == ReadText(FType, AOther.Data());
    case TGroup::Object: return AsObject() == AOther.AsObject();
    default: return FType->Ops->IsTrivial && std::memcmp(Data(), AOther.Data(), FType->Ops->Size) == 0;
    }
}

} // namespace qz
