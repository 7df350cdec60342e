#include <qz/common/uQzSysUtils/Numbers.h>

#include <cmath>

#include <qz/common/uQzSysUtils/Strings.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {
namespace {

constexpr std::int64_t cHighest = INT64_MAX;
constexpr std::int64_t cLowest = INT64_MIN;

// Below this a fraction is no half in any shown number of digits; the check by text can be skipped.
constexpr double cSurelyLess = 0.499;

bool IsHalf(double AFraction) {
    if (AFraction > 0.5)
        return true;
    return AFraction >= cSurelyLess && FloatToStr(AFraction * 10.0) == u"5";
}

std::int64_t Sum(std::int64_t AValue, std::int32_t AStep, const TStringArg& AText) {
    if (AStep > 0 ? AValue > cHighest - AStep : AValue < cLowest - AStep)
        throw EConvertError(u"'%s' cannot be counted on by %d", {AText.View(), AStep});
    return AValue + AStep;
}

// How many characters of the text stand before its digits at the end.
std::size_t PrefixLength(std::u16string_view AText) noexcept {
    std::size_t Result = AText.size();
    while (Result > 0 && AText[Result - 1] >= u'0' && AText[Result - 1] <= u'9')
        --Result;
    return Result;
}

UnicodeString FirstOfThisYear() {
    std::uint16_t Year = 0, Month = 0, Day = 0;
    DecodeDate(Date(), Year, Month, Day);
    return IntToStr(Year) + u"00001";
}

} // namespace

double QzRound(double AValue, std::int32_t ADigits) {
    if (!std::isfinite(AValue))
        return AValue;
    if (ADigits < 0) {
        const double Unit = std::pow(10.0, -static_cast<double>(ADigits));
        return std::isfinite(Unit) ? QzRound(AValue / Unit, 0) * Unit : AValue * 0.0;
    }
    const double Scale = std::trunc(std::pow(10.0, ADigits));
    const double Whole = std::trunc(AValue);
    if (Whole == AValue || !std::isfinite(Scale))
        return AValue;
    const double Scaled = (AValue - Whole) * Scale;
    const double Kept = std::trunc(Scaled);
    if (!IsHalf(std::fabs(Scaled - Kept)))
        return Whole + Kept / Scale;
    return Whole + (AValue < 0 ? Kept - 1 : Kept + 1) / Scale;
}

Extended QzRound(Extended AValue, std::int32_t ADigits) {
    return QzRound(AValue.Value, ADigits);
}

bool QzIsBitChecked(std::int64_t AValue, std::int32_t ABit) noexcept {
    if (ABit < 1)
        return true;
    return ABit <= 64 && (static_cast<std::uint64_t>(AValue) >> (ABit - 1) & 1) != 0;
}

UnicodeString QzStringIncrement(const TStringArg& AText, std::int32_t AStep) {
    if (Trim(AText).empty())
        return FirstOfThisYear();
    const std::u16string_view Text = AText;
    const std::size_t Prefix = PrefixLength(Text);
    const std::int64_t Next = Sum(StrToInt64(Text.substr(Prefix)), AStep, AText);
    return Text.substr(0, Prefix) + QzPadLeft(Next, static_cast<std::int32_t>(Text.size() - Prefix), u'0');
}

AnsiString QzIntToAnsiStr(std::int64_t AValue) {
    return AnsiString(IntToStr(AValue));
}

} // namespace qz
