#include <qz/platform/FileTimes.h>

#include <optional>
#include <string>

#include <windows.h>

#include <qz/platform/windows/LongPath.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

bool Outcome(TError& AError, bool AOk) {
    AError.Code = AOk ? 0 : LastError();
    return AOk;
}

bool Fail(TError& AError, DWORD ACode) noexcept {
    AError.Code = static_cast<int>(ACode);
    return false;
}

int64_t StepsOf(FILETIME ATime) {
    return static_cast<int64_t>((uint64_t{ATime.dwHighDateTime} << 32) | ATime.dwLowDateTime);
}

FILETIME NativeTime(int64_t ATime) {
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

bool ReadFileTimes(std::u16string_view APath, TFileTimes& ATimes, TError& AError) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path || IsPattern(APath))
        return Fail(AError, ERROR_INVALID_NAME);
    WIN32_FIND_DATAW Data;
    HANDLE Search = FindFirstFileW(detail::Wide(*Path), &Data);
    if (Search == INVALID_HANDLE_VALUE)
        return Outcome(AError, false);
    FindClose(Search);
    ATimes.Created = StepsOf(Data.ftCreationTime);
    ATimes.LastWrite = StepsOf(Data.ftLastWriteTime);
    ATimes.LastAccess = StepsOf(Data.ftLastAccessTime);
    ATimes.IsDirectory = (Data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return Outcome(AError, true);
}

bool SetFileCreated(std::u16string_view APath, int64_t ATime, TError& AError) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return Fail(AError, ERROR_INVALID_NAME);
    HANDLE File = CreateFileW(detail::Wide(*Path), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
    if (File == INVALID_HANDLE_VALUE)
        return Outcome(AError, false);
    const FILETIME Created = NativeTime(ATime);
    const bool Ok =
        CheckFileTime(ATime, AError) && Outcome(AError, SetFileTime(File, &Created, nullptr, nullptr) != 0);
    CloseHandle(File);
    return Ok;
}

bool CheckFileTime(int64_t ATime, TError& AError) noexcept {
    AError.Code = ATime < 0 ? ERROR_INVALID_PARAMETER : 0;
    return ATime >= 0;
}

std::optional<int64_t> LocalFileTime(int64_t ATime) noexcept {
    const FILETIME Time = NativeTime(ATime);
    FILETIME Local;
    if (ATime < 0 || FileTimeToLocalFileTime(&Time, &Local) == 0)
        return std::nullopt;
    return StepsOf(Local);
}

} // namespace qz::platform
