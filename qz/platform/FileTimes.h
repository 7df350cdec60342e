// When a file was made, written and read.
//
//     const TResult<TFileTimes> Times = ReadFileTimes(u"app.log");
//     const bool HasChanged = Times && Times->LastWrite > Times->Created;
//
// Times are steps of 100 nanoseconds since 1601-01-01 00:00:00 UTC, those that no such number can tell the nearest one.
// Paths are as in Files.h. Any thread.
//
// Linux keeps the time at which a file was made, but lets nobody change it. A time that was set is kept beside it, in
// the extended attribute "user.qzcommon.created": three decimal numbers, the time set, the number of the file in its
// file system, and the time at which the system made the file (0 where it keeps none). Who reads the times believes the
// attribute only while the last two are those of the file. So a copy made with its attributes has a time of its own, as
// a copy on Windows has. Where a file system keeps no such time, the earlier one of the last changes of the content and
// of the record stands for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <qz/platform/Error.h>
#include <qz/platform/Export.h>

namespace qz::platform {

struct TFileTimes {
    std::int64_t Created;
    std::int64_t LastWrite;
    std::int64_t LastAccess;
    bool IsDirectory;
};

// Needs no right on the file itself, but for a time that was set: Linux tells that to who may read the file, and to others
// when the system made it. A link is followed on Linux and tells its own times on Windows. Windows refuses a pattern, such
// as "*.txt", by ERROR_INVALID_NAME.
QZ_API TResult<TFileTimes> ReadFileTimes(std::u16string_view APath);

// Sets the time at which a file, no directory, was made. Links are followed. Linux needs the rights to read and to write
// the file, and a file system that keeps extended attributes: else EACCES, EROFS, ENOTSUP and the like. A time that does
// not come back gives EIO.
QZ_API TResult<> SetFileCreated(std::u16string_view APath, std::int64_t ATime);

// Fails for a time before 1601, by the number that the system has for a bad argument.
QZ_API TResult<> CheckFileTime(std::int64_t ATime) noexcept;

// The time on the wall clock by a rule that the system has for times of files alone: Windows adds the offset of now, so
// that a moment on the other side of a change of daylight saving time is an hour off. Nothing on Linux, where the
// zone's own rules hold, and for a time before 1601.
QZ_API std::optional<std::int64_t> LocalFileTime(std::int64_t ATime) noexcept;

} // namespace qz::platform
