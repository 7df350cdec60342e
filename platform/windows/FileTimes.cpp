#include "platform/FileTimes.h"

#include <optional>
#include <string>

#include <windows.h>

#include "platform/windows/LongPath.h"
#include "platform/windows/WideText.h"

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

} // namespace

bool ReadFileTimes(std::u16string_view APath, TFileTimes& ATimes, TError& AError) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
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

bool ToLocalFileTime(int64_t ATime, int64_t& ALocal, TError& AError) {
    const FILETIME Time = NativeTime(ATime);
    FILETIME Local;
    if (!CheckFileTime(ATime, AError) || !Outcome(AError, FileTimeToLocalFileTime(&Time, &Local) != 0))
        return false;
    ALocal = StepsOf(Local);
    return true;
}

} // namespace qz::platform
