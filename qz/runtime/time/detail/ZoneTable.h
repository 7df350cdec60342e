// A time zone prepared for look-ups: the offset at a moment of UTC or of local time.
//
//     const TZoneTable Table(*platform::ReadSystemZone());
//     std::int64_t Local = Utc + Table.AtUtc(Utc).Offset;
//
// Times are milliseconds since 1899-12-30 00:00, as in TDateTime, of the years 1 to 9999. Never changes once
// made, so that any thread may ask.
#pragma once

#include <cstdint>
#include <vector>

#include <qz/platform/TimeZone.h>
#include <qz/runtime/time/ZoneYearDay.h>

namespace qz::detail {

inline constexpr std::int64_t cMSecsPerDay = MSecsPerDay;

// As long as one offset holds.
struct TZonePeriod {
    std::int64_t FromUtc;
    // The local times that this period alone has: not those that the clock skips or shows twice at its ends.
    std::int64_t FromLocal;
    std::int64_t ToLocal;
    std::int32_t Offset; // milliseconds to add to UTC
    std::uint16_t Kind;
    bool IsDaylight;
};

// The periods that have a local time: one, two, or none (null). Of two, Standard is the one of standard time;
// where both or neither are, it is the one with the lower offset.
struct TZoneMatch {
    const TZonePeriod* Standard = nullptr;
    const TZonePeriod* Daylight = nullptr;
};

// The days on which a year changes to either time, as the local clock showed it until then: an occurrence of
// a weekday, 5 for the last. All 0 in a year without the two changes.
struct TZoneYear {
    TZoneYearDay ToStandard;
    TZoneYearDay ToDaylight;
};

class QZ_API TZoneTable {
public:
    explicit TZoneTable(platform::TSystemZone AZone);
    TZoneTable(TZoneTable&&) noexcept = default;

    const platform::TSystemZone& Zone() const noexcept { return FZone; }

    const TZonePeriod& AtUtc(std::int64_t AUtc) const noexcept { return FPeriods[IndexAt(Folded(AUtc))]; }
    TZoneMatch AtLocal(std::int64_t ALocal) const noexcept {
        const std::int64_t Local = Folded(ALocal);
        const TZonePeriod& Near = FPeriods[IndexAt(Local)];
        if (Local >= Near.FromLocal && Local < Near.ToLocal) [[likely]]
            return {&Near, &Near};
        return Search(Local);
    }
    TZoneYear YearAt(int AYear) const;

private:
    // The rules repeat themselves after 400 years, which are whole weeks.
    std::int64_t Folded(std::int64_t ATime) const noexcept {
        return ATime >= FFoldFrom && ATime < FFoldTo ? ATime : FoldedFar(ATime);
    }
    std::int64_t FoldedFar(std::int64_t ATime) const noexcept;
    std::size_t IndexAt(std::int64_t AUtc) const noexcept {
        if (AUtc < FFirstChange)
            return 0;
        const auto Slot = static_cast<std::size_t>(AUtc - FFirstChange) >> FSlotBits;
        if (Slot + 1 >= FSlots.size())
            return FPeriods.size() - 1;
        std::size_t Index = FSlots[Slot];
        for (std::size_t Last = FSlots[Slot + 1]; Index < Last;) {
            const std::size_t Middle = (Index + Last + 1) / 2;
            if (FPeriods[Middle].FromUtc <= AUtc)
                Index = Middle;
            else
                Last = Middle - 1;
        }
        return Index;
    }
    TZoneMatch Search(std::int64_t ALocal) const noexcept;
    void MakeSlots();

    std::int64_t FFoldFrom;
    std::int64_t FFoldTo;
    std::int64_t FFirstChange;         // when the second period begins
    unsigned FSlotBits = 32;           // 50 days
    std::vector<TZonePeriod> FPeriods; // the first has no beginning, the last no end
    std::vector<std::uint32_t> FSlots; // the period at the beginning of each slot of time
    platform::TSystemZone FZone;
};

// The moment of such a day in a year, in the local time of the rule. The day must exist.
QZ_API std::int64_t MomentInYear(const platform::TZoneDay& ADay, int AYear) noexcept;

} // namespace qz::detail
