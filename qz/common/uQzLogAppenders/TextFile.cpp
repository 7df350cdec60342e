#include <qz/common/uQzLogAppenders/TextFile.h>

#include <algorithm>
#include <vector>

#include <qz/common/uQzLogAppenders/detail/LineFlusher.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzWindows/FileTimes.h>
#include <qz/platform/FileLimit.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/FileStream.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

constinit const TClassRec TQzTextFile::ClassRec =
    DescribeClass<TQzTextFile>(u"TQzTextFile", {.Unit = u"uQzLogAppenders"});

namespace {

constexpr TTextConstant cCannotSeek = u"Cannot seek in file \"%s\". %s";
constexpr TTextConstant cCannotWrite = u"Cannot write to file \"%s\". %s";
constexpr std::u16string_view cLineEnd = u"\r\n";
constexpr std::size_t cMostBytesOfUnit = 3;
constexpr std::uint64_t cLookEvery = 1000; // milliseconds

// After a fork the processes share their files.
std::atomic<bool> GHasForked{false};

template <class E>
[[noreturn]] void Raise(const TStringArg& APattern, const TStringArg& AFile, platform::TError AError) {
    throw E(APattern, {AFile.View(), SysErrorMessage(AError.Code)});
}

// Makes the file if it does not exist. Its creation time is set, since a file system may reuse that of an
// earlier file of the name.
void MakeFile(const TStringArg& AFileName) {
    platform::TFileHandle File;
    platform::TError Error;
    if (!File.Open(AFileName, platform::TFileAccess::ReadWrite, platform::TFileCreation::Exclusive,
                   {.Read = true}, Error)) {
        if (!FileExists(AFileName))
            Raise<EFCreateError>(SFCreateError, AFileName, Error);
        return;
    }
    File.Close();
    try {
        QzSetFileCreated(AFileName, NowUTC());
    } catch (const Exception&) { // NOLINT(bugprone-empty-catch): the file keeps the system's time
    }
}

platform::TFileHandle OpenFile(const TStringArg& AFileName) {
    const bool IsThere = FileExists(AFileName);
    const UnicodeString Path = ExtractFilePath(AFileName);
    if (!Path.IsEmpty())
        ForceDirectories(Path);
    if (!IsThere)
        MakeFile(AFileName);
    platform::TFileHandle Result;
    platform::TError Error;
    if (!Result.Open(AFileName, platform::TFileAccess::ReadWrite, platform::TFileCreation::Never,
                     {.Read = true, .Write = GHasForked}, Error))
        Raise<EFOpenError>(SFOpenError, AFileName, Error);
    if (!Result.WriteAtEnd(Error))
        Raise<EStreamError>(cCannotSeek, AFileName, Error);
    return Result;
}

// The caller holds the lock; other threads only read.
template <class T> void AddTo(std::atomic<T>& ATarget, T ACount) noexcept {
    ATarget.store(ATarget.load(std::memory_order_relaxed) + ACount, std::memory_order_relaxed);
}

std::span<const std::byte> BytesOf(const char* AText, std::size_t ACount) {
    return std::as_bytes(std::span(AText, ACount));
}

} // namespace

TQzTextFile::TQzTextFile(const TStringArg& AFileName, TCriticalSection* ALock)
    : FFileName(AFileName.View()),
      FHandle(OpenFile(AFileName)),
      FLock(ALock != nullptr ? *ALock : FCritSect),
      FIsWholePath(IsWholePath(AFileName)),
      FSizeLimit(platform::FileSizeLimit()),
      FLookedAt(platform::CoarseTickCount64()) {
    platform::TError Error;
    std::int64_t End = 0;
    FHandle.Seek(0, platform::TFileOrigin::End, End, Error); // fails for a pipe or a device
    FSize = End;
    TLineFlusher::Instance().Add(*this);
}

TQzTextFile::~TQzTextFile() {
    TLineFlusher::Instance().Remove(*this);
    try {
        FlushWaiting();
    } catch (...) {
        detail::CountDrops(FLines);
    }
    if (FIsShared)
        FHandle.DenyNothing();
}

std::int64_t TQzTextFile::Size() {
    if (!FIsShared.load(std::memory_order_relaxed))
        return FSize.load(std::memory_order_relaxed);
    const TScopedLock Hold(FLock);
    std::int64_t End = 0;
    platform::TError Error;
    if (!FHandle.Seek(0, platform::TFileOrigin::End, End, Error))
        Raise<EStreamError>(cCannotSeek, FFileName, Error);
    return End + static_cast<std::int64_t>(FWaiting);
}

void TQzTextFile::Write(const TStringArg& AText) {
    Put(AText, {});
}

void TQzTextFile::WriteLn(const TStringArg& AText) {
    Put(AText, cLineEnd);
}

void TQzTextFile::Put(const TStringArg& AText, std::u16string_view ATail) {
    const std::u16string_view Text = AText;
    char Small[1536];
    std::unique_ptr<char[]> Large;
    char* Start = Small;
    if (Text.size() * cMostBytesOfUnit + ATail.size() > sizeof Small) {
        Large = std::make_unique_for_overwrite<char[]>(Utf16ToUtf8Length(Text) + ATail.size());
        Start = Large.get();
    }
    char* const End = std::copy(ATail.begin(), ATail.end(), Utf16ToUtf8(Text, Start));
    const TScopedLock Hold(FLock);
    FlushWaiting();
    PutBytes(BytesOf(Start, static_cast<std::size_t>(End - Start)));
    AddTo(FSize, std::int64_t{End - Start});
}

// At the limit of file sizes this asks for the limit again, which may have been raised.
void TQzTextFile::PutBytes(TBytes ABytes) {
    const auto Size = static_cast<std::uint64_t>(FSize.load(std::memory_order_relaxed));
    const bool IsShared = FIsShared.load(std::memory_order_relaxed);
    if (Size + ABytes.size() <= FSizeLimit && (!IsShared || FSizeLimit == UINT64_MAX))
        return AppendWhole(ABytes);
    FSizeLimit = platform::FileSizeLimit();
    const platform::TNoLimitSignal Quiet;
    AppendWhole(ABytes);
}

// Appends all of ABytes or nothing.
void TQzTextFile::AppendWhole(TBytes ABytes) {
    std::size_t Done = 0;
    platform::TError Error;
    if (FHandle.Append(ABytes, Done, Error)) [[likely]]
        return;
    if (Done != 0)
        TakeBack(ABytes.first(Done));
    Raise<EWriteError>(cCannotWrite, FFileName, Error);
}

// Removes ABytes from the end of the file, unless another process has written after them.
void TQzTextFile::TakeBack(TBytes ABytes) {
    using platform::TFileOrigin;
    std::vector<std::byte> Found(ABytes.size());
    const auto Count = static_cast<std::int64_t>(ABytes.size());
    std::int64_t Size = 0;
    std::int64_t Place = 0;
    std::size_t Done = 0;
    platform::TError Error;
    if (FHandle.Seek(0, TFileOrigin::End, Size, Error) && Size >= Count &&
        FHandle.Seek(Size - Count, TFileOrigin::Beginning, Place, Error) &&
        FHandle.Read(Found, Done, Error) && Done == Found.size() && std::ranges::equal(Found, ABytes))
        FHandle.SetSize(Place, Error);
    FHandle.Seek(0, TFileOrigin::End, Place, Error);
}

void TQzTextFile::FlushWaiting() {
    if (FWaiting == 0)
        return;
    PutBytes(BytesOf(FBuffer.get(), FWaiting));
    FWaiting = 0;
    FLines.store(0, std::memory_order_relaxed);
}

void TQzTextFile::WriteLnLater(const TStringArg& AText) {
    const std::u16string_view Text = AText;
    const std::size_t Most = Text.size() * cMostBytesOfUnit + cLineEnd.size();
    {
        const TScopedLock Hold(FLock);
        if (Most <= FBufferSize && !TLineFlusher::IsEnding()) {
            if (FBufferSize - FWaiting < Most)
                FlushWaiting();
            char* const Start = FBuffer.get() + FWaiting;
            char* const End = std::copy(cLineEnd.begin(), cLineEnd.end(), Utf16ToUtf8(Text, Start));
            AddTo(FSize, std::int64_t{End - Start});
            FWaiting += static_cast<std::size_t>(End - Start);
            AddTo(FLines, 1u);
            if (FLines.load(std::memory_order_relaxed) == 1 && !TLineFlusher::Instance().Wake())
                FlushWaiting();
            return;
        }
    }
    WriteLn(AText);
}

void TQzTextFile::SetBufferSize(std::size_t ASize) {
    const TScopedLock Hold(FLock);
    if (ASize == FBufferSize)
        return;
    auto Fresh = ASize == 0 ? nullptr : std::make_unique_for_overwrite<char[]>(ASize);
    FlushWaiting();
    FBuffer = std::move(Fresh);
    FBufferSize = ASize;
}

void TQzTextFile::Flush() {
    const TScopedLock Hold(FLock);
    FlushWaiting();
}

// False while lines are in the buffer, which lasts a second at most: so they need no look at the clock.
bool TQzTextFile::HasGone() {
    if (FLines.load(std::memory_order_relaxed) != 0)
        return false;
    const std::uint64_t Now = platform::CoarseTickCount64();
    if (!FIsWholePath || Now - FLookedAt.load(std::memory_order_relaxed) < cLookEvery)
        return false;
    FLookedAt.store(Now, std::memory_order_relaxed);
    const TScopedLock Hold(FLock);
    FSizeLimit = platform::FileSizeLimit();
    if (!FHandle.IsAt(FFileName))
        return true;
    platform::TError Error;
    std::int64_t End = 0;
    if (FHandle.Seek(0, platform::TFileOrigin::End, End, Error))
        FSize = End + static_cast<std::int64_t>(FWaiting);
    return false;
}

void TQzTextFile::Share() noexcept {
    FIsShared = true;
    GHasForked = true;
}

void TQzTextFile::Inherit(TAccessKey<TLineFlusher>) noexcept {
    FSize.fetch_sub(static_cast<std::int64_t>(FWaiting), std::memory_order_relaxed);
    FWaiting = 0;
    FLines = 0;
    FIsInherited = true;
    Share();
}

} // namespace qz
