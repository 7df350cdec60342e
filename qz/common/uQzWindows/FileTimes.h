// Times of files as dates.
//
//     QzSetFileCreated(u"app.log", QzLocalToUTC(Now()));
//     const TDateTime Created = QzGetFileCreated(u"app.log");     // local time, to two seconds
//
// A file time counts steps of 100 nanoseconds since 1601-01-01 00:00:00 UTC. All functions may run on any
// number of threads; platform/FileTimes.h describes how Linux stores a time that was set.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

// When the file was made, when its content was last written: local time on even seconds, the odd ones rounded
// down. 0 for a missing file, for a directory, for a pattern such as "*.txt" on Windows, and for a time
// outside the years 1980 to 2107. Windows adds the zone's offset of now, Linux the one that was in force at
// that time.
QZ_API TDateTime QzGetFileCreated(const TStringArg& AName);
QZ_API TDateTime QzGetFileLastModified(const TStringArg& AName);

// Sets when the file was made, in UTC, to the millisecond. Raises EOSError when the system refuses (no file,
// a directory, no right, on Linux a file system without extended attributes) and for a date before 1601,
// EConvertError for what is no date.
QZ_API void QzSetFileCreated(const TStringArg& AName, TDateTime ADate);

// The same moment in the other form: a step in the time zone is not taken. To the millisecond, rounded down
// in the first and to the nearest in the second. Each raises EOSError for a time before 1601 and
// EConvertError outside the years 1 to 9999.
QZ_API TDateTime QzFileTimeToDateTime(std::int64_t AFileTime);
QZ_API std::int64_t QzDateTimeToFileTime(TDateTime ADate);

} // namespace qz
