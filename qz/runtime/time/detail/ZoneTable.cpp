#include <qz/runtime/time/detail/ZoneTable.h>

#include <algorithm>
#include <array>
#include <limits>

namespace qz::detail {

using platform::TSystemZone;
using platform::TZoneDay;
using platform::TZoneDayForm;
using platform::TZoneRule;

namespace {

constexpr std::int64_t cNever = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t cEver = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t cDay1970 = 25569;
constexpr std::int64_t cCycle = std::int64_t{146097} * cMSecsPerDay; // 400 years
constexpr int cCycleYears = 400;
constexpr std::int64_t cLongestOffset = std::int64_t{26} * 3600 * 1000;
constexpr int cUsualYear = 1970; // where a rule without beginning is counted from
constexpr std::size_t cMostSlots = 8192;

std::int64_t StartOfYear(std::int64_t AYear) noexcept {
    return DayNumber(AYear, 1, 1) * cMSecsPerDay;
}

// Right but for the first and last days of a year, where it may be the one beside it.
int YearNear(std::int64_t ATime) noexcept {
    return static_cast<int>((ATime - StartOfYear(0)) / (cCycle / cCycleYears));
}

int DaysInMonth(int AYear, int AMonth) noexcept {
    return MonthDays[IsLeapYear(AYear)][AMonth - 1];
}

struct TChange {
    std::int64_t From;
    std::uint16_t Kind;
};

// The changes of a zone in one row, from its list and its rules.
class TChanges {
public:
    explicit TChanges(const TSystemZone& AZone) : FZone(AZone), FFirstKind(AZone.FirstKind) {
        AddList();
        if (!AZone.Rules.empty() && !FListGoesOn)
            AddRules();
    }

    std::uint16_t FirstKind() const noexcept { return FFirstKind; }
    const std::vector<TChange>& Items() const noexcept { return FItems; }
    std::int64_t FoldFrom() const noexcept { return FFoldFrom; }
    std::int64_t FoldTo() const noexcept { return FFoldTo; }

private:
    void Add(std::int64_t AFrom, std::uint16_t AKind) {
        if (!FItems.empty() && FItems.back().From == AFrom)
            FItems.pop_back();
        if (AKind != (FItems.empty() ? FFirstKind : FItems.back().Kind))
            FItems.push_back({AFrom, AKind});
    }
    void AddList();
    void AddRules();
    void AddRule(const TZoneRule& ARule, std::int64_t AFrom, std::int64_t ATo, int AFirstYear, int ALastYear);
    std::vector<TChange> Events(const TZoneRule& ARule, int AFirstYear, int ALastYear) const;

    const TSystemZone& FZone;
    std::uint16_t FFirstKind;
    std::vector<TChange> FItems;
    bool FListGoesOn = false;      // after the supported years, so that no rule applies in them
    std::int64_t FListEnd = cEver; // the last change of the list, even if it changes nothing
    std::int64_t FFoldFrom = cEver;
    std::int64_t FFoldTo = cNever;
};

// Changes outside the supported years are skipped.
void TChanges::AddList() {
    const std::int64_t Earliest = StartOfYear(0) / 1000;
    const std::int64_t Latest = StartOfYear(10001) / 1000;
    constexpr std::int64_t cEpoch = cDay1970 * SecsPerDay;
    FItems.reserve(FZone.Changes.size());
    for (const platform::TZoneChange& Change : FZone.Changes) {
        FListGoesOn = Change.From >= Latest - cEpoch;
        if (FListGoesOn)
            return;
        if (Change.From < Earliest - cEpoch) {
            FFirstKind = Change.Kind;
            continue;
        }
        FListEnd = (Change.From + cEpoch) * 1000;
        Add(FListEnd, Change.Kind);
    }
}

std::vector<TChange> TChanges::Events(const TZoneRule& ARule, int AFirstYear, int ALastYear) const {
    const std::int64_t ToStandard = std::int64_t{FZone.Kinds[ARule.Daylight].Offset} * 1000;
    const std::int64_t ToDaylight = std::int64_t{FZone.Kinds[ARule.Standard].Offset} * 1000;
    std::vector<TChange> Result;
    Result.reserve(static_cast<std::size_t>(ALastYear - AFirstYear + 1) * 2);
    for (int Year = AFirstYear; Year <= ALastYear; ++Year) {
        Result.push_back({MomentInYear(ARule.ToStandard, Year) - ToStandard, ARule.Standard});
        Result.push_back({MomentInYear(ARule.ToDaylight, Year) - ToDaylight, ARule.Daylight});
    }
    // Daylight saving time that ends when the next one begins continues.
    std::sort(Result.begin(), Result.end(), [&ARule](const TChange& ALeft, const TChange& ARight) {
        return ALeft.From != ARight.From ? ALeft.From < ARight.From
                                         : ALeft.Kind == ARule.Standard && ARight.Kind == ARule.Daylight;
    });
    return Result;
}

// The rule holds from AFrom on and before ATo. The years are those whose changes may lie between, and one
// before.
void TChanges::AddRule(const TZoneRule& ARule, std::int64_t AFrom, std::int64_t ATo, int AFirstYear,
                       int ALastYear) {
    const std::vector<TChange> All =
        ARule.HasDaylight() ? Events(ARule, AFirstYear, ALastYear) : std::vector<TChange>();
    auto Next = All.begin();
    std::uint16_t Kind = ARule.Standard;
    if (Next != All.end() && Next->Kind == ARule.Standard)
        Kind = ARule.Daylight;
    for (; Next != All.end() && Next->From <= AFrom; ++Next)
        Kind = Next->Kind;
    if (AFrom == cEver)
        FFirstKind = Kind;
    else
        Add(AFrom, Kind);
    for (; Next != All.end() && Next->From < ATo; ++Next)
        Add(Next->From, Next->Kind);
}

// Years of rules are those of standard time. After the last rule's start, and before the first one's end
// where nothing is before it, there is a whole cycle, and on either side of it some more, for local times
// near its ends.
void TChanges::AddRules() {
    const auto& Rules = FZone.Rules;
    const auto Start = [&](std::size_t AIndex) {
        return StartOfYear(Rules[AIndex].FirstYear) -
            std::int64_t{FZone.Kinds[Rules[AIndex].Standard].Offset} * 1000;
    };
    const bool HasList = FListEnd != cEver;
    const int FirstYear = HasList                  ? YearNear(FListEnd)
        : Rules[0].FirstYear == platform::cAnyYear ? cUsualYear
                                                   : Rules[0].FirstYear;
    std::int64_t From = FListEnd;
    int Year = HasList ? FirstYear - 2 : FirstYear - cCycleYears - 3;
    if (!HasList)
        FFoldFrom = StartOfYear(FirstYear - cCycleYears - 1);
    for (std::size_t Index = 0; Index < Rules.size(); ++Index) {
        const bool IsLast = Index + 1 == Rules.size();
        const int LastStart = Index == 0 ? FirstYear : Rules[Index].FirstYear;
        const int LastYear = IsLast ? LastStart + cCycleYears + 4 : Rules[Index + 1].FirstYear + 1;
        const std::int64_t To = IsLast ? cNever : Start(Index + 1);
        AddRule(Rules[Index], From, To, Year, LastYear);
        if (IsLast)
            FFoldTo = StartOfYear(LastStart + cCycleYears + 3);
        else
            Year = Rules[Index + 1].FirstYear - 2;
        From = To;
    }
}

std::int64_t FirstOfWeekday(int AYear, int AMonth, int AWeekday) noexcept {
    const std::int64_t First = DayNumber(AYear, AMonth, 1);
    const std::int64_t Weekday = ((First + 6) % 7 + 7) % 7; // day 0 was a Saturday
    return First + (AWeekday - Weekday + 7) % 7;
}

std::int64_t DayInYear(const TZoneDay& ADay, int AYear) noexcept {
    switch (ADay.Form) {
    case TZoneDayForm::zdWeekday: {
        const std::int64_t MonthEnd = DayNumber(AYear, ADay.Month + 1, 1);
        std::int64_t Result =
            FirstOfWeekday(AYear, ADay.Month, ADay.Weekday) + 7 * (std::clamp<int>(ADay.Week, 1, 5) - 1);
        while (Result >= MonthEnd)
            Result -= 7;
        return Result;
    }
    case TZoneDayForm::zdDate:
        return DayNumber(AYear, ADay.Month, std::clamp<int>(ADay.Day, 1, DaysInMonth(AYear, ADay.Month)));
    case TZoneDayForm::zdDayOfYear: return DayNumber(AYear, 1, 1) + ADay.Day;
    case TZoneDayForm::zdJulian:
        return DayNumber(AYear, 1, ADay.Day) + (IsLeapYear(AYear) && ADay.Day >= 60 ? 1 : 0);
    case TZoneDayForm::zdNone: break;
    }
    return DayNumber(AYear, 1, 1);
}

// A local time as an occurrence of a weekday in its month.
TZoneYearDay YearDayOf(std::int64_t ALocal) {
    const std::int64_t DayOf1899 = (ALocal - (ALocal < 0 ? cMSecsPerDay - 1 : 0)) / cMSecsPerDay;
    const TDateTime Date = static_cast<double>(DayOf1899);
    std::uint16_t Year, Month, Day;
    DecodeDate(Date, Year, Month, Day);
    const bool IsLast = Day + 7 > DaysInMonth(Year, Month);
    return {.Month = Month,
            .Occurrence = IsLast ? 5 : (Day + 6) / 7,
            .DayOfTheWeek = DayOfTheWeek(Date),
            .Time = static_cast<double>(ALocal - DayOf1899 * cMSecsPerDay) / cMSecsPerDay};
}

} // namespace

std::int64_t MomentInYear(const TZoneDay& ADay, int AYear) noexcept {
    return DayInYear(ADay, AYear) * cMSecsPerDay + ADay.MSecs;
}

TZoneTable::TZoneTable(TSystemZone AZone) : FZone(std::move(AZone)) {
    const TChanges Changes(FZone);
    FFoldFrom = Changes.FoldFrom();
    FFoldTo = Changes.FoldTo();
    FPeriods.reserve(Changes.Items().size() + 1);
    const auto Append = [this](std::int64_t AFrom, std::uint16_t AKind) {
        const platform::TZoneKind& Kind = FZone.Kinds[AKind];
        FPeriods.push_back({AFrom, cEver, cNever, Kind.Offset * 1000, AKind, Kind.IsDaylight});
    };
    Append(cEver, Changes.FirstKind());
    for (const TChange& Change : Changes.Items())
        Append(Change.From, Change.Kind);
    // A change may be nearer to the next than the clock jumps, so that all on the one side count.
    std::int64_t Bound = cEver;
    for (std::size_t Index = 1; Index < FPeriods.size(); ++Index) {
        TZonePeriod& Each = FPeriods[Index];
        Bound = std::max(Bound, Each.FromUtc + std::max(FPeriods[Index - 1].Offset, Each.Offset));
        Each.FromLocal = Bound;
    }
    Bound = cNever;
    for (std::size_t Index = FPeriods.size() - 1; Index > 0; --Index) {
        const TZonePeriod& Each = FPeriods[Index];
        Bound = std::min(Bound, Each.FromUtc + std::min(FPeriods[Index - 1].Offset, Each.Offset));
        FPeriods[Index - 1].ToLocal = Bound;
    }
    MakeSlots();
}

void TZoneTable::MakeSlots() {
    FFirstChange = cNever;
    if (FPeriods.size() == 1)
        return;
    FFirstChange = FPeriods[1].FromUtc;
    const auto Span = static_cast<std::uint64_t>(FPeriods.back().FromUtc - FFirstChange);
    while (Span >> FSlotBits >= cMostSlots)
        ++FSlotBits;
    FSlots.resize((Span >> FSlotBits) + 2);
    std::size_t Index = 1;
    for (std::size_t Slot = 0; Slot < FSlots.size(); ++Slot) {
        const std::int64_t Start = FFirstChange + static_cast<std::int64_t>(std::uint64_t{Slot} << FSlotBits);
        while (Index + 1 < FPeriods.size() && FPeriods[Index + 1].FromUtc <= Start)
            ++Index;
        FSlots[Slot] = static_cast<std::uint32_t>(Index);
    }
}

std::int64_t TZoneTable::FoldedFar(std::int64_t ATime) const noexcept {
    if (ATime < FFoldFrom)
        return ATime + ((FFoldFrom - ATime - 1) / cCycle + 1) * cCycle;
    return ATime - ((ATime - FFoldTo) / cCycle + 1) * cCycle;
}

TZoneMatch TZoneTable::Search(std::int64_t ALocal) const noexcept {
    TZoneMatch Result;
    for (std::size_t Index = IndexAt(ALocal - cLongestOffset);
         Index < FPeriods.size() && FPeriods[Index].FromUtc <= ALocal + cLongestOffset; ++Index) {
        const TZonePeriod& Each = FPeriods[Index];
        const std::int64_t Utc = ALocal - Each.Offset;
        if (Utc < Each.FromUtc || (Index + 1 < FPeriods.size() && Utc >= FPeriods[Index + 1].FromUtc))
            continue;
        Result.Daylight = &Each; // the last, for now
        if (Result.Standard == nullptr)
            Result.Standard = &Each;
    }
    if (Result.Standard == nullptr)
        return Result;
    const bool IsSwapped = Result.Standard->IsDaylight != Result.Daylight->IsDaylight
        ? Result.Standard->IsDaylight
        : Result.Standard->Offset > Result.Daylight->Offset;
    if (IsSwapped)
        std::swap(Result.Standard, Result.Daylight);
    return Result;
}

TZoneYear TZoneTable::YearAt(int AYear) const {
    TZoneYear Result;
    const std::int64_t From = Folded(StartOfYear(AYear));
    const std::int64_t To = From + (IsLeapYear(AYear) ? 366 : 365) * cMSecsPerDay;
    bool HasStandard = false;
    bool HasDaylight = false;
    for (std::size_t Index = IndexAt(From - cLongestOffset) + 1; Index < FPeriods.size(); ++Index) {
        const TZonePeriod& Each = FPeriods[Index];
        const TZonePeriod& Before = FPeriods[Index - 1];
        const std::int64_t Local = Each.FromUtc + Before.Offset;
        if (Local >= To)
            break;
        if (Local < From || Each.IsDaylight == Before.IsDaylight)
            continue;
        if (bool& Has = Each.IsDaylight ? HasDaylight : HasStandard; !Has) {
            (Each.IsDaylight ? Result.ToDaylight : Result.ToStandard) = YearDayOf(Local);
            Has = true;
        }
    }
    return HasStandard && HasDaylight ? Result : TZoneYear();
}

} // namespace qz::detail
