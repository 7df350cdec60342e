#include "platform/FileTimes.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <ctime>
#include <limits>
#include <optional>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include "platform/linux/NativeText.h"

namespace qz::platform {

namespace {

constexpr const char* cAttribute = "user.qzcommon.created";
constexpr int64_t cStepsPerSecond = 10'000'000;
constexpr int64_t cUnixEpochSeconds = 11'644'473'600; // 1970-01-01
constexpr size_t cLongestAttribute = 3 * 20 + 2;

bool Outcome(TError& AError, bool AOk) {
    AError.Code = AOk ? 0 : errno;
    return AOk;
}

bool Fail(TError& AError, int ACode) noexcept {
    AError.Code = ACode;
    return false;
}

int64_t StepsOf(const struct statx_timestamp& ATime) {
    return (ATime.tv_sec + cUnixEpochSeconds) * cStepsPerSecond + ATime.tv_nsec / 100;
}

bool StatusOf(const std::string& APath, struct statx& AStatus) {
    constexpr unsigned cWanted = STATX_BASIC_STATS | STATX_BTIME;
    return statx(AT_FDCWD, APath.c_str(), AT_STATX_SYNC_AS_STAT, cWanted, &AStatus) == 0;
}

// When the system made the file, 0 where it does not keep that.
int64_t BirthOf(const struct statx& AStatus) {
    const bool IsKept = (AStatus.stx_mask & STATX_BTIME) != 0 && AStatus.stx_btime.tv_sec != 0;
    return IsKept ? StepsOf(AStatus.stx_btime) : 0;
}

// The numbers of the attribute: the time set, and those that tell the file.
using TNote = std::array<int64_t, 3>;

std::optional<TNote> ParseNote(std::string_view AText) {
    TNote Result;
    const char* Place = AText.data();
    const char* const End = Place + AText.size();
    for (int64_t& Number : Result) {
        if (&Number != Result.data() && (Place == End || *Place++ != ' '))
            return std::nullopt;
        const auto [Next, Failure] = std::from_chars(Place, End, Number);
        if (Failure != std::errc())
            return std::nullopt;
        Place = Next;
    }
    return Place == End && Result[0] >= 0 ? std::optional(Result) : std::nullopt;
}

std::optional<int64_t> NotedTime(const std::string& APath, const struct statx& AStatus) {
    char Buffer[cLongestAttribute];
    const ssize_t Length = getxattr(APath.c_str(), cAttribute, Buffer, sizeof Buffer);
    if (Length < 0)
        return std::nullopt;
    const std::optional<TNote> Note = ParseNote({Buffer, static_cast<size_t>(Length)});
    const bool IsOfThisFile =
        Note && (*Note)[1] == static_cast<int64_t>(AStatus.stx_ino) && (*Note)[2] == BirthOf(AStatus);
    return IsOfThisFile ? std::optional((*Note)[0]) : std::nullopt;
}

} // namespace

bool ReadFileTimes(std::u16string_view APath, TFileTimes& ATimes, TError& AError) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    struct statx Status;
    if (!Path)
        return Fail(AError, EINVAL);
    if (!StatusOf(*Path, Status))
        return Outcome(AError, false);
    ATimes.LastWrite = StepsOf(Status.stx_mtime);
    ATimes.LastAccess = StepsOf(Status.stx_atime);
    ATimes.IsDirectory = S_ISDIR(Status.stx_mode);
    if (const std::optional<int64_t> Noted = NotedTime(*Path, Status))
        ATimes.Created = *Noted;
    else if (const int64_t Birth = BirthOf(Status))
        ATimes.Created = Birth;
    else
        ATimes.Created = std::min(ATimes.LastWrite, StepsOf(Status.stx_ctime));
    return Outcome(AError, true);
}

bool SetFileCreated(std::u16string_view APath, int64_t ATime, TError& AError) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    struct statx Status;
    if (!Path)
        return Fail(AError, EINVAL);
    if (!StatusOf(*Path, Status))
        return Outcome(AError, false);
    if (S_ISDIR(Status.stx_mode))
        return Fail(AError, EISDIR);
    if (!CheckFileTime(ATime, AError))
        return false;
    const std::string Note = std::to_string(ATime) + ' ' +
        std::to_string(static_cast<int64_t>(Status.stx_ino)) + ' ' + std::to_string(BirthOf(Status));
    return Outcome(AError, setxattr(Path->c_str(), cAttribute, Note.data(), Note.size(), 0) == 0);
}

bool CheckFileTime(int64_t ATime, TError& AError) noexcept {
    AError.Code = ATime < 0 ? EINVAL : 0;
    return ATime >= 0;
}

bool ToLocalFileTime(int64_t ATime, int64_t& ALocal, TError& AError) {
    if (!CheckFileTime(ATime, AError))
        return false;
    const time_t Moment = ATime / cStepsPerSecond - cUnixEpochSeconds;
    tm Parts{};
    tzset(); // the zone may have been set anew
    if (localtime_r(&Moment, &Parts) == nullptr)
        return Outcome(AError, false);
    const int64_t Offset = Parts.tm_gmtoff * cStepsPerSecond;
    if (ATime > std::numeric_limits<int64_t>::max() - std::max<int64_t>(Offset, 0))
        return Fail(AError, EINVAL);
    ALocal = ATime + Offset;
    return true;
}

} // namespace qz::platform
