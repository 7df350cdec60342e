// TTimeZone: local time and UTC, by the zone that the system is set to.
//
//     const TTimeZone& Zone = TTimeZone::Local();
//     TDateTime Shown = Zone.ToLocalTime(NowUTC());
//     TDateTime Stored = Zone.ToUniversalTime(Entered);          // raises if the clocks skipped that time
//     if (Zone.IsAmbiguousTime(Entered)) ...                     // the clocks showed it twice
//
// Right for the past and the future as far as the system knows it: on Linux every change that the zone ever
// had, on Windows the rules of each year. The setting (Linux: TZ, else /etc/localtime) is looked at every
// half minute and by Refresh; the environment must not be changed at such a moment but by
// platform::SetEnvironment. All operations may run on any number of threads, without a lock. Those that take
// a moment raise EConvertError, "Invalid date and time", for one that is no number, and where it or the
// result lies outside the years 1 to 9999. Results are exact to the millisecond.
#pragma once

#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/time/TimeSpan.h>
#include <qz/runtime/time/ZoneYearDay.h>

namespace qz {

// A local time that the clocks skipped.
QZ_PLAIN_EXCEPTION(ELocalTimeInvalid, Exception);

enum class TLocalTimeType : std::uint8_t { ltStandard, ltDaylight, ltAmbiguous, ltInvalid };
using enum TLocalTimeType;

class QZ_API TTimeZone {
public:
    TTimeZone(const TTimeZone&) = delete;
    TTimeZone& operator=(const TTimeZone&) = delete;

    // The one that is there; it follows the setting.
    static const TTimeZone& Local() noexcept;
    // Looks at the setting now. That counts for all that begins on any thread once this is done.
    static void Refresh() noexcept;

    // What is added to UTC: now, or at a local time. One that the clocks showed twice is that of standard
    // time unless daylight time is forced; where both were of one kind, that of the lower offset, or of the
    // higher if forced. For one that they skipped, ELocalTimeInvalid is raised. Forcing does nothing else.
    TTimeSpan UtcOffset() const noexcept;
    TTimeSpan GetUtcOffset(TDateTime ALocal, bool AForceDaylight = false) const;
    // The milliseconds to add to a moment of UTC, which is given in milliseconds since 1899-12-30.
    std::int64_t GetUtcOffsetMSecs(std::int64_t AUtcMSecs) const noexcept;
    TDateTime ToUniversalTime(TDateTime ALocal, bool AForceDaylight = false) const;
    TDateTime ToLocalTime(TDateTime AUniversal) const;

    // The system defines which kind is daylight saving time; in some zones it is winter time.
    TLocalTimeType GetLocalTimeType(TDateTime ALocal) const;
    bool IsStandardTime(TDateTime ALocal) const { return GetLocalTimeType(ALocal) == ltStandard; }
    bool IsDaylightTime(TDateTime ALocal) const { return GetLocalTimeType(ALocal) == ltDaylight; }
    bool IsAmbiguousTime(TDateTime ALocal) const { return GetLocalTimeType(ALocal) == ltAmbiguous; }
    bool IsInvalidTime(TDateTime ALocal) const { return GetLocalTimeType(ALocal) == ltInvalid; }

    // "Europe/Paris", or the key of the zone on Windows; empty if the system reports none.
    UnicodeString ID() const;
    // The system's name of the time at that moment: "CEST", or a longer name on Windows. Raises as
    // GetUtcOffset.
    UnicodeString GetDisplayName(TDateTime ALocal, bool AForceDaylight = false) const;

    // The days on which a year of 1 to 9999 changes to standard and to daylight time, in the time that the
    // clocks showed until then. No days (month 0) in a year that does not change to both. Raises
    // EConvertError for another year.
    void GetYearChanges(int AYear, TZoneYearDay& AToStandard, TZoneYearDay& AToDaylight) const;

private:
    TTimeZone() = default;
};

} // namespace qz

QZ_TYPE_INFO(qz::TLocalTimeType);
