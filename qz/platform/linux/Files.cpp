#include <qz/platform/Files.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <qz/platform/detail/ReadAll.h>
#include <qz/platform/linux/FileSharing.h>
#include <qz/platform/linux/NativeEnvironment.h>
#include <qz/platform/linux/NativeFile.h>
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

namespace {

class TFile {
public:
    TFile(const char* APath, int AFlags, mode_t AMode = 0) noexcept
        : FHandle(detail::OpenNative(APath, AFlags, AMode)) {}
    TFile(const TFile&) = delete;
    TFile& operator=(const TFile&) = delete;
    ~TFile() { Close(); }

    bool IsOpen() const noexcept { return FHandle >= 0; }
    int Handle() const noexcept { return FHandle; }

    // False when what was written did not arrive.
    bool Close() noexcept {
        const int Handle = std::exchange(FHandle, -1);
        // An interrupted close has closed nevertheless.
        return Handle < 0 || close(Handle) == 0 || errno == EINTR;
    }

private:
    int FHandle;
};

std::optional<struct stat> StatusOf(std::u16string_view APath) {
    struct stat Status;
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    if (!Path || stat(Path->c_str(), &Status) != 0)
        return std::nullopt;
    return Status;
}

using TPieces = std::span<const std::span<const std::byte>>;

bool WriteAll(int AFile, TPieces APieces) {
    std::size_t Done = 0;
    return std::ranges::all_of(APieces, [&](auto APiece) { return detail::WriteAll(AFile, APiece, Done); });
}

TResult<> WriteInPlace(const char* APath, TPieces APieces) {
    // Made only where a link leads to nothing: some systems refuse to make what others own.
    const bool IsThere = access(APath, F_OK) == 0;
    TFile File(APath, O_WRONLY | O_NOCTTY | (IsThere ? 0 : O_CREAT), 0666);
    if (File.IsOpen() && detail::IsDenied(File.Handle(), TFileAccess::Write))
        return TError(ETXTBSY);
    struct stat Status;
    const bool Ok = File.IsOpen() && fstat(File.Handle(), &Status) == 0 &&
        (!S_ISREG(Status.st_mode) || ftruncate(File.Handle(), 0) == 0) && WriteAll(File.Handle(), APieces);
    return ResultOf(Ok && File.Close());
}

// A name beside APath that no other thread or process uses.
std::string NameBeside(const std::string& APath) {
    static std::atomic<unsigned> Counter{0};
    const std::size_t Slash = APath.rfind('/');
    const std::string Directory = Slash == std::string::npos ? std::string() : APath.substr(0, Slash + 1);
    return Directory + ".qz" + std::to_string(getpid()) + "-" + std::to_string(++Counter) + ".tmp";
}

// An attribute of the old file: the list of those who may use it, or one that a user set. False when the new
// file cannot have it.
bool TakeAttribute(int AFile, const std::string& APath, const char* AName) {
    const ssize_t Size = getxattr(APath.c_str(), AName, nullptr, 0);
    if (Size < 0)
        return errno == ENODATA || errno == ENOTSUP;
    std::vector<std::byte> Value;
    if (!detail::MakeRoom(Value, static_cast<std::size_t>(Size))) {
        errno = ENOMEM;
        return false;
    }
    const ssize_t Got = getxattr(APath.c_str(), AName, Value.data(), Value.size());
    return Got >= 0 && fsetxattr(AFile, AName, Value.data(), static_cast<std::size_t>(Got), 0) == 0;
}

bool TakeAttributes(int AFile, const std::string& APath) {
    const ssize_t Size = listxattr(APath.c_str(), nullptr, 0);
    if (Size <= 0)
        return Size == 0 || errno == ENOTSUP;
    std::vector<std::byte> Bytes;
    if (!detail::MakeRoom(Bytes, static_cast<std::size_t>(Size) + 1)) {
        errno = ENOMEM;
        return false;
    }
    char* const Names = reinterpret_cast<char*>(Bytes.data());
    const ssize_t Got = listxattr(APath.c_str(), Names, static_cast<std::size_t>(Size));
    for (const char* Name = Names; Name < Names + Got; Name += std::strlen(Name) + 1) {
        const std::string_view View(Name);
        if ((View == "system.posix_acl_access" || View.starts_with("user.")) &&
            !TakeAttribute(AFile, APath, Name))
            return false;
    }
    return Got >= 0;
}

bool DropAccessList(int AFile) {
    return fremovexattr(AFile, "system.posix_acl_access") == 0 || errno == ENODATA || errno == ENOTSUP;
}

// The owner first, as a change of owner takes rights away. Any failure but a lack of space says that the
// rights cannot be kept.
bool TakeRights(int AFile, const std::string& APath, const struct stat& AOld) {
    // A directory may have given the new file a list that the old one does not have.
    const bool Ok = fchown(AFile, AOld.st_uid, AOld.st_gid) == 0 && DropAccessList(AFile) &&
        fchmod(AFile, AOld.st_mode & 07777) == 0 && TakeAttributes(AFile, APath);
    const bool IsShort = errno == ENOSPC || errno == EDQUOT || errno == EIO || errno == ENOMEM;
    if (!Ok && !IsShort)
        errno = EPERM;
    return Ok;
}

TResult<> WriteBeside(const std::string& APath, const struct stat* AOld, TPieces APieces) {
    std::string Beside;
    std::optional<TFile> File;
    do {
        Beside = NameBeside(APath);
        File.emplace(Beside.c_str(), O_WRONLY | O_CREAT | O_EXCL, AOld != nullptr ? 0600 : 0666);
    } while (!File->IsOpen() && errno == EEXIST);
    if (!File->IsOpen())
        return TError(errno);
    const bool Ok = (AOld == nullptr || TakeRights(File->Handle(), APath, *AOld)) &&
        WriteAll(File->Handle(), APieces) && File->Close() && rename(Beside.c_str(), APath.c_str()) == 0;
    const TResult<> Result = ResultOf(Ok);
    if (!Ok)
        unlink(Beside.c_str());
    return Result;
}

bool IsWritingDenied(const char* APath) {
    const TFile File(APath, O_WRONLY | O_NOCTTY);
    return File.IsOpen() && detail::IsDenied(File.Handle(), TFileAccess::Write);
}

bool IsDots(const char* AName) {
    const std::string_view Name(AName);
    return Name == "." || Name == "..";
}

TDirEntry EntryOf(int ADirectory, const dirent& AEntry) {
    struct stat Status;
    const bool Known = fstatat(ADirectory, AEntry.d_name, &Status, 0) == 0;
    const bool IsDirectory = Known ? S_ISDIR(Status.st_mode) : AEntry.d_type == DT_DIR;
    const std::uint64_t Size = Known && !IsDirectory ? static_cast<std::uint64_t>(Status.st_size) : 0;
    return {detail::FromNative(AEntry.d_name), IsDirectory, Size};
}

} // namespace

bool FileExists(std::u16string_view APath) {
    const std::optional<struct stat> Status = StatusOf(APath);
    return Status && !S_ISDIR(Status->st_mode);
}

bool DirectoryExists(std::u16string_view APath) {
    const std::optional<struct stat> Status = StatusOf(APath);
    return Status && S_ISDIR(Status->st_mode);
}

TResult<std::vector<TDirEntry>> ListDirectory(std::u16string_view APath) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    if (!Path)
        return TError(EINVAL);
    const std::unique_ptr<DIR, int (*)(DIR*)> Directory(opendir(Path->c_str()), closedir);
    if (!Directory)
        return TError(errno);
    std::vector<TDirEntry> Entries;
    for (;;) {
        errno = 0;
        const dirent* Entry = readdir(Directory.get());
        if (Entry == nullptr)
            break;
        if (!IsDots(Entry->d_name))
            Entries.push_back(EntryOf(dirfd(Directory.get()), *Entry));
    }
    if (errno != 0)
        return TError(errno);
    return Entries;
}

std::u16string WholePath(std::u16string_view APath) {
    if (APath.starts_with(u'/'))
        return std::u16string(APath);
    const std::unique_ptr<char, decltype(&std::free)> Current(getcwd(nullptr, 0), &std::free);
    if (Current == nullptr || *Current != '/') // the directory was removed, or lies outside the root
        return std::u16string(APath);
    std::u16string Result = detail::FromNative(Current.get());
    if (Result.back() != u'/')
        Result += u'/';
    return Result.append(APath);
}

std::u16string TempDirectory() {
    std::string Path = detail::NativeEnvironment("TMPDIR").value_or("");
    while (Path.size() > 1 && Path.back() == '/')
        Path.pop_back();
    return Path.empty() ? u"/tmp" : detail::FromNative(Path);
}

TResult<> MakeDirectory(std::u16string_view APath) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    return Path ? ResultOf(mkdir(Path->c_str(), 0777) == 0) : TError(EINVAL);
}

TResult<> RemoveFile(std::u16string_view APath) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    return Path ? ResultOf(unlink(Path->c_str()) == 0) : TError(EINVAL);
}

TResult<> RemoveEmptyDirectory(std::u16string_view APath) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    return Path ? ResultOf(rmdir(Path->c_str()) == 0) : TError(EINVAL);
}

std::u16string_view PathSeparators() noexcept {
    return u"/";
}

bool FileNamesIgnoreCase() noexcept {
    return false;
}

char16_t DriveSeparator() noexcept {
    return 0;
}

TResult<> RenameEntry(std::u16string_view APath, std::u16string_view ANewPath) {
    const std::optional<std::string> Old = detail::ToNativeArgument(APath);
    const std::optional<std::string> New = detail::ToNativeArgument(ANewPath);
    if (!Old || !New)
        return TError(EINVAL);
    if (renameat2(AT_FDCWD, Old->c_str(), AT_FDCWD, New->c_str(), RENAME_NOREPLACE) == 0)
        return {};
    if (errno != EINVAL && errno != ENOSYS)
        return TError(errno);
    struct stat Status; // a file system that knows no such renaming
    if (lstat(New->c_str(), &Status) == 0)
        return TError(EEXIST);
    return ResultOf(rename(Old->c_str(), New->c_str()) == 0);
}

TResult<std::vector<std::byte>> ReadWholeFile(std::u16string_view APath) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    if (!Path)
        return TError(EINVAL);
    const TFile File(Path->c_str(), O_RDONLY | O_NOCTTY);
    struct stat Status;
    if (!File.IsOpen() || fstat(File.Handle(), &Status) != 0)
        return TError(errno);
    if (detail::IsDenied(File.Handle(), TFileAccess::Read))
        return TError(ETXTBSY);
    const auto Expected = static_cast<std::size_t>(std::max<off_t>(Status.st_size, 0));
    return detail::ReadAll(Expected, [&](std::span<std::byte> ATarget) -> TResult<std::size_t> {
        const ssize_t Got = detail::ReadSome(File.Handle(), ATarget);
        if (Got < 0)
            return TError(errno);
        return static_cast<std::size_t>(Got);
    });
}

TResult<> WriteWholeFile(std::u16string_view APath, TPieces APieces) {
    const std::optional<std::string> Path = detail::ToNativeArgument(APath);
    if (!Path)
        return TError(EINVAL);
    struct stat Old;
    const bool Exists = lstat(Path->c_str(), &Old) == 0;
    if (Exists && S_ISDIR(Old.st_mode))
        return TError(EISDIR);
    // A file with more than one name stays one file.
    if (Exists && (!S_ISREG(Old.st_mode) || Old.st_nlink > 1))
        return WriteInPlace(Path->c_str(), APieces);
    // A new file under its name would get around the write protection of the old one.
    if (Exists && faccessat(AT_FDCWD, Path->c_str(), W_OK, AT_EACCESS) != 0)
        return TError(errno);
    if (Exists && IsWritingDenied(Path->c_str()))
        return TError(ETXTBSY);
    const TResult<> Beside = WriteBeside(*Path, Exists ? &Old : nullptr, APieces);
    const bool IsLocked = Beside.Code() == EACCES || Beside.Code() == EPERM || Beside.Code() == EROFS;
    return Exists && IsLocked ? WriteInPlace(Path->c_str(), APieces) : Beside;
}

} // namespace qz::platform
