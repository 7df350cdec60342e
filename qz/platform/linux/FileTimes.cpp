#include <qz/platform/FileTimes.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <limits>
#include <optional>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <qz/platform/linux/NativeFile.h>
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

namespace {

constexpr const char* cAttribute = "user.qzcommon.created";
constexpr std::int64_t cStepsPerSecond = 10'000'000;
constexpr std::int64_t cUnixEpochSeconds = 11'644'473'600; // 1970-01-01
constexpr std::size_t cLongestAttribute = 3 * 20 + 2;

std::int64_t StepsOf(const struct statx_timestamp& ATime) {
    // File systems may hold times outside the range of dates.
    constexpr std::int64_t cFarthest = std::numeric_limits<std::int64_t>::max() / cStepsPerSecond - 1;
    const std::int64_t Seconds =
        std::clamp<std::int64_t>(ATime.tv_sec, -cFarthest, cFarthest - cUnixEpochSeconds) + cUnixEpochSeconds;
    return Seconds * cStepsPerSecond + ATime.tv_nsec / 100;
}

constexpr unsigned cWanted = STATX_BASIC_STATS | STATX_BTIME;

bool StatusOf(const std::string& APath, struct statx& AStatus) {
    return statx(AT_FDCWD, APath.c_str(), AT_STATX_SYNC_AS_STAT, cWanted, &AStatus) == 0;
}

bool StatusOf(int AFile, struct statx& AStatus) {
    return statx(AFile, "", AT_STATX_SYNC_AS_STAT | AT_EMPTY_PATH, cWanted, &AStatus) == 0;
}

// When the system made the file, 0 where it does not keep that.
std::int64_t BirthOf(const struct statx& AStatus) {
    const bool IsKept = (AStatus.stx_mask & STATX_BTIME) != 0 && AStatus.stx_btime.tv_sec != 0;
    return IsKept ? StepsOf(AStatus.stx_btime) : 0;
}

// The numbers of the attribute: the time set, and two that identify the file.
using TNote = std::array<std::int64_t, 3>;

std::optional<TNote> ParseNote(std::string_view AText) {
    TNote Result;
    const char* Place = AText.data();
    const char* const End = Place + AText.size();
    for (std::int64_t& Number : Result) {
        if (&Number != Result.data() && (Place == End || *Place++ != ' '))
            return std::nullopt;
        const auto [Next, Failure] = std::from_chars(Place, End, Number);
        if (Failure != std::errc())
            return std::nullopt;
        Place = Next;
    }
    return Place == End && Result[0] >= 0 ? std::optional(Result) : std::nullopt;
}

std::optional<std::int64_t> NotedTime(const std::string& APath, const struct statx& AStatus) {
    char Buffer[cLongestAttribute];
    const ssize_t Length = getxattr(APath.c_str(), cAttribute, Buffer, sizeof Buffer);
    if (Length < 0)
        return std::nullopt;
    const std::optional<TNote> Note = ParseNote({Buffer, static_cast<std::size_t>(Length)});
    const bool IsOfThisFile =
        Note && (*Note)[1] == static_cast<std::int64_t>(AStatus.stx_ino) && (*Note)[2] == BirthOf(AStatus);
    return IsOfThisFile ? std::optional((*Note)[0]) : std::nullopt;
}

std::string NoteOf(std::int64_t ATime, const struct statx& AStatus) {
    return std::to_string(ATime) + ' ' + std::to_string(static_cast<std::int64_t>(AStatus.stx_ino)) + ' ' +
        std::to_string(BirthOf(AStatus));
}

// The system may make another file of the one that is written: an overlay copies what lies in a lower layer.
bool WriteNote(int AFile, std::int64_t ATime, std::string& ANote) {
    constexpr int cTries = 3;
    struct statx Status;
    if (!StatusOf(AFile, Status))
        return false;
    for (int Try = 0; Try < cTries; ++Try) {
        ANote = NoteOf(ATime, Status);
        if (fsetxattr(AFile, cAttribute, ANote.data(), ANote.size(), 0) != 0 || !StatusOf(AFile, Status))
            return false;
        if (NoteOf(ATime, Status) == ANote)
            return true;
    }
    errno = EIO;
    return false;
}

bool ComesBack(int AFile, const std::string& ANote) {
    char Buffer[cLongestAttribute];
    const ssize_t Length = fgetxattr(AFile, cAttribute, Buffer, sizeof Buffer);
    if (Length < 0)
        return false;
    errno = EIO;
    return std::string_view(Buffer, static_cast<std::size_t>(Length)) == ANote;
}

} // namespace

TResult<TFileTimes> ReadFileTimes(std::u16string_view APath) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    struct statx Status;
    if (!Path)
        return TError(EINVAL);
    if (!StatusOf(*Path, Status))
        return TError(errno);
    TFileTimes Times;
    Times.LastWrite = StepsOf(Status.stx_mtime);
    Times.LastAccess = StepsOf(Status.stx_atime);
    Times.IsDirectory = S_ISDIR(Status.stx_mode);
    if (const std::optional<std::int64_t> Noted = NotedTime(*Path, Status))
        Times.Created = *Noted;
    else if (const std::int64_t Birth = BirthOf(Status))
        Times.Created = Birth;
    else
        Times.Created = std::min(Times.LastWrite, StepsOf(Status.stx_ctime));
    return Times;
}

TResult<> SetFileCreated(std::u16string_view APath, std::int64_t ATime) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    struct statx Status;
    if (!Path)
        return TError(EINVAL);
    if (!StatusOf(*Path, Status))
        return TError(errno);
    if (S_ISDIR(Status.stx_mode))
        return TError(EISDIR);
    if (!S_ISREG(Status.stx_mode)) // may do anything when it is opened
        return TError(EPERM);
    if (const TResult<> Checked = CheckFileTime(ATime); !Checked)
        return Checked;
    const int File = detail::OpenNative(Path->c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (File < 0)
        return TError(errno);
    std::string Note;
    const TResult<> Result = ResultOf(WriteNote(File, ATime, Note) && ComesBack(File, Note));
    close(File);
    return Result;
}

TResult<> CheckFileTime(std::int64_t ATime) noexcept {
    return TError(ATime < 0 ? EINVAL : 0);
}

std::optional<std::int64_t> LocalFileTime(std::int64_t) noexcept {
    return std::nullopt;
}

std::optional<TDosTime> DosTimeOf(std::int64_t ALocalTime) noexcept {
    using namespace std::chrono;
    constexpr std::int64_t cStep = 2 * cStepsPerSecond;
    const seconds Time{2 * (ALocalTime / cStep + (ALocalTime % cStep > 0 ? 1 : 0)) - cUnixEpochSeconds};
    const sys_days Day = floor<days>(sys_seconds(Time));
    const year_month_day Date(Day);
    const hh_mm_ss Clock(sys_seconds(Time) - Day);
    if (Date.year() < year(1980) || Date.year() > year(2107))
        return std::nullopt;
    const unsigned Year = static_cast<unsigned>(static_cast<int>(Date.year()) - 1980);
    const auto Seconds =
        Clock.hours().count() << 11 | Clock.minutes().count() << 5 | Clock.seconds().count() / 2;
    return TDosTime{
        static_cast<std::uint16_t>(Year << 9 | unsigned{Date.month()} << 5 | unsigned{Date.day()}),
        static_cast<std::uint16_t>(Seconds)};
}

} // namespace qz::platform
