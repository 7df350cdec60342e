#include <qz/platform/linux/FileSharing.h>

#include <cerrno>
#include <cstdint>
#include <ctime>
#include <random>

#include <fcntl.h>
#include <sys/stat.h>

namespace qz::platform::detail {

namespace {

// Four ranges of bytes, far behind what any file holds. A handle stands in a range by a lock on one of its bytes.
// Handles that can read lock the first byte, which any number of them may share; handles that can only write are
// allowed only exclusive locks, so that each takes another byte of the rest.
constexpr off_t cRangeSize = off_t{1} << 32;
constexpr off_t cFirstRange = off_t{1} << 62;

enum class TRange : std::uint8_t { Reads, Writes, DeniesReads, DeniesWrites };

constexpr off_t StartOf(TRange ARange) {
    return cFirstRange + static_cast<off_t>(ARange) * cRangeSize;
}

bool Lock(int AFile, short AType, off_t AStart, off_t ALength) {
    struct flock Where {};
    Where.l_type = AType;
    Where.l_whence = SEEK_SET;
    Where.l_start = AStart;
    Where.l_len = ALength;
    return fcntl(AFile, F_OFD_SETLK, &Where) == 0;
}

// Whether a lock was made by a program that knows nothing of the ranges, such as one on the whole file.
bool IsForeign(const struct flock& ALock) {
    return ALock.l_start < cFirstRange || ALock.l_len == 0 ||
        ALock.l_start + ALock.l_len > cFirstRange + 4 * cRangeSize;
}

// Whether another open file of this library holds a lock in the range. Behind a foreign lock none can be seen.
bool IsTaken(int AFile, TRange ARange) {
    struct flock Where {};
    Where.l_type = F_WRLCK;
    Where.l_whence = SEEK_SET;
    Where.l_start = StartOf(ARange);
    Where.l_len = cRangeSize;
    return fcntl(AFile, F_OFD_GETLK, &Where) == 0 && Where.l_type != F_UNLCK && !IsForeign(Where);
}

// Whether a place is refused to an exclusive lock because a handle of this library has it.
bool IsOccupied(int AFile, off_t APlace) {
    struct flock Where {};
    Where.l_type = F_WRLCK;
    Where.l_whence = SEEK_SET;
    Where.l_start = APlace;
    Where.l_len = 1;
    const bool IsConflict = errno == EAGAIN || errno == EACCES;
    return IsConflict && fcntl(AFile, F_OFD_GETLK, &Where) == 0 && !IsForeign(Where);
}

// False where locks are not to be had at all, or a foreign one covers the range.
bool Enter(int AFile, TRange ARange, bool ACanRead) {
    if (ACanRead)
        return Lock(AFile, F_RDLCK, StartOf(ARange), 1);
    thread_local std::minstd_rand Random{std::random_device()()};
    for (;;) {
        const auto Place = static_cast<off_t>(1 + Random());
        if (Lock(AFile, F_WRLCK, StartOf(ARange) + Place, 1))
            return true;
        if (!IsOccupied(AFile, StartOf(ARange) + Place))
            return false;
    }
}

void LeaveAll(int AFile) {
    Lock(AFile, F_UNLCK, cFirstRange, cRangeSize * 4);
}

struct TWishes {
    bool Reads;
    bool Writes;
    TFileSharing Sharing;
};

bool Announce(int AFile, const TWishes& AWishes) {
    const bool CanRead = AWishes.Reads;
    return (!AWishes.Reads || Enter(AFile, TRange::Reads, CanRead)) &&
        (!AWishes.Writes || Enter(AFile, TRange::Writes, CanRead)) &&
        (AWishes.Sharing.Read || Enter(AFile, TRange::DeniesReads, CanRead)) &&
        (AWishes.Sharing.Write || Enter(AFile, TRange::DeniesWrites, CanRead));
}

bool IsInTheWay(int AFile, const TWishes& AWishes) {
    return (AWishes.Reads && IsTaken(AFile, TRange::DeniesReads)) ||
        (AWishes.Writes && IsTaken(AFile, TRange::DeniesWrites)) ||
        (!AWishes.Sharing.Read && IsTaken(AFile, TRange::Reads)) ||
        (!AWishes.Sharing.Write && IsTaken(AFile, TRange::Writes));
}

void Wait(long AMicroseconds) {
    const timespec Time{0, AMicroseconds * 1000};
    nanosleep(&Time, nullptr);
}

} // namespace

bool ShareFile(int AFile, TFileAccess AAccess, TFileSharing ASharing) {
    struct stat Status;
    if (fstat(AFile, &Status) != 0 || !S_ISREG(Status.st_mode))
        return true;
    const TWishes Wishes{AAccess != TFileAccess::Write, AAccess != TFileAccess::Read, ASharing};
    // Every handle announces first and looks then, so that of two that exclude each other never both succeed. Both
    // may see the other and give up; hence some more tries, at moments that differ.
    constexpr int cTries = 4;
    for (int Try = 1;; ++Try) {
        if (!Announce(AFile, Wishes)) {
            LeaveAll(AFile);
            return true;
        }
        if (!IsInTheWay(AFile, Wishes))
            return true;
        LeaveAll(AFile);
        if (Try == cTries)
            return false;
        thread_local std::minstd_rand Random{std::random_device()()};
        Wait(static_cast<long>(Random() % (300u * static_cast<unsigned>(Try))));
    }
}

bool IsDenied(int AFile, TFileAccess AAccess) {
    return IsTaken(AFile, AAccess == TFileAccess::Read ? TRange::DeniesReads : TRange::DeniesWrites);
}

} // namespace qz::platform::detail
