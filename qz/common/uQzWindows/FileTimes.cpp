#include <qz/common/uQzWindows/FileTimes.h>

#include <qz/platform/FileTimes.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/TimeZone.h>

namespace qz {
namespace {

constexpr std::int64_t cStepsPerMSec = 10'000;
constexpr std::int64_t cDay1980 = 29221; // what DOS dates can tell
constexpr std::int64_t cDay2108 = 75972;

std::int64_t FileTimeOf(TDateTime ADate) {
    const TDayAndTime Parts = SplitDateTime(ADate);
    return ((Parts.Day - Day1601) * MSecsPerDay + Parts.MSecs) * cStepsPerMSec;
}

// As a date and time of DOS, which counts in steps of two seconds.
TDateTime DosTime(std::int64_t ATime) {
    constexpr std::int64_t cMSecsPerStep = 2000;
    std::int64_t Local = ATime / cStepsPerMSec;
    if (const std::optional<std::int64_t> Own = platform::LocalFileTime(ATime))
        Local = *Own / cStepsPerMSec;
    else
        Local += TTimeZone::Local().GetUtcOffsetMSecs(Local + Day1601 * MSecsPerDay);
    const std::int64_t MSecs = Local / cMSecsPerStep * cMSecsPerStep;
    const std::int64_t Day = MSecs / MSecsPerDay + Day1601;
    if (Day < cDay1980 || Day >= cDay2108)
        return 0;
    return JoinDateTime({static_cast<std::int32_t>(Day), static_cast<std::int32_t>(MSecs % MSecsPerDay)});
}

TDateTime TimeOfFile(const TStringArg& AName, std::int64_t platform::TFileTimes::*AWhich) {
    const platform::TResult<platform::TFileTimes> Times = platform::ReadFileTimes(AName);
    if (!Times || Times->IsDirectory)
        return 0;
    return DosTime((*Times).*AWhich);
}

void Check(const platform::TResult<>& AResult) {
    if (!AResult)
        RaiseOSError(AResult.Code());
}

} // namespace

TDateTime QzGetFileCreated(const TStringArg& AName) {
    return TimeOfFile(AName, &platform::TFileTimes::Created);
}

TDateTime QzGetFileLastModified(const TStringArg& AName) {
    return TimeOfFile(AName, &platform::TFileTimes::LastWrite);
}

void QzSetFileCreated(const TStringArg& AName, TDateTime ADate) {
    Check(platform::SetFileCreated(AName, FileTimeOf(ADate)));
}

TDateTime QzFileTimeToDateTime(std::int64_t AFileTime) {
    Check(platform::CheckFileTime(AFileTime));
    const std::int64_t MSecs = AFileTime / cStepsPerMSec;
    const std::int64_t Day = MSecs / MSecsPerDay + Day1601;
    return JoinDateTime(
        {SplitDateTime(static_cast<double>(Day)).Day, static_cast<std::int32_t>(MSecs % MSecsPerDay)});
}

std::int64_t QzDateTimeToFileTime(TDateTime ADate) {
    const std::int64_t Result = FileTimeOf(ADate);
    Check(platform::CheckFileTime(Result));
    return Result;
}

} // namespace qz
