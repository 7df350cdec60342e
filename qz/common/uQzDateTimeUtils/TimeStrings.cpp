#include <qz/common/uQzDateTimeUtils/TimeStrings.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include <qz/common/uQzDateTimeUtils/detail/DateNumbers.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/EnumItems.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/FormatSettings.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzDateTimeUtils";
constexpr auto cRanges = EnumItems({u"trDuration", u"trPointOfTime", u"trEndTime"});
constexpr auto cFormats =
    EnumItems({u"tfNone", u"tfHourMin", u"tfHourMinSec", u"tfDecHourM2", u"tfDecHourM3", u"tfDecMinM2"});

constexpr std::int64_t cSecsPerHour = 3600;

void AppendTwoDigits(UnicodeString& AText, std::int64_t AValue) {
    AText += static_cast<char16_t>(u'0' + AValue / 10);
    AText += static_cast<char16_t>(u'0' + AValue % 10);
}

std::int32_t Checked(std::int64_t ASeconds) {
    if (!std::in_range<std::int32_t>(ASeconds) || !std::in_range<std::int32_t>(-ASeconds))
        throw EConvertError(STimeConvertError);
    return static_cast<std::int32_t>(ASeconds);
}

// Removes the text up to the next separator, and the separator. Gives its number, 0 for none.
std::int64_t TakeNumber(std::u16string_view& AText, char16_t ASeparator) {
    const std::size_t End = std::min(AText.find(ASeparator), AText.size());
    const std::u16string_view Piece = AText.substr(0, End);
    AText.remove_prefix(std::min(End + 1, AText.size()));
    return Piece.empty() ? 0 : detail::DateNumber(Piece);
}

std::int64_t ReadTimeOfDay(std::u16string_view AText, bool AWithSeconds, char16_t ASeparator) {
    if (!AText.empty() && AText.back() == ASeparator)
        AText.remove_suffix(1);
    std::uint16_t Hour, Minute, Second, MSec;
    try {
        DecodeTime(StrToTime(AText.empty() ? u"0" : AText), Hour, Minute, Second, MSec);
    } catch (const Exception&) {
        throw Exception(STimeDecodeError);
    }
    return Hour * cSecsPerHour + Minute * 60 + (AWithSeconds ? Second : 0);
}

std::int64_t ReadHoursAndMinutes(std::u16string_view AText, char16_t ASeparator) {
    const std::int64_t Hours = TakeNumber(AText, ASeparator);
    const std::int64_t Minutes = TakeNumber(AText, ASeparator);
    if (Minutes > 59)
        throw Exception(SInvalidTime);
    return Hours * cSecsPerHour + Minutes * 60;
}

std::int64_t ReadHoursToSeconds(std::u16string_view AText, char16_t ASeparator, std::int32_t AMaximum) {
    const std::int64_t Hours = TakeNumber(AText, ASeparator);
    const std::int64_t Minutes = TakeNumber(AText, ASeparator);
    const std::int64_t Seconds = TakeNumber(AText, ASeparator);
    const auto IsBelow60 = [](std::int64_t AValue) { return AValue >= 0 && AValue <= 59; };
    if (static_cast<double>(Hours) > AMaximum / static_cast<double>(cSecsPerHour) - 1 ||
        !IsBelow60(Minutes) || !IsBelow60(Seconds))
        throw EConvertError(STimeConvertError);
    return Hours * cSecsPerHour + Minutes * 60 + Seconds;
}

} // namespace

QZ_REGISTER_TYPES(TQzTimeRange, TQzTimeFormat);

constinit const TTypeInfo TTypeDescription<TQzTimeRange>::Info =
    DescribeEnum<TQzTimeRange>(u"TQzTimeRange", cUnit, cRanges);
constinit const TTypeInfo TTypeDescription<TQzTimeFormat>::Info =
    DescribeEnum<TQzTimeFormat>(u"TQzTimeFormat", cUnit, cFormats);

UnicodeString QzTimeToStr(double ASeconds, bool AWithSeconds) {
    constexpr double cMost = static_cast<double>(std::int64_t{1} << 62);
    const double Rounded = std::nearbyint(std::fabs(ASeconds));
    if (!(Rounded <= cMost))
        throw EConvertError(STimeDecodeError);
    const auto Seconds = static_cast<std::int64_t>(Rounded);
    const char16_t Separator = DefaultFormatSettings().TimeSeparator;
    UnicodeString Result = ASeconds < 0 ? u"-" : u"";
    Result += IntToStr(Seconds / cSecsPerHour);
    Result += Separator;
    AppendTwoDigits(Result, Seconds / 60 % 60);
    if (AWithSeconds) {
        Result += Separator;
        AppendTwoDigits(Result, Seconds % 60);
    }
    return Result;
}

std::int32_t QzStrToTimeToInt(const TStringArg& AText, bool AWithSeconds, TQzTimeRange ARange,
                              TQzTimeFormat AFormat, std::int32_t AMaximum) {
    std::u16string_view Text = AText;
    const bool IsNegative = Text.starts_with(u'-');
    if (IsNegative)
        Text.remove_prefix(1);
    const char16_t Separator = DefaultFormatSettings().TimeSeparator;
    std::int64_t Result = 0;
    if (ARange == trEndTime && Text.starts_with(u"24"))
        Result = 24 * cSecsPerHour;
    else if (ARange != trDuration)
        Result = ReadTimeOfDay(Text, AWithSeconds, Separator);
    else if (Text.empty())
        Result = 0;
    else if (AFormat == tfHourMin)
        Result = ReadHoursAndMinutes(Text, Separator);
    else if (AFormat == tfHourMinSec)
        Result = ReadHoursToSeconds(Text, Separator, AMaximum);
    return Checked(IsNegative ? -Result : Result);
}

} // namespace qz
