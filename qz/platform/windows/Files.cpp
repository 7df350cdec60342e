#include <qz/platform/Files.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>
#include <utility>

#include <windows.h>

#include <qz/platform/detail/ReadAll.h>
#include <qz/platform/windows/LongPath.h>
#include <qz/platform/windows/NativeFile.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

using detail::Wide;

constexpr std::size_t cLargestStep = std::size_t{1} << 30;
constexpr DWORD cShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class TFile {
public:
    TFile(const std::u16string& APath, DWORD AAccess, DWORD AHow, DWORD AFlags = 0) noexcept
        : FHandle(CreateFileW(Wide(APath), AAccess, cShareAll, nullptr, AHow, AFlags, nullptr)) {}
    TFile(const TFile&) = delete;
    TFile& operator=(const TFile&) = delete;
    ~TFile() { Close(); }

    bool IsOpen() const noexcept { return FHandle != INVALID_HANDLE_VALUE; }
    HANDLE Handle() const noexcept { return FHandle; }

    bool Close() noexcept {
        HANDLE Handle = std::exchange(FHandle, INVALID_HANDLE_VALUE);
        return Handle == INVALID_HANDLE_VALUE || CloseHandle(Handle) != 0;
    }

private:
    HANDLE FHandle;
};

struct TStatus {
    bool IsDirectory;
    std::uint64_t Size;
};

std::uint64_t Joined(DWORD AHigh, DWORD ALow) {
    return (std::uint64_t{AHigh} << 32) | ALow;
}

// The target of a path; follows links.
std::optional<TStatus> TargetStatus(const std::u16string& APath) {
    const TFile File(APath, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    BY_HANDLE_FILE_INFORMATION Information;
    if (!File.IsOpen())
        return std::nullopt;
    if (GetFileInformationByHandle(File.Handle(), &Information) == 0)
        return TStatus{false, 0}; // a device
    const bool IsDirectory = (Information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return TStatus{IsDirectory, Joined(Information.nFileSizeHigh, Information.nFileSizeLow)};
}

// As TargetStatus. Opens nothing that is not a link, since others may have locked it.
std::optional<TStatus> StatusOf(std::u16string_view APath) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    WIN32_FILE_ATTRIBUTE_DATA Data;
    if (!Path || GetFileAttributesExW(Wide(*Path), GetFileExInfoStandard, &Data) == 0)
        return std::nullopt;
    if ((Data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        return TargetStatus(*Path);
    return TStatus{(Data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0, 0};
}

TDirEntry EntryOf(const std::u16string& ADirectory, const WIN32_FIND_DATAW& AData) {
    TDirEntry Result;
    Result.Name = detail::FromWide(AData.cFileName);
    Result.IsDirectory = (AData.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    Result.Size = Result.IsDirectory ? 0 : Joined(AData.nFileSizeHigh, AData.nFileSizeLow);
    if ((AData.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && !Result.IsDirectory) {
        const std::optional<std::u16string> Path = detail::SystemPath(ADirectory + u'\\' + Result.Name);
        const std::optional<TStatus> Target = Path ? TargetStatus(*Path) : std::nullopt;
        Result.Size = Target ? Target->Size : 0;
    }
    return Result;
}

using TPieces = std::span<const std::span<const std::byte>>;

bool WriteAll(HANDLE AFile, TPieces APieces) {
    std::size_t Done = 0;
    return std::ranges::all_of(APieces, [&](auto APiece) { return detail::WriteAll(AFile, APiece, Done); });
}

TResult<> WriteInPlace(TFile& AFile, TPieces APieces) {
    const bool Ok = (GetFileType(AFile.Handle()) != FILE_TYPE_DISK || SetEndOfFile(AFile.Handle()) != 0) &&
        WriteAll(AFile.Handle(), APieces);
    return ResultOf(Ok && AFile.Close());
}

// The errors of ReplaceFile for a file that can be written but not replaced: the directory or the file is
// protected, or others have the file open.
constexpr DWORD cWriteInPlace[] = {ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION,
                                   ERROR_UNABLE_TO_REMOVE_REPLACED};

// A name beside APath that no other thread or process uses.
std::u16string NameBeside(std::u16string_view APath) {
    static std::atomic<unsigned> Counter{0};
    const std::size_t Separator = APath.find_last_of(u"\\/:");
    const std::size_t NameAt = Separator == std::u16string_view::npos ? 0 : Separator + 1;
    const std::string Name =
        ".qz" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++Counter) + ".tmp";
    return std::u16string(APath.substr(0, NameAt)).append(Name.begin(), Name.end());
}

// Gives ABeside the name ASystemPath.
TResult<> TakeName(const std::u16string& ABeside, const std::u16string& ASystemPath, bool AExists) {
    TResult<> Result =
        ResultOf(AExists ? ReplaceFileW(Wide(ASystemPath), Wide(ABeside), nullptr,
                                        REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0
                         : MoveFileExW(Wide(ABeside), Wide(ASystemPath), MOVEFILE_REPLACE_EXISTING) != 0);
    // The old file may be lost by then, and the new one holds the only content.
    const bool IsHalfDone = Result.Code() == ERROR_UNABLE_TO_MOVE_REPLACEMENT ||
        Result.Code() == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
    if (IsHalfDone)
        Result = ResultOf(MoveFileExW(Wide(ABeside), Wide(ASystemPath), MOVEFILE_REPLACE_EXISTING) != 0);
    return Result;
}

TResult<> WriteBeside(std::u16string_view APath, const std::u16string& ASystemPath, bool AExists,
                      TPieces APieces) {
    std::u16string Beside;
    std::optional<TFile> File;
    do {
        Beside = detail::SystemPath(NameBeside(APath)).value_or(u"");
        File.emplace(Beside, GENERIC_WRITE, CREATE_NEW);
    } while (!File->IsOpen() && GetLastError() == ERROR_FILE_EXISTS);
    if (!File->IsOpen())
        return TError(GetLastError());
    TResult<> Result = ResultOf(WriteAll(File->Handle(), APieces));
    File->Close();
    if (Result)
        Result = TakeName(Beside, ASystemPath, AExists);
    if (!Result && (!AExists || GetFileAttributesW(Wide(ASystemPath)) != INVALID_FILE_ATTRIBUTES))
        DeleteFileW(Wide(Beside));
    return Result;
}

bool IsDots(std::u16string_view AName) {
    return AName == u"." || AName == u"..";
}

} // namespace

bool FileExists(std::u16string_view APath) {
    const std::optional<TStatus> Status = StatusOf(APath);
    return Status && !Status->IsDirectory;
}

bool DirectoryExists(std::u16string_view APath) {
    const std::optional<TStatus> Status = StatusOf(APath);
    return Status && Status->IsDirectory;
}

TResult<std::vector<TDirEntry>> ListDirectory(std::u16string_view APath) {
    const std::u16string Directory(APath);
    // After a drive alone a separator would mean its root.
    const std::optional<std::u16string> Pattern =
        detail::SystemPath(Directory + (Directory.ends_with(u':') ? u"*" : u"\\*"));
    if (!Pattern || APath.empty())
        return TError(ERROR_INVALID_NAME);
    std::vector<TDirEntry> Entries;
    WIN32_FIND_DATAW Data;
    HANDLE First = FindFirstFileW(Wide(*Pattern), &Data);
    // An empty drive has not even the dots.
    if (First == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_NOT_FOUND)
        return Entries;
    if (First == INVALID_HANDLE_VALUE)
        return TError(GetLastError());
    const std::unique_ptr<void, decltype(&FindClose)> Search(First, FindClose);
    do {
        if (!IsDots(detail::FromWide(Data.cFileName)))
            Entries.push_back(EntryOf(Directory, Data));
    } while (FindNextFileW(Search.get(), &Data) != 0);
    if (GetLastError() != ERROR_NO_MORE_FILES)
        return TError(GetLastError());
    return Entries;
}

std::u16string WholePath(std::u16string_view APath) {
    const std::u16string Path(APath);
    const DWORD Room = GetFullPathNameW(Wide(Path), 0, nullptr, nullptr);
    std::u16string Result(Room, u'\0');
    const DWORD Length = GetFullPathNameW(Wide(Path), Room, Wide(Result.data()), nullptr);
    if (Room == 0 || Length >= Room) // another thread has changed the current directory
        return Path;
    Result.resize(Length);
    return Result;
}

std::u16string TempDirectory() {
    std::u16string Path(MAX_PATH + 1, u'\0');
    Path.resize(GetTempPathW(MAX_PATH + 1, Wide(Path.data())));
    while (Path.size() > 1 && Path.back() == u'\\' && !Path.ends_with(u":\\"))
        Path.pop_back();
    return Path;
}

TResult<> MakeDirectory(std::u16string_view APath) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    return Path ? ResultOf(CreateDirectoryW(Wide(*Path), nullptr) != 0) : TError(ERROR_INVALID_NAME);
}

TResult<> RemoveFile(std::u16string_view APath) {
    constexpr DWORD cDirectoryLink = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return TError(ERROR_INVALID_NAME);
    const DWORD Attributes = GetFileAttributesW(Wide(*Path));
    if (Attributes != INVALID_FILE_ATTRIBUTES && (Attributes & cDirectoryLink) == cDirectoryLink)
        return ResultOf(RemoveDirectoryW(Wide(*Path)) != 0);
    return ResultOf(DeleteFileW(Wide(*Path)) != 0);
}

TResult<> RemoveEmptyDirectory(std::u16string_view APath) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    return Path ? ResultOf(RemoveDirectoryW(Wide(*Path)) != 0) : TError(ERROR_INVALID_NAME);
}

std::u16string_view PathSeparators() noexcept {
    return u"\\/";
}

bool FileNamesIgnoreCase() noexcept {
    return true;
}

char16_t DriveSeparator() noexcept {
    return u':';
}

TResult<> RenameEntry(std::u16string_view APath, std::u16string_view ANewPath) {
    const std::optional<std::u16string> Old = detail::SystemPath(APath);
    const std::optional<std::u16string> New = detail::SystemPath(ANewPath);
    if (!Old || !New)
        return TError(ERROR_INVALID_NAME);
    return ResultOf(MoveFileExW(Wide(*Old), Wide(*New), 0) != 0);
}

TResult<std::vector<std::byte>> ReadWholeFile(std::u16string_view APath) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return TError(ERROR_INVALID_NAME);
    const TFile File(*Path, GENERIC_READ, OPEN_EXISTING);
    if (!File.IsOpen())
        return TError(GetLastError());
    LARGE_INTEGER Size{};
    if (GetFileSizeEx(File.Handle(), &Size) == 0)
        Size.QuadPart = 0; // a device or a pipe
    const auto ReadSome = [&](std::span<std::byte> ATarget) -> TResult<std::size_t> {
        const auto Step = static_cast<DWORD>(std::min(ATarget.size(), cLargestStep));
        DWORD Got = 0;
        // A pipe ends with this error, when its other end is closed.
        if (ReadFile(File.Handle(), ATarget.data(), Step, &Got, nullptr) == 0 &&
            GetLastError() != ERROR_BROKEN_PIPE)
            return TError(GetLastError());
        return std::size_t{Got};
    };
    return detail::ReadAll(static_cast<std::size_t>(Size.QuadPart), ReadSome);
}

TResult<> WriteWholeFile(std::u16string_view APath, TPieces APieces) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return TError(ERROR_INVALID_NAME);
    TFile Old(*Path, GENERIC_WRITE, OPEN_EXISTING);
    if (!Old.IsOpen() && GetLastError() != ERROR_FILE_NOT_FOUND)
        return TError(GetLastError());
    const bool Exists = Old.IsOpen();
    const DWORD Asked = GetFileAttributesW(Wide(*Path));
    const DWORD Attributes = Asked == INVALID_FILE_ATTRIBUTES ? 0 : Asked;
    // A privileged user may have been let in all the same.
    if ((Attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return TError(ERROR_ACCESS_DENIED);
    const bool IsLink = (Attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    BY_HANDLE_FILE_INFORMATION Information{};
    if (Exists)
        GetFileInformationByHandle(Old.Handle(), &Information);
    const bool HasOneName = Information.nNumberOfLinks <= 1;
    if (Exists && (IsLink || !HasOneName || GetFileType(Old.Handle()) != FILE_TYPE_DISK))
        return WriteInPlace(Old, APieces);
    Old.Close();
    const TResult<> Beside = WriteBeside(APath, *Path, Exists, APieces);
    if (Beside || !Exists || !std::ranges::count(cWriteInPlace, static_cast<DWORD>(Beside.Code())))
        return Beside;
    TFile Again(*Path, GENERIC_WRITE, OPEN_EXISTING);
    return Again.IsOpen() ? WriteInPlace(Again, APieces) : Beside;
}

} // namespace qz::platform
