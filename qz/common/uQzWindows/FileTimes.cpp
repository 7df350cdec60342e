#include <qz/common/uQzWindows/FileTimes.h>

#include <qz/platform/FileTimes.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/TimeZone.h>

namespace qz {
namespace {

constexpr std::int64_t cStepsPerMSec = 10'000;

std::int64_t FileTimeOf(TDateTime ADate) {
    const TDayAndTime Parts = SplitDateTime(ADate);
    return ((Parts.Day - Day1601) * MSecsPerDay + Parts.MSecs) * cStepsPerMSec;
}

// As a date and time of DOS; 0 outside its range.
TDateTime DosTime(std::int64_t ATime) {
    const std::int64_t Utc = ATime / cStepsPerMSec + Day1601 * MSecsPerDay;
    const std::int64_t Local = platform::LocalFileTime(ATime).value_or(
        ATime + TTimeZone::Local().GetUtcOffsetMSecs(Utc) * cStepsPerMSec);
    const std::optional<platform::TDosTime> Dos = platform::DosTimeOf(Local);
    if (!Dos)
        return 0;
    return EncodeDateTime((Dos->Date >> 9) + 1980, Dos->Date >> 5 & 15, Dos->Date & 31, Dos->Time >> 11,
                          Dos->Time >> 5 & 63, (Dos->Time & 31) * 2, 0);
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
