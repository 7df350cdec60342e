#include <qz/platform/FileHandle.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <qz/platform/FileLimit.h>
#include <qz/platform/linux/FileSharing.h>
#include <qz/platform/linux/NativeFile.h>
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

namespace {

// An existing file is truncated only after the sharing check.
int FlagsOf(TFileAccess AAccess, TFileCreation ACreation) {
    constexpr int cAccess[] = {O_RDONLY, O_WRONLY, O_RDWR};
    constexpr int cCreation[] = {0, O_CREAT, O_CREAT, O_CREAT | O_EXCL};
    return cAccess[static_cast<int>(AAccess) - 1] | cCreation[static_cast<int>(ACreation)] | O_NOCTTY;
}

// What has to be right about a file that has just been opened: 0, or the error.
int Settle(int AFile, TFileAccess AAccess, TFileCreation ACreation, TFileSharing ASharing) {
    struct stat Status;
    if (fstat(AFile, &Status) != 0)
        return errno;
    if (S_ISDIR(Status.st_mode))
        return EISDIR;
    if (!detail::ShareFile(AFile, AAccess, ASharing))
        return ETXTBSY;
    const bool Empties = ACreation == TFileCreation::Always && S_ISREG(Status.st_mode);
    return Empties && ftruncate(AFile, 0) != 0 ? errno : 0;
}

} // namespace

TResult<> TFileHandle::Open(std::u16string_view APath, TFileAccess AAccess, TFileCreation ACreation,
                            TFileSharing ASharing) {
    Close();
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    if (!Path)
        return TError(EINVAL);
    const int File = detail::OpenNative(Path->c_str(), FlagsOf(AAccess, ACreation));
    if (File < 0)
        return TError(errno);
    if (const int Code = Settle(File, AAccess, ACreation, ASharing); Code != 0) {
        close(File);
        return TError(Code);
    }
    FHandle = File;
    return {};
}

TResult<TFileHandle> TFileHandle::Duplicate() const {
    TFileHandle Result;
    Result.FHandle = fcntl(static_cast<int>(FHandle), F_DUPFD_CLOEXEC, 0);
    if (!Result.IsOpen())
        return TError(errno);
    return Result;
}

bool TFileHandle::Close() noexcept {
    const auto File = static_cast<int>(std::exchange(FHandle, cNone));
    // An interrupted close has closed nevertheless.
    return File < 0 || close(File) == 0 || errno == EINTR;
}

// What these change is the file, so they are not const.
// NOLINTBEGIN(readability-make-member-function-const)

TResult<std::size_t> TFileHandle::Read(std::span<std::byte> ATarget) {
    const ssize_t Got = detail::ReadSome(static_cast<int>(FHandle), ATarget);
    if (Got < 0)
        return TError(errno);
    return static_cast<std::size_t>(Got);
}

TWritten TFileHandle::Write(std::span<const std::byte> ASource) {
    TWritten Result;
    const bool Ok = detail::WriteAll(static_cast<int>(FHandle), ASource, Result.Done);
    Result.Error = ResultOf(Ok).Error();
    return Result;
}

TResult<std::int64_t> TFileHandle::Seek(std::int64_t AOffset, TFileOrigin AOrigin) {
    constexpr int cOrigins[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    const off_t Position = lseek(static_cast<int>(FHandle), AOffset, cOrigins[static_cast<int>(AOrigin)]);
    if (Position < 0)
        return TError(errno);
    return Position;
}

TResult<> TFileHandle::SetSize(std::int64_t ASize) {
    int Status = 0;
    do {
        Status = ftruncate(static_cast<int>(FHandle), ASize);
    } while (Status != 0 && errno == EINTR);
    return ResultOf(Status == 0);
}

TResult<> TFileHandle::WriteAtEnd() {
    const int Flags = fcntl(static_cast<int>(FHandle), F_GETFL);
    return ResultOf(Flags >= 0 && fcntl(static_cast<int>(FHandle), F_SETFL, Flags | O_APPEND) == 0);
}

// Past the C library's write, which costs more in a program of several threads, as it can be cancelled, and
// without the lock of the position.
TWritten TFileHandle::Append(std::span<const std::byte> ASource) {
    const auto File = static_cast<int>(FHandle);
    const long Written = syscall(SYS_pwrite64, File, ASource.data(), ASource.size(), 0L);
    TWritten Result{.Done = static_cast<std::size_t>(std::max(Written, 0L)), .Error = {}};
    if (Result.Done == ASource.size()) [[likely]]
        return Result;
    std::size_t More = 0; // a pipe has no place to write at
    const TNoLimitSignal Quiet;
    const bool Ok = detail::WriteAll(File, ASource.subspan(Result.Done), More);
    Result.Error = ResultOf(Ok).Error();
    Result.Done += More;
    return Result;
}

// A pipe that is ready takes PIPE_BUF bytes without waiting.
TWritten TFileHandle::AppendWithin(std::span<const std::byte> ASource, std::uint32_t AMilliseconds) {
    const auto File = static_cast<int>(FHandle);
    struct stat Status;
    if (fstat(File, &Status) == 0 && S_ISREG(Status.st_mode))
        return Append(ASource);
    TWritten Result;
    while (Result && Result.Done < ASource.size()) {
        pollfd Ready{File, POLLOUT, 0};
        const int Count = poll(&Ready, 1, static_cast<int>(AMilliseconds));
        if (Count > 0) {
            const TWritten Step =
                Write(ASource.subspan(Result.Done)
                          .first(std::min<std::size_t>(PIPE_BUF, ASource.size() - Result.Done)));
            Result.Done += Step.Done;
            Result.Error = Step.Error;
        } else if (Count == 0 || errno != EINTR) {
            Result.Error = TError(Count == 0 ? EAGAIN : errno);
        }
    }
    return Result;
}

void TFileHandle::DenyNothing() noexcept {
    struct flock All = {};
    All.l_type = F_UNLCK;
    All.l_whence = SEEK_SET;
    fcntl(static_cast<int>(FHandle), F_OFD_SETLK, &All);
}

bool TFileHandle::IsAt(std::u16string_view APath) const {
    struct stat Open, Named;
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    if (!Path || fstat(static_cast<int>(FHandle), &Open) != 0)
        return true;
    if (stat(Path->c_str(), &Named) != 0)
        return errno != ENOENT && errno != ENOTDIR;
    return Open.st_dev == Named.st_dev && Open.st_ino == Named.st_ino;
}

TResult<> TFileHandle::Flush() {
    // A pipe or a device has nothing to wait for.
    const bool Ok = fsync(static_cast<int>(FHandle)) == 0 || errno == EINVAL || errno == EROFS;
    return ResultOf(Ok);
}

// NOLINTEND(readability-make-member-function-const)

} // namespace qz::platform
