// The time zone that the system is set to, as plain data: what is added to UTC, and when that changes.
//
//     const std::string Stamp = SystemZoneStamp();
//     const TSystemZone Zone = ReadSystemZone();       // anew only when the stamp is another
//
// Some systems list every change there ever was, some know yearly rules; the data holds both. Reading it looks at files
// and the environment (Linux) or the registry (Windows): keep the result.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <qz/platform/Export.h>

namespace qz::platform {

struct TZoneKind {
    std::int32_t Offset; // seconds to add to UTC
    bool IsDaylight; // what the system calls daylight saving time, which may also lie behind standard time
    std::u16string Name; // "CEST", or a longer name on Windows

    friend bool operator==(const TZoneKind&, const TZoneKind&) = default;
};

// From a moment on, seconds since 1970-01-01 UTC, the kind with that number holds.
struct TZoneChange {
    std::int64_t From;
    std::uint16_t Kind;

    friend bool operator==(const TZoneChange&, const TZoneChange&) = default;
};

enum class TZoneDayForm : std::uint8_t {
    zdNone,      // there is no such day
    zdWeekday,   // a weekday of a month: the first to fourth, 5 for the last
    zdDate,      // a day of a month
    zdDayOfYear, // the day of the year, from 0
    zdJulian     // the day of the year, from 1, where 29 February is not counted and cannot be told
};

// A day of each year and a time in it, which may lie outside that day.
struct TZoneDay {
    TZoneDayForm Form = TZoneDayForm::zdNone;
    std::uint8_t Month = 0;   // 1 to 12
    std::uint8_t Week = 0;    // 1 to 5
    std::uint8_t Weekday = 0; // 0 Sunday to 6 Saturday
    std::uint16_t Day = 0;
    std::int32_t MSecs = 0;

    friend bool operator==(const TZoneDay&, const TZoneDay&) = default;
};

// The rule of the years from FirstYear until the next rule. The days are told in the local time that they end. Without
// either day, standard time holds all the year.
struct TZoneRule {
    std::int32_t FirstYear;
    std::uint16_t Standard; // numbers of kinds
    std::uint16_t Daylight;
    TZoneDay ToStandard;
    TZoneDay ToDaylight;

    bool HasDaylight() const noexcept {
        return ToStandard.Form != TZoneDayForm::zdNone && ToDaylight.Form != TZoneDayForm::zdNone;
    }
    friend bool operator==(const TZoneRule&, const TZoneRule&) = default;
};

// The first rule holds for earlier years too.
constexpr std::int32_t cAnyYear = std::numeric_limits<std::int32_t>::min();

// The changes hold up to the last of them, and from there on the rules; without changes the rules hold always. Without
// rules the last kind stays. Offsets are below 26 hours, changes and first years rise, numbers of kinds are valid.
struct TSystemZone {
    std::u16string Id; // "Europe/Paris", or the key of the zone on Windows
    std::vector<TZoneKind> Kinds;
    std::uint16_t FirstKind = 0; // before the first change
    std::vector<TZoneChange> Changes;
    std::vector<TZoneRule> Rules;

    friend bool operator==(const TSystemZone&, const TSystemZone&) = default;
};

// What the zone is set to now. Without a readable setting it is UTC. Any thread; on Linux the environment must not be
// changed meanwhile but by SetEnvironment. May raise std::bad_alloc.
QZ_API TSystemZone ReadSystemZone();

// Bytes that change whenever the setting does. As for ReadSystemZone.
QZ_API std::string SystemZoneStamp();

} // namespace qz::platform
