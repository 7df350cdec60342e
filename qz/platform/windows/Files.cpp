#include <qz/platform/Files.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>
#include <utility>

#include <windows.h>

#include <qz/platform/windows/LongPath.h>
#include <qz/platform/windows/NativeFile.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

using detail::Wide;

constexpr size_t cLargestStep = size_t{1} << 30;
constexpr DWORD cShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

bool Fail(TError& AError, DWORD ACode) {
    AError.Code = static_cast<int>(ACode);
    return false;
}

bool Outcome(TError& AError, bool AOk) {
    AError.Code = AOk ? 0 : LastError();
    return AOk;
}

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
    uint64_t Size;
};

uint64_t Joined(DWORD AHigh, DWORD ALow) {
    return (uint64_t{AHigh} << 32) | ALow;
}

// What a path leads to, links followed.
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

// As TargetStatus. Opens nothing that isn't a link, since others may have locked it.
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

bool MakeRoom(std::vector<std::byte>& AOut, size_t ASize) {
    try {
        AOut.resize(ASize);
    } catch (const std::exception&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return false;
    }
    return true;
}

bool ReadAll(HANDLE AFile, size_t AExpected, std::vector<std::byte>& AOut) {
    size_t Length = 0;
    // One byte more than expected, so that the end shows without another growth.
    if (!MakeRoom(AOut, AExpected + 1))
        return false;
    for (;;) {
        const auto Step = static_cast<DWORD>(std::min(AOut.size() - Length, cLargestStep));
        DWORD Got = 0;
        // The other end of a pipe is gone: this is how a pipe ends.
        if (ReadFile(AFile, AOut.data() + Length, Step, &Got, nullptr) == 0 &&
            GetLastError() != ERROR_BROKEN_PIPE)
            return false;
        Length += Got;
        if (Got == 0) {
            AOut.resize(Length);
            return true;
        }
        if (Length == AOut.size() && !MakeRoom(AOut, std::max<size_t>(AOut.size() * 2, 4096)))
            return false;
    }
}

using TPieces = std::span<const std::span<const std::byte>>;

bool WriteAll(HANDLE AFile, TPieces APieces) {
    size_t Done = 0;
    return std::ranges::all_of(APieces, [&](auto APiece) { return detail::WriteAll(AFile, APiece, Done); });
}

bool WriteInPlace(TFile& AFile, TPieces APieces, TError& AError) {
    const bool Ok = (GetFileType(AFile.Handle()) != FILE_TYPE_DISK || SetEndOfFile(AFile.Handle()) != 0) &&
        WriteAll(AFile.Handle(), APieces);
    return Outcome(AError, Ok && AFile.Close());
}

// What a file that can be written but not replaced answers to a replacement: the directory or the file is
// protected, or others have the file open.
constexpr DWORD cWriteInPlace[] = {ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION,
                                   ERROR_UNABLE_TO_REMOVE_REPLACED};

// A name beside APath that no other thread or process uses.
std::u16string NameBeside(std::u16string_view APath) {
    static std::atomic<unsigned> Counter{0};
    const size_t Separator = APath.find_last_of(u"\\/:");
    const size_t NameAt = Separator == std::u16string_view::npos ? 0 : Separator + 1;
    const std::string Name =
        ".qz" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++Counter) + ".tmp";
    return std::u16string(APath.substr(0, NameAt)).append(Name.begin(), Name.end());
}

bool WriteBeside(std::u16string_view APath, const std::u16string& ASystemPath, bool AExists, TPieces APieces,
                 TError& AError) {
    std::u16string Beside;
    std::optional<TFile> File;
    do {
        Beside = detail::SystemPath(NameBeside(APath)).value_or(u"");
        File.emplace(Beside, GENERIC_WRITE, CREATE_NEW);
    } while (!File->IsOpen() && GetLastError() == ERROR_FILE_EXISTS);
    if (!File->IsOpen())
        return Outcome(AError, false);
    bool Ok = WriteAll(File->Handle(), APieces);
    Outcome(AError, Ok);
    File->Close();
    if (Ok) {
        Ok = AExists ? ReplaceFileW(Wide(ASystemPath), Wide(Beside), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                                    nullptr, nullptr) != 0
                     : MoveFileExW(Wide(Beside), Wide(ASystemPath), MOVEFILE_REPLACE_EXISTING) != 0;
        Outcome(AError, Ok);
    }
    // The old file may be gone by then, and the new bytes are all that is left.
    const bool IsHalfDone =
        AError.Code == ERROR_UNABLE_TO_MOVE_REPLACEMENT || AError.Code == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
    if (!Ok && IsHalfDone)
        Ok = Outcome(AError, MoveFileExW(Wide(Beside), Wide(ASystemPath), MOVEFILE_REPLACE_EXISTING) != 0);
    if (!Ok && (!AExists || GetFileAttributesW(Wide(ASystemPath)) != INVALID_FILE_ATTRIBUTES))
        DeleteFileW(Wide(Beside));
    return Ok;
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

bool ListDirectory(std::u16string_view APath, std::vector<TDirEntry>& AOut, TError& AError) {
    AOut.clear();
    const std::u16string Directory(APath);
    // Behind a drive alone a separator would mean its root.
    const std::optional<std::u16string> Pattern =
        detail::SystemPath(Directory + (Directory.ends_with(u':') ? u"*" : u"\\*"));
    if (!Pattern || APath.empty())
        return Fail(AError, ERROR_INVALID_NAME);
    WIN32_FIND_DATAW Data;
    HANDLE First = FindFirstFileW(Wide(*Pattern), &Data);
    // An empty drive has not even the dots.
    if (First == INVALID_HANDLE_VALUE)
        return Outcome(AError, GetLastError() == ERROR_FILE_NOT_FOUND);
    const std::unique_ptr<void, decltype(&FindClose)> Search(First, FindClose);
    do {
        if (!IsDots(detail::FromWide(Data.cFileName)))
            AOut.push_back(EntryOf(Directory, Data));
    } while (FindNextFileW(Search.get(), &Data) != 0);
    const bool Ok = Outcome(AError, GetLastError() == ERROR_NO_MORE_FILES);
    if (!Ok)
        AOut.clear();
    return Ok;
}

std::u16string TempDirectory() {
    std::u16string Path(MAX_PATH + 1, u'\0');
    Path.resize(GetTempPathW(MAX_PATH + 1, Wide(Path.data())));
    while (Path.size() > 1 && Path.back() == u'\\' && !Path.ends_with(u":\\"))
        Path.pop_back();
    return Path;
}

bool MakeDirectory(std::u16string_view APath, TError& AError) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    return Path ? Outcome(AError, CreateDirectoryW(Wide(*Path), nullptr) != 0)
                : Fail(AError, ERROR_INVALID_NAME);
}

bool RemoveFile(std::u16string_view APath, TError& AError) {
    constexpr DWORD cDirectoryLink = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return Fail(AError, ERROR_INVALID_NAME);
    const DWORD Attributes = GetFileAttributesW(Wide(*Path));
    if (Attributes != INVALID_FILE_ATTRIBUTES && (Attributes & cDirectoryLink) == cDirectoryLink)
        return Outcome(AError, RemoveDirectoryW(Wide(*Path)) != 0);
    return Outcome(AError, DeleteFileW(Wide(*Path)) != 0);
}

bool RemoveEmptyDirectory(std::u16string_view APath, TError& AError) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    return Path ? Outcome(AError, RemoveDirectoryW(Wide(*Path)) != 0) : Fail(AError, ERROR_INVALID_NAME);
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

bool RenameEntry(std::u16string_view APath, std::u16string_view ANewPath, TError& AError) {
    const std::optional<std::u16string> Old = detail::SystemPath(APath);
    const std::optional<std::u16string> New = detail::SystemPath(ANewPath);
    if (!Old || !New)
        return Fail(AError, ERROR_INVALID_NAME);
    return Outcome(AError, MoveFileExW(Wide(*Old), Wide(*New), 0) != 0);
}

bool ReadWholeFile(std::u16string_view APath, std::vector<std::byte>& AOut, TError& AError) {
    AOut.clear();
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return Fail(AError, ERROR_INVALID_NAME);
    const TFile File(*Path, GENERIC_READ, OPEN_EXISTING);
    if (!File.IsOpen())
        return Outcome(AError, false);
    LARGE_INTEGER Size{};
    if (GetFileSizeEx(File.Handle(), &Size) == 0)
        Size.QuadPart = 0; // a device or a pipe
    const bool Ok = Outcome(AError, ReadAll(File.Handle(), static_cast<size_t>(Size.QuadPart), AOut));
    if (!Ok)
        AOut.clear();
    return Ok;
}

bool WriteWholeFile(std::u16string_view APath, TPieces APieces, TError& AError) {
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return Fail(AError, ERROR_INVALID_NAME);
    TFile Old(*Path, GENERIC_WRITE, OPEN_EXISTING);
    if (!Old.IsOpen() && GetLastError() != ERROR_FILE_NOT_FOUND)
        return Outcome(AError, false);
    const bool Exists = Old.IsOpen();
    const DWORD Asked = GetFileAttributesW(Wide(*Path));
    const DWORD Attributes = Asked == INVALID_FILE_ATTRIBUTES ? 0 : Asked;
    // A privileged user may have been let in all the same.
    if ((Attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return Fail(AError, ERROR_ACCESS_DENIED);
    const bool IsLink = (Attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    BY_HANDLE_FILE_INFORMATION Information{};
    if (Exists)
        GetFileInformationByHandle(Old.Handle(), &Information);
    const bool HasOneName = Information.nNumberOfLinks <= 1;
    if (Exists && (IsLink || !HasOneName || GetFileType(Old.Handle()) != FILE_TYPE_DISK))
        return WriteInPlace(Old, APieces, AError);
    Old.Close();
    if (WriteBeside(APath, *Path, Exists, APieces, AError))
        return true;
    if (!Exists || !std::ranges::count(cWriteInPlace, static_cast<DWORD>(AError.Code)))
        return false;
    TFile Again(*Path, GENERIC_WRITE, OPEN_EXISTING);
    return Again.IsOpen() && WriteInPlace(Again, APieces, AError);
}

} // namespace qz::platform
