#include <qz/platform/linux/ZoneText.h>

#include <algorithm>
#include <optional>

namespace qz::platform::detail {

namespace {

constexpr std::int32_t cHour = 3600;
constexpr std::int32_t cMostRuleHours = 167; // a week

bool IsDigit(char AChar) {
    return AChar >= '0' && AChar <= '9';
}

bool IsLetter(char AChar) {
    return (AChar >= 'A' && AChar <= 'Z') || (AChar >= 'a' && AChar <= 'z');
}

// Reads the text from the front; each step gives false, or nothing, where the text goes on otherwise.
class TReader {
public:
    explicit TReader(std::string_view AText) noexcept : FRest(AText) {}

    bool AtEnd() const noexcept { return FRest.empty(); }
    bool Skip(char AChar) noexcept {
        if (FRest.empty() || FRest.front() != AChar)
            return false;
        FRest.remove_prefix(1);
        return true;
    }
    std::optional<std::u16string> Name();
    // Seconds east of UTC; the text counts them west.
    std::optional<std::int32_t> Offset();
    std::optional<TZoneDay> Day();

private:
    std::optional<std::int32_t> Number() noexcept;
    // -1 for another one.
    std::int32_t NumberOf(std::int32_t ALeast, std::int32_t AMost) noexcept {
        const std::int32_t Result = Number().value_or(-1);
        return Result >= ALeast && Result <= AMost ? Result : -1;
    }
    // Hours, and minutes and seconds if they are there.
    std::optional<std::int32_t> Seconds(std::int32_t AMostHours) noexcept;
    bool DayItself(TZoneDay& ADay) noexcept;

    std::string_view FRest;
};

std::optional<std::int32_t> TReader::Number() noexcept {
    if (FRest.empty() || !IsDigit(FRest.front()))
        return std::nullopt;
    std::int32_t Result = 0;
    for (; !FRest.empty() && IsDigit(FRest.front()); FRest.remove_prefix(1))
        Result = std::min(Result * 10 + (FRest.front() - '0'), 9999);
    return Result;
}

std::optional<std::int32_t> TReader::Seconds(std::int32_t AMostHours) noexcept {
    const auto Hours = Number();
    if (!Hours)
        return std::nullopt;
    std::int32_t Result = std::min(*Hours, AMostHours) * cHour;
    for (const std::int32_t Unit : {60, 1}) {
        if (!Skip(':'))
            break;
        const auto Part = Number();
        if (!Part)
            return std::nullopt;
        Result += std::min(*Part, 59) * Unit;
    }
    return Result;
}

std::optional<std::u16string> TReader::Name() {
    constexpr std::size_t cLeast = 3;
    const bool IsQuoted = Skip('<');
    const auto Belongs = [IsQuoted](char AChar) {
        return IsLetter(AChar) || (IsQuoted && (IsDigit(AChar) || AChar == '+' || AChar == '-'));
    };
    const auto End = std::find_if_not(FRest.begin(), FRest.end(), Belongs);
    const std::u16string Result(FRest.begin(), End);
    FRest.remove_prefix(Result.size());
    if (Result.size() < cLeast || (IsQuoted && !Skip('>')))
        return std::nullopt;
    return Result;
}

std::optional<std::int32_t> TReader::Offset() {
    const bool IsEast = Skip('-');
    if (!IsEast)
        Skip('+');
    const auto Result = Seconds(24);
    if (!Result)
        return std::nullopt;
    return IsEast ? *Result : -*Result;
}

bool TReader::DayItself(TZoneDay& ADay) noexcept {
    if (Skip('M')) {
        const std::int32_t Month = NumberOf(1, 12);
        const std::int32_t Week = Skip('.') ? NumberOf(1, 5) : -1;
        const std::int32_t Weekday = Skip('.') ? NumberOf(0, 6) : -1;
        if (Month < 0 || Week < 0 || Weekday < 0)
            return false;
        ADay.Form = TZoneDayForm::zdWeekday;
        ADay.Month = static_cast<std::uint8_t>(Month);
        ADay.Week = static_cast<std::uint8_t>(Week);
        ADay.Weekday = static_cast<std::uint8_t>(Weekday);
        return true;
    }
    const bool IsJulian = Skip('J');
    const std::int32_t Day = NumberOf(IsJulian ? 1 : 0, 365);
    if (Day < 0)
        return false;
    ADay.Form = IsJulian ? TZoneDayForm::zdJulian : TZoneDayForm::zdDayOfYear;
    ADay.Day = static_cast<std::uint16_t>(Day);
    return true;
}

std::optional<TZoneDay> TReader::Day() {
    TZoneDay Result;
    if (!DayItself(Result))
        return std::nullopt;
    std::int32_t Time = 2 * cHour;
    if (Skip('/')) {
        const bool IsNegative = Skip('-');
        const auto Given = Seconds(cMostRuleHours);
        if (!Given)
            return std::nullopt;
        Time = IsNegative ? -*Given : *Given;
    } else if (!FRest.empty() && FRest.front() != ',') {
        return std::nullopt;
    }
    Result.MSecs = Time * 1000;
    return Result;
}

constexpr TZoneDay UsualDay(std::uint8_t AMonth, std::uint8_t AWeek) noexcept {
    return {.Form = TZoneDayForm::zdWeekday, .Month = AMonth, .Week = AWeek, .MSecs = 2 * cHour * 1000};
}

bool ReadDays(TReader& AReader, TZoneRule& ARule) {
    ARule.ToDaylight = UsualDay(3, 2);
    ARule.ToStandard = UsualDay(11, 1);
    for (TZoneDay* Day : {&ARule.ToDaylight, &ARule.ToStandard}) {
        if (AReader.AtEnd())
            return true;
        if (!AReader.Skip(','))
            return false;
        if (AReader.AtEnd())
            return true;
        const auto Given = AReader.Day();
        if (!Given)
            return false;
        *Day = *Given;
    }
    return true;
}

std::uint16_t NumberOf(const TZoneKind& AKind, std::vector<TZoneKind>& AKinds) {
    const auto Found = std::find(AKinds.begin(), AKinds.end(), AKind);
    const auto Result = static_cast<std::uint16_t>(Found - AKinds.begin());
    if (Found == AKinds.end())
        AKinds.push_back(AKind);
    return Result;
}

} // namespace

bool ReadZoneText(std::string_view AText, TSystemZone& AZone) {
    TReader Reader(AText);
    const auto Name = Reader.Name();
    const auto Offset = Name ? Reader.Offset() : std::nullopt;
    if (!Offset)
        return false;
    TZoneRule Rule{.FirstYear = cAnyYear, .Standard = 0, .Daylight = 0, .ToStandard = {}, .ToDaylight = {}};
    TZoneKind Daylight{*Offset, false, {}};
    if (!Reader.AtEnd()) {
        const auto DaylightName = Reader.Name();
        if (!DaylightName)
            return false;
        Daylight = {*Offset + cHour, true, *DaylightName};
        if (const TReader Before = Reader; const auto Given = Reader.Offset())
            Daylight.Offset = *Given;
        else
            Reader = Before;
        if (!ReadDays(Reader, Rule))
            return false;
    }
    Rule.Standard = NumberOf({*Offset, false, *Name}, AZone.Kinds);
    Rule.Daylight = Daylight.IsDaylight ? NumberOf(Daylight, AZone.Kinds) : Rule.Standard;
    AZone.Rules.push_back(Rule);
    return true;
}

} // namespace qz::platform::detail
