#include <qz/platform/TimeZone.h>

#include <algorithm>
#include <cstring>
#include <string_view>

#include <windows.h>

#include <qz/platform/Module.h>
#include <qz/platform/windows/WideText.h>
#include <qz/platform/windows/ZoneYears.h>

namespace qz::platform {

namespace {

using TEffectiveYears = DWORD(WINAPI*)(const DYNAMIC_TIME_ZONE_INFORMATION*, DWORD*, DWORD*);

struct TYears {
    DWORD First;
    DWORD Last;
};

// It came with Windows 8.
TEffectiveYears FindEffectiveYears() {
    constexpr const char* cName = "GetDynamicTimeZoneInformationEffectiveYears";
    void* Result = FindModuleFunction(u"kernelbase.dll", cName);
    return reinterpret_cast<TEffectiveYears>(Result != nullptr ? Result
                                                               : FindModuleFunction(u"advapi32.dll", cName));
}

// The years that have rules of their own, and one on either side, whose rules hold for all beyond.
TYears YearsOf(const DYNAMIC_TIME_ZONE_INFORMATION& AZone) {
    static const TEffectiveYears AskYears = FindEffectiveYears();
    if (AskYears == nullptr)
        return {1970, 2040}; // more than any zone has
    TYears Result{};
    if (AskYears(&AZone, &Result.First, &Result.Last) != ERROR_SUCCESS || Result.First < 1602 ||
        Result.Last > 9998 || Result.First > Result.Last)
        return {2000, 2000}; // all are alike
    return {Result.First - 1, Result.Last + 1};
}

TZoneDay DayOf(const SYSTEMTIME& ADay) {
    TZoneDay Result;
    if (ADay.wMonth < 1 || ADay.wMonth > 12)
        return Result;
    Result.Month = static_cast<std::uint8_t>(ADay.wMonth);
    const int Hour = std::min<int>(ADay.wHour, 24); // of a damaged registry
    const int Minute = std::min<int>(ADay.wMinute, 59);
    const int Second = std::min<int>(ADay.wSecond, 59);
    Result.MSecs = ((Hour * 60 + Minute) * 60 + Second) * 1000 + std::min<int>(ADay.wMilliseconds, 999);
    if (ADay.wYear == 0) {
        Result.Form = TZoneDayForm::zdWeekday;
        Result.Week = static_cast<std::uint8_t>(ADay.wDay);
        Result.Weekday = static_cast<std::uint8_t>(ADay.wDayOfWeek);
    } else { // of one year only, as which the rule is taken
        Result.Form = TZoneDayForm::zdDate;
        Result.Day = ADay.wDay;
    }
    return Result;
}

constexpr std::int64_t cMostMinutes = 26 * 60 - 1;

std::uint16_t NumberOf(std::int64_t ABias, bool AIsDaylight, const WCHAR* AName,
                       std::vector<TZoneKind>& AKinds) {
    const std::int64_t Minutes = std::clamp<std::int64_t>(ABias, -cMostMinutes, cMostMinutes);
    const TZoneKind Kind{static_cast<std::int32_t>(-Minutes * 60), AIsDaylight,
                         std::u16string(detail::FromWide(AName))};
    std::size_t Result = 0;
    while (Result < AKinds.size() && AKinds[Result] != Kind)
        ++Result;
    if (Result == AKinds.size())
        AKinds.push_back(Kind);
    return static_cast<std::uint16_t>(Result);
}

void AddYear(DWORD AYear, const TIME_ZONE_INFORMATION& AInfo, TSystemZone& AZone) {
    TZoneRule Rule{.FirstYear = static_cast<std::int32_t>(AYear),
                   .Standard = NumberOf(std::int64_t{AInfo.Bias} + AInfo.StandardBias, false,
                                        AInfo.StandardName, AZone.Kinds),
                   .Daylight = 0,
                   .ToStandard = DayOf(AInfo.StandardDate),
                   .ToDaylight = DayOf(AInfo.DaylightDate)};
    Rule.Daylight = Rule.HasDaylight()
        ? NumberOf(std::int64_t{AInfo.Bias} + AInfo.DaylightBias, true, AInfo.DaylightName, AZone.Kinds)
        : Rule.Standard;
    if (!AZone.Rules.empty()) {
        TZoneRule Before = AZone.Rules.back();
        Before.FirstYear = Rule.FirstYear;
        if (Before == Rule)
            return;
    }
    AZone.Rules.push_back(Rule);
}

} // namespace

namespace detail {

TSystemZone ReadZoneYears(const DYNAMIC_TIME_ZONE_INFORMATION& AZone) {
    TSystemZone Result;
    Result.Id = FromWide(AZone.TimeZoneKeyName[0] != 0 ? AZone.TimeZoneKeyName : AZone.StandardName);
    DYNAMIC_TIME_ZONE_INFORMATION Zone = AZone; // which the system does not promise to leave alone
    const TYears Years = YearsOf(AZone);
    for (DWORD Year = Years.First; Year <= Years.Last; ++Year) {
        TIME_ZONE_INFORMATION Info{};
        if (AZone.DynamicDaylightTimeDisabled ||
            !GetTimeZoneInformationForYear(static_cast<USHORT>(Year), &Zone, &Info))
            std::memcpy(&Info, &AZone, sizeof Info); // the longer record begins as the other
        AddYear(Year, Info, Result);
    }
    return Result;
}

} // namespace detail

TResult<TSystemZone> ReadSystemZone() {
    DYNAMIC_TIME_ZONE_INFORMATION Zone{};
    if (GetDynamicTimeZoneInformation(&Zone) == TIME_ZONE_ID_INVALID) {
        std::memset(&Zone, 0, sizeof Zone);
        std::memcpy(Zone.StandardName, L"UTC", sizeof L"UTC");
    }
    return detail::ReadZoneYears(Zone);
}

std::string SystemZoneStamp() {
    DYNAMIC_TIME_ZONE_INFORMATION Zone;
    std::memset(&Zone, 0, sizeof Zone);
    GetDynamicTimeZoneInformation(&Zone);
    return {reinterpret_cast<const char*>(&Zone), sizeof Zone};
}

} // namespace qz::platform
