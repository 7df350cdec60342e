#include <qz/runtime/values/RawValues.h>

#include <cmath>
#include <cstring>
#include <new>

#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/values/BasicTypes.h>
#include <qz/runtime/values/Currency.h>

namespace qz {
namespace {

// The same number, or no number as before.
bool IsSame(double ALeft, double ARight) noexcept {
    return ALeft == ARight || (std::isnan(ALeft) && std::isnan(ARight));
}

} // namespace

TWideOrdinal ReadWideOrdinal(PTypeInfo AType, const void* ASource) noexcept {
    const std::int64_t Value = ReadOrdinal(AType, ASource);
    return {Value, Value < 0 && !AType->IsSigned && AType->Ops->Size == 8};
}

bool HoldsOrdinal(PTypeInfo AType, TWideOrdinal AOrdinal) noexcept {
    if (AType->IsBoolean)
        return !AOrdinal.IsLarge && (AOrdinal.Value == 0 || AOrdinal.Value == 1);
    const std::size_t Size = AType->Ops->Size;
    if (Size == 8)
        return AType->IsSigned ? !AOrdinal.IsLarge : AOrdinal.IsLarge || AOrdinal.Value >= 0;
    const int Bits = static_cast<int>(8 * Size) - (AType->IsSigned ? 1 : 0);
    const std::int64_t Limit = std::int64_t{1} << Bits;
    return !AOrdinal.IsLarge && AOrdinal.Value < Limit && AOrdinal.Value >= (AType->IsSigned ? -Limit : 0);
}

double NumberOf(TWideOrdinal AOrdinal) noexcept {
    return AOrdinal.IsLarge ? static_cast<double>(static_cast<std::uint64_t>(AOrdinal.Value))
                            : static_cast<double>(AOrdinal.Value);
}

double ReadFloat(PTypeInfo AType, const void* ASource) noexcept {
    if (AType == TypeInfo<Currency>())
        return static_cast<const Currency*>(ASource)->ToDouble();
    if (AType->Ops->Size == sizeof(float)) {
        float Value;
        std::memcpy(&Value, ASource, sizeof Value);
        return static_cast<double>(Value);
    }
    double Value;
    std::memcpy(&Value, ASource, sizeof Value);
    return Value;
}

bool WriteFloat(PTypeInfo AType, void* ATarget, double AValue) noexcept {
    if (AType == TypeInfo<Currency>()) {
        Currency Value;
        if (!Currency::TryFromDouble(AValue, Value))
            return false;
        new (ATarget) Currency(Value);
        return Value.ToDouble() == AValue;
    }
    if (AType->Ops->Size == sizeof(float)) {
        const auto Value = static_cast<float>(AValue);
        std::memcpy(ATarget, &Value, sizeof Value);
        return IsSame(static_cast<double>(Value), AValue);
    }
    std::memcpy(ATarget, &AValue, sizeof AValue);
    return true;
}

void StoreFloat(PTypeInfo AType, void* ATarget, double AValue) {
    if (WriteFloat(AType, ATarget, AValue))
        return;
    Currency Amount;
    const bool InRange = AType == TypeInfo<Currency>() ? Currency::TryFromDouble(AValue, Amount)
                                                       : std::isfinite(ReadFloat(AType, ATarget));
    if (!InRange)
        throw ERangeError(u"The number is outside the range of type %s", {AType->Name});
}

bool IsDateType(PTypeInfo AType) noexcept {
    return AType == TypeInfo<TDateTime>() || AType == TypeInfo<TDate>() || AType == TypeInfo<TTime>();
}

bool ReadText(PTypeInfo AType, const void* ASource, UnicodeString& AText) {
    switch (AType->Kind) {
    case tkChar: AText = char16_t{*static_cast<const unsigned char*>(ASource)}; return true;
    case tkWChar: AText = *static_cast<const char16_t*>(ASource); return true;
    case tkLString: break;
    default: AText = *static_cast<const UnicodeString*>(ASource); return true;
    }
    try {
        AText = static_cast<const TByteText*>(ASource)->ToUnicode();
        return true;
    } catch (const EOSError&) {
        return false;
    }
}

bool AssignText(PTypeInfo AType, void* ATarget, const UnicodeString& AText) try {
    if (AType->Kind == tkUString || AType->Kind == tkWString)
        *static_cast<UnicodeString*>(ATarget) = AText;
    else if (AType == TypeInfo<AnsiString>())
        *static_cast<AnsiString*>(ATarget) = AnsiString(AText);
    else if (AType == TypeInfo<UTF8String>())
        *static_cast<UTF8String*>(ATarget) = UTF8String(AText);
    else if (AType == TypeInfo<RawByteString>())
        *static_cast<RawByteString*>(ATarget) = RawByteString(UTF8String(AText));
    else
        return false;
    return true;
} catch (const EOSError&) {
    return false;
}

} // namespace qz
