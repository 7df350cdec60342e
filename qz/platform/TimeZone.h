// The system's time zone as plain data: the offsets from UTC, and when they change.
//
//     const std::string Stamp = SystemZoneStamp();
//     if (const TResult<TSystemZone> Zone = ReadSystemZone())   // again only when the stamp changes
//         Use(*Zone);
//
// The data holds a list of changes, yearly rules, or both. Reading it accesses files and the environment
// (Linux) or the registry (Windows): keep the result.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <qz/platform/Error.h>
#include <qz/platform/Export.h>

namespace qz::platform {

struct TZoneKind {
    std::int32_t Offset; // seconds to add to UTC
    bool IsDaylight;     // daylight saving time, as the system defines it; may be behind standard time
    std::u16string Name; // "CEST", or a longer name on Windows

    friend bool operator==(const TZoneKind&, const TZoneKind&) = default;
};

// Kind number Kind applies from this moment on, in seconds since 1970-01-01 UTC.
struct TZoneChange {
    std::int64_t From;
    std::uint16_t Kind;

    friend bool operator==(const TZoneChange&, const TZoneChange&) = default;
};

enum class TZoneDayForm : std::uint8_t {
    zdNone,      // no day
    zdWeekday,   // a weekday of a month: the first to fourth, 5 for the last
    zdDate,      // a day of a month
    zdDayOfYear, // the day of the year, from 0
    zdJulian     // the day of the year from 1, not counting 29 February
};

// A yearly day and a time relative to its start, which may lie outside that day.
struct TZoneDay {
    TZoneDayForm Form = TZoneDayForm::zdNone;
    std::uint8_t Month = 0;   // 1 to 12
    std::uint8_t Week = 0;    // 1 to 5
    std::uint8_t Weekday = 0; // 0 Sunday to 6 Saturday
    std::uint16_t Day = 0;
    std::int32_t MSecs = 0;

    friend bool operator==(const TZoneDay&, const TZoneDay&) = default;
};

// The rule for the years from FirstYear until the next rule. Each day is in the local time that ends there.
// If either day is missing, standard time applies all year.
struct TZoneRule {
    std::int32_t FirstYear;
    std::uint16_t Standard; // indexes of Kinds
    std::uint16_t Daylight;
    TZoneDay ToStandard;
    TZoneDay ToDaylight;

    bool HasDaylight() const noexcept {
        return ToStandard.Form != TZoneDayForm::zdNone && ToDaylight.Form != TZoneDayForm::zdNone;
    }
    friend bool operator==(const TZoneRule&, const TZoneRule&) = default;
};

// As FirstYear: the rule has no first year.
constexpr std::int32_t cAnyYear = std::numeric_limits<std::int32_t>::min();

// The changes apply until the last of them, then the rules. Without changes the rules always apply; without
// rules the last kind stays. Offsets are below 26 hours, changes and first years ascend, kind indexes are
// valid.
struct TSystemZone {
    std::u16string Id; // "Europe/Paris", or the key of the zone on Windows
    std::vector<TZoneKind> Kinds;
    std::uint16_t FirstKind = 0; // before the first change
    std::vector<TZoneChange> Changes;
    std::vector<TZoneRule> Rules;

    friend bool operator==(const TSystemZone&, const TSystemZone&) = default;
};

// The current setting; UTC, also as the Id, for a setting without readable data. Fails if the data exists but
// cannot be read now, as without a free file descriptor. Any thread; on Linux only SetEnvironment may change
// the environment meanwhile. May raise std::bad_alloc.
QZ_API TResult<TSystemZone> ReadSystemZone();

// Bytes that change whenever the setting does. Otherwise as ReadSystemZone.
QZ_API std::string SystemZoneStamp();

} // namespace qz::platform
