#include <qz/runtime/time/TimeZone.h>

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include <qz/platform/Module.h>
#include <qz/platform/windows/ZoneYears.h>
#include <qz/runtime/time/detail/ZoneTable.h>

// The system's records, as it lays them out.
struct TSystemTime {
    std::uint16_t Year, Month, DayOfWeek, Day, Hour, Minute, Second, Milliseconds;
};
struct _TIME_DYNAMIC_ZONE_INFORMATION {
    std::int32_t Bias;
    wchar_t StandardName[32];
    TSystemTime StandardDate;
    std::int32_t StandardBias;
    wchar_t DaylightName[32];
    TSystemTime DaylightDate;
    std::int32_t DaylightBias;
    wchar_t Key[128];
    unsigned char IsDaylightDisabled;
};
static_assert(sizeof(_TIME_DYNAMIC_ZONE_INFORMATION) == 432);

namespace qz {
namespace {

using TZone = _TIME_DYNAMIC_ZONE_INFORMATION;
using TEnum = unsigned long (*)(unsigned long AIndex, TZone* AZone);
using TForYear = int (*)(unsigned short AYear, TZone* AZone, TZone* ARule);
using TConvert = int (*)(const TZone* ARule, const TSystemTime* AFrom, TSystemTime* ATo);

template <class T> T Function(const char* AName) {
    void* Result = platform::FindModuleFunction(u"kernel32.dll", AName);
    return reinterpret_cast<T>(Result != nullptr ? Result
                                                 : platform::FindModuleFunction(u"advapi32.dll", AName));
}

TSystemTime SystemTimeOf(std::int64_t AMSecs) {
    const std::int64_t Day = (AMSecs - (AMSecs < 0 ? detail::cMSecsPerDay - 1 : 0)) / detail::cMSecsPerDay;
    TSystemTime Result{};
    DecodeDateTime(JoinDateTime({static_cast<std::int32_t>(Day),
                                 static_cast<std::int32_t>(AMSecs - Day * detail::cMSecsPerDay)}),
                   Result.Year, Result.Month, Result.Day, Result.Hour, Result.Minute, Result.Second,
                   Result.Milliseconds);
    return Result;
}

std::int64_t MSecsOf(const TSystemTime& ATime) {
    return DayNumber(ATime.Year, ATime.Month, ATime.Day) * detail::cMSecsPerDay +
        ((ATime.Hour * 60 + ATime.Minute) * 60 + ATime.Second) * 1000 + ATime.Milliseconds;
}

// The system takes the rule of the year of UTC, and we that of the local year.
bool IsNearNewYear(std::int64_t AMSecs) {
    const TSystemTime Time = SystemTimeOf(AMSecs);
    return (Time.Month == 1 && Time.Day <= 2) || (Time.Month == 12 && Time.Day >= 30);
}

class TSystemZones {
public:
    TSystemZones() {
        const auto Enum = Function<TEnum>("EnumDynamicTimeZoneInformation");
        TZone Zone{};
        for (unsigned long Index = 0; Enum != nullptr && Enum(Index, &Zone) == 0; ++Index)
            FItems.push_back(Zone);
    }
    const std::vector<TZone>& Items() const { return FItems; }
    // Whether the system knows better. Wine does not, where both changes of a year lie in one month.
    bool Agrees(const TZone& AZone, std::int64_t AUtc, std::int64_t ALocal) {
        const TSystemTime Utc = SystemTimeOf(AUtc);
        const TZone& Rule = RuleOf(AZone, Utc.Year);
        TSystemTime Local{};
        const bool IsOddYear =
            Rule.StandardDate.Month != 0 && Rule.StandardDate.Month == Rule.DaylightDate.Month;
        return FConvert(&Rule, &Utc, &Local) &&
            (IsOddYear || IsNearNewYear(AUtc) || MSecsOf(Local) == ALocal);
    }

private:
    // Begins as the record of the year; to ask for that takes its time.
    const TZone& RuleOf(const TZone& AZone, unsigned short AYear) {
        const auto [Place, IsNew] = FRules.try_emplace({AZone.Key, AYear});
        TZone Zone = AZone;
        if (IsNew && !FForYear(AYear, &Zone, &Place->second))
            throw std::runtime_error("the system does not know");
        return Place->second;
    }

    std::vector<TZone> FItems;
    std::map<std::pair<std::wstring, int>, TZone> FRules;
    TForYear FForYear = Function<TForYear>("GetTimeZoneInformationForYear");
    TConvert FConvert = Function<TConvert>("SystemTimeToTzSpecificLocalTime");
};

TEST(TimeZoneWindows, EachZoneIsThatOfTheSystem) {
    TSystemZones Zones;
    ASSERT_GT(Zones.Items().size(), 50U);
    int Changes = 0;
    for (const TZone& Zone : Zones.Items()) {
        const detail::TZoneTable Table(platform::detail::ReadZoneYears(Zone));
        const auto Check = [&](std::int64_t AUtc) {
            return Zones.Agrees(Zone, AUtc, AUtc + Table.AtUtc(AUtc).Offset);
        };
        std::int64_t Utc = DayNumber(1990, 1, 3) * detail::cMSecsPerDay;
        for (; Utc < DayNumber(2045, 1, 1) * detail::cMSecsPerDay; Utc += 25 * detail::cMSecsPerDay) {
            ASSERT_TRUE(Check(Utc)) << UnicodeString(Table.Zone().Id) << " at " << Utc;
            const detail::TZonePeriod& Next = Table.AtUtc(Utc + 25 * detail::cMSecsPerDay);
            if (&Next == &Table.AtUtc(Utc))
                continue;
            ++Changes;
            // Wine looks at the minutes of a rule alone.
            for (const int Shift : {Next.FromUtc % 1000 == 0 ? -1 : -60'000, 1})
                ASSERT_TRUE(Check(Next.FromUtc + Shift))
                    << UnicodeString(Table.Zone().Id) << " beside " << Next.FromUtc;
        }
    }
    EXPECT_GT(Changes, 1000);
}

} // namespace
} // namespace qz
