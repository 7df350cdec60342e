#include <qz/platform/FileTimes.h>

#include <optional>
#include <string>

#include <windows.h>

#include <qz/platform/windows/LongPath.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

std::int64_t StepsOf(FILETIME ATime) {
    return static_cast<std::int64_t>((std::uint64_t{ATime.dwHighDateTime} << 32) | ATime.dwLowDateTime);
}

FILETIME NativeTime(std::int64_t ATime) {
    return {.dwLowDateTime = static_cast<DWORD>(ATime & 0xFFFFFFFF),
            .dwHighDateTime = static_cast<DWORD>(ATime >> 32)};
}

// The search would take the first file that fits. The prefix of a long path is none.
bool IsPattern(std::u16string_view APath) noexcept {
    constexpr std::u16string_view cPrefix = u"\\\\?\\";
    if (APath.starts_with(cPrefix))
        APath.remove_prefix(cPrefix.size());
    return APath.find_first_of(u"*?<>\"") != std::u16string_view::npos;
}

} // namespace

TResult<TFileTimes> ReadFileTimes(std::u16string_view APath) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path || IsPattern(APath))
        return TError(ERROR_INVALID_NAME);
    WIN32_FIND_DATAW Data;
    HANDLE Search = FindFirstFileW(detail::Wide(*Path), &Data);
    if (Search == INVALID_HANDLE_VALUE)
        return TError(GetLastError());
    FindClose(Search);
    TFileTimes Times;
    Times.Created = StepsOf(Data.ftCreationTime);
    Times.LastWrite = StepsOf(Data.ftLastWriteTime);
    Times.LastAccess = StepsOf(Data.ftLastAccessTime);
    Times.IsDirectory = (Data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return Times;
}

TResult<> SetFileCreated(std::u16string_view APath, std::int64_t ATime) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return TError(ERROR_INVALID_NAME);
    HANDLE File = CreateFileW(detail::Wide(*Path), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
    if (File == INVALID_HANDLE_VALUE)
        return TError(GetLastError());
    const FILETIME Created = NativeTime(ATime);
    TResult<> Result = CheckFileTime(ATime);
    if (Result)
        Result = ResultOf(SetFileTime(File, &Created, nullptr, nullptr) != 0);
    CloseHandle(File);
    return Result;
}

TResult<> CheckFileTime(std::int64_t ATime) noexcept {
    return TError(ATime < 0 ? ERROR_INVALID_PARAMETER : 0);
}

std::optional<std::int64_t> LocalFileTime(std::int64_t ATime) noexcept {
    const FILETIME Time = NativeTime(ATime);
    FILETIME Local;
    if (ATime < 0 || FileTimeToLocalFileTime(&Time, &Local) == 0)
        return std::nullopt;
    return StepsOf(Local);
}

std::optional<TDosTime> DosTimeOf(std::int64_t ALocalTime) noexcept {
    const FILETIME Time = NativeTime(ALocalTime);
    TDosTime Result;
    if (FileTimeToDosDateTime(&Time, &Result.Date, &Result.Time) == 0)
        return std::nullopt;
    return Result;
}

} // namespace qz::platform
