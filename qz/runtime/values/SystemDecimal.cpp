#include <qz/runtime/values/SystemDecimal.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/text/detail/Decimal.h>

namespace qz {
namespace {

constexpr int cMaxDigits = 29; // of 2^96 - 1
constexpr double cTwoTo32 = 4294967296.0;
constexpr double cTwoTo64 = cTwoTo32 * cTwoTo32;

// The magnitude in three steps of 32 bits, the lowest first.
using TLimbs = std::array<std::uint32_t, 3>;

TLimbs LimbsOf(const TSysDecimal& AValue) noexcept {
    return {static_cast<std::uint32_t>(AValue.Low), static_cast<std::uint32_t>(AValue.Low >> 32),
            AValue.High};
}

void SetLimbs(TSysDecimal& AValue, const TLimbs& ALimbs) noexcept {
    AValue.Low = std::uint64_t{ALimbs[1]} << 32 | ALimbs[0];
    AValue.High = ALimbs[2];
}

// AValue * 10 + ADigit, unless that does not fit.
bool PushDigit(TSysDecimal& AValue, unsigned ADigit) noexcept {
    TLimbs Limbs = LimbsOf(AValue);
    std::uint64_t Carry = ADigit;
    for (std::uint32_t& Limb : Limbs) {
        Carry += std::uint64_t{Limb} * 10;
        Limb = static_cast<std::uint32_t>(Carry);
        Carry >>= 32;
    }
    if (Carry != 0)
        return false;
    SetLimbs(AValue, Limbs);
    return true;
}

// AValue / 10, and the rest.
unsigned PopDigit(TSysDecimal& AValue) noexcept {
    if (AValue.High == 0) {
        const auto Digit = static_cast<unsigned>(AValue.Low % 10);
        AValue.Low /= 10;
        return Digit;
    }
    TLimbs Limbs = LimbsOf(AValue);
    std::uint64_t Rest = 0;
    for (std::size_t I = Limbs.size(); I-- > 0;) {
        Rest = Rest << 32 | Limbs[I];
        Limbs[I] = static_cast<std::uint32_t>(Rest / 10);
        Rest %= 10;
    }
    SetLimbs(AValue, Limbs);
    return static_cast<unsigned>(Rest);
}

// Adds one to the last digit; false when the number then does not fit.
bool Increment(TSysDecimal& AValue) noexcept {
    if (++AValue.Low != 0 || ++AValue.High != 0)
        return true;
    AValue.High = std::numeric_limits<std::uint32_t>::max();
    AValue.Low = std::numeric_limits<std::uint64_t>::max();
    return false;
}

// Rounds half to even by the digits that were left out: the first of them, and whether others are not zero.
bool RoundUp(TSysDecimal& AValue, unsigned AFirst, bool AOthers) noexcept {
    const bool IsUp = AFirst > 5 || (AFirst == 5 && (AOthers || (AValue.Low & 1) != 0));
    return !IsUp || Increment(AValue);
}

TSysDecimal WithValidScale(TSysDecimal AValue) noexcept {
    AValue.Scale = std::min(AValue.Scale, TSysDecimal::cMaxScale);
    return AValue;
}

// The digits of the magnitude, at least one more than there are decimals.
struct TDigits {
    std::array<char, cMaxDigits + 1> Text;
    std::size_t Start = cMaxDigits + 1;

    explicit TDigits(TSysDecimal AValue) noexcept {
        while (!AValue.IsZero() || Text.size() - Start <= AValue.Scale)
            Text[--Start] = static_cast<char>('0' + PopDigit(AValue));
    }
    std::string_view View() const noexcept { return {Text.data() + Start, Text.size() - Start}; }
};

// Both have a valid scale.
std::strong_ordering CompareMagnitudes(const TSysDecimal& ALeft, const TSysDecimal& ARight) noexcept {
    if (ALeft.Scale == ARight.Scale)
        return ALeft.High != ARight.High ? ALeft.High <=> ARight.High : ALeft.Low <=> ARight.Low;
    const TDigits LeftDigits(ALeft);
    const TDigits RightDigits(ARight);
    std::string_view Left = LeftDigits.View();
    std::string_view Right = RightDigits.View();
    const std::size_t LeftWhole = Left.size() - ALeft.Scale;
    const std::size_t RightWhole = Right.size() - ARight.Scale;
    if (LeftWhole != RightWhole)
        return LeftWhole <=> RightWhole;
    const std::size_t Common = std::min(Left.size(), Right.size());
    if (const auto Order = Left.substr(0, Common) <=> Right.substr(0, Common); std::is_neq(Order))
        return Order;
    Left.remove_prefix(Common);
    Right.remove_prefix(Common);
    const bool IsLonger = Left.find_first_not_of('0') != std::string_view::npos;
    const bool IsShorter = Right.find_first_not_of('0') != std::string_view::npos;
    return IsLonger <=> IsShorter;
}

// Takes digits with at most one separator. Decimals that have no room are dropped and rounded.
class TDecimalReader {
public:
    bool Read(std::u16string_view AText, char16_t ASeparator) noexcept {
        for (const char16_t Char : AText) {
            if (Char == ASeparator && !FIsFraction)
                FIsFraction = true;
            else if (Char < u'0' || Char > u'9' || !Take(static_cast<unsigned>(Char - u'0')))
                return false;
        }
        if (!FHasDigits)
            return false;
        if (RoundUp(Value, FFirstDropped == cNone ? 0 : FFirstDropped, FOthers))
            return true;
        // 2^96 - 1 with decimals was rounded up: one decimal less has room for it.
        if (Value.Scale == 0)
            return false;
        const unsigned Last = PopDigit(Value);
        --Value.Scale;
        return RoundUp(Value, Last + 1, false);
    }

    TSysDecimal Value;

private:
    static constexpr unsigned cNone = 10;

    bool Take(unsigned ADigit) noexcept {
        FHasDigits = true;
        const bool IsDropping = FFirstDropped != cNone;
        const bool HasRoom = !IsDropping && (!FIsFraction || Value.Scale < TSysDecimal::cMaxScale);
        if (HasRoom && PushDigit(Value, ADigit)) {
            Value.Scale = static_cast<std::uint8_t>(Value.Scale + (FIsFraction ? 1 : 0));
            return true;
        }
        if (IsDropping)
            FOthers = FOthers || ADigit != 0;
        else
            FFirstDropped = ADigit;
        return FIsFraction;
    }

    bool FIsFraction = false;
    bool FHasDigits = false;
    bool FOthers = false;
    unsigned FFirstDropped = cNone;
};

} // namespace

TSysDecimal TSysDecimal::FromInt64(std::int64_t AValue) noexcept {
    const auto Bits = static_cast<std::uint64_t>(AValue);
    return {AValue < 0 ? 0 - Bits : Bits, AValue < 0};
}

TSysDecimal TSysDecimal::FromCurrency(Currency AValue) noexcept {
    TSysDecimal Result = FromInt64(AValue.Units());
    Result.Scale = 4;
    return Result;
}

bool TSysDecimal::TryFromDouble(double AValue, TSysDecimal& ADecimal) noexcept {
    const double Size = std::fabs(AValue);
    if (!(Size < cTwoTo64 * cTwoTo32))
        return false;
    TSysDecimal Result(0, std::signbit(AValue));
    if (Size == std::trunc(Size)) {
        const double High = std::trunc(Size / cTwoTo64);
        Result.High = static_cast<std::uint32_t>(High);
        Result.Low = static_cast<std::uint64_t>(Size - High * cTwoTo64);
    } else {
        detail::TDecimal Digits(Size);
        Digits.Round(Digits.Exponent + cMaxScale);
        for (int I = 0; I < Digits.Count; ++I)
            PushDigit(Result, static_cast<unsigned>(Digits.Digit(I) - u'0'));
        Result.Scale = static_cast<std::uint8_t>(Digits.Count - Digits.Exponent);
    }
    ADecimal = Result;
    return true;
}

TSysDecimal TSysDecimal::Rounded(std::uint8_t AScale) const noexcept {
    TSysDecimal Result = WithValidScale(*this);
    unsigned First = 0;
    bool Others = false;
    for (; Result.Scale > AScale; --Result.Scale) {
        Others = Others || First != 0;
        First = PopDigit(Result);
    }
    RoundUp(Result, First, Others);
    return Result;
}

double TSysDecimal::ToDouble() const noexcept {
    if (Scale == 0 && High == 0)
        return IsNegative() ? -static_cast<double>(Low) : static_cast<double>(Low);
    const TSysDecimal Valid = WithValidScale(*this);
    const TDigits Digits(Valid);
    std::array<char, cMaxDigits + 8> Text;
    char* End = std::ranges::copy(Digits.View(), Text.begin()).out;
    *End++ = 'e';
    End = std::to_chars(End, Text.data() + Text.size(), -static_cast<int>(Valid.Scale)).ptr;
    double Result = 0;
    std::from_chars(Text.data(), End, Result);
    return IsNegative() ? -Result : Result;
}

bool TSysDecimal::TryToCurrency(Currency& ACurrency) const noexcept {
    constexpr std::uint8_t cDecimals = 4;
    TSysDecimal Units = Rounded(cDecimals);
    for (; Units.Scale < cDecimals; ++Units.Scale) {
        if (!PushDigit(Units, 0))
            return false;
    }
    const std::uint64_t Most = std::uint64_t{1} << 63;
    if (Units.High != 0 || Units.Low > Most - (Units.IsNegative() ? 0 : 1))
        return false;
    ACurrency =
        Currency::FromUnits(static_cast<std::int64_t>(Units.IsNegative() ? 0 - Units.Low : Units.Low));
    return true;
}

std::strong_ordering operator<=>(const TSysDecimal& ALeft, const TSysDecimal& ARight) noexcept {
    const bool IsLeftNegative = ALeft.IsNegative() && !ALeft.IsZero();
    const bool IsRightNegative = ARight.IsNegative() && !ARight.IsZero();
    if (IsLeftNegative != IsRightNegative)
        return IsRightNegative <=> IsLeftNegative;
    const TSysDecimal Left = WithValidScale(ALeft);
    const TSysDecimal Right = WithValidScale(ARight);
    return IsLeftNegative ? CompareMagnitudes(Right, Left) : CompareMagnitudes(Left, Right);
}

UnicodeString DecimalToStr(const TSysDecimal& AValue) {
    return DecimalToStr(AValue, DefaultFormatSettings());
}

UnicodeString DecimalToStr(const TSysDecimal& AValue, const TFormatSettings& ASettings) {
    const TSysDecimal Valid = WithValidScale(AValue);
    const TDigits Digits(Valid);
    const std::string_view All = Digits.View();
    const std::size_t Whole = All.size() - Valid.Scale;
    std::array<char16_t, cMaxDigits + 3> Text;
    char16_t* End = Text.data();
    if (AValue.IsNegative() && !AValue.IsZero())
        *End++ = u'-';
    End = std::ranges::copy(All.substr(0, Whole), End).out;
    if (AValue.Scale > 0) {
        *End++ = ASettings.DecimalSeparator;
        End = std::ranges::copy(All.substr(Whole), End).out;
    }
    return {Text.data(), static_cast<std::size_t>(End - Text.data())};
}

bool TryStrToDecimal(const TStringArg& AText, TSysDecimal& AValue) {
    return TryStrToDecimal(AText, AValue, DefaultFormatSettings());
}

bool TryStrToDecimal(const TStringArg& AText, TSysDecimal& AValue, const TFormatSettings& ASettings) {
    AValue = TSysDecimal();
    const UnicodeString Trimmed = Trim(AText.View());
    std::u16string_view Text = Trimmed;
    const bool IsNegative = Text.starts_with(u'-');
    if (IsNegative || Text.starts_with(u'+'))
        Text.remove_prefix(1);
    TDecimalReader Reader;
    if (!Reader.Read(Text, ASettings.DecimalSeparator))
        return false;
    AValue = Reader.Value;
    AValue.Sign = IsNegative ? TSysDecimal::cNegative : std::uint8_t{0};
    return true;
}

} // namespace qz
