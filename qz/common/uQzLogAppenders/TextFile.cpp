#include <qz/common/uQzLogAppenders/TextFile.h>

#include <algorithm>
#include <mutex>
#include <new>
#include <tuple>
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
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/streams/FileStream.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

QZ_REGISTER_TYPES(TQzTextFile);

constinit const TClassRec TQzTextFile::ClassRec =
    DescribeClass<TQzTextFile>(u"TQzTextFile", {.Unit = u"uQzLogAppenders"});

namespace {

constexpr TTextConstant cCannotSeek = u"Cannot seek in file \"%s\". %s";
constexpr TTextConstant cCannotWrite = u"Cannot write to file \"%s\". %s";
constexpr std::u16string_view cLineEnd = u"\r\n";
constexpr std::size_t cMostBytesOfUnit = 3;
// In milliseconds.
constexpr std::uint64_t cLookEvery = 1000;
constexpr int cTriesToOpen = 3;
constexpr std::uint32_t cPatienceAtEnd = 300; // for a full pipe, when the program ends

// After a fork the processes share their files.
std::atomic<bool> GHasForked{false};

// When the program ends, the first full pipe uses up the patience for all.
std::atomic<std::uint32_t> GPatienceAtEnd{cPatienceAtEnd};

// Held while a file that several objects share is written or cut. Replaced in the child of a fork.
std::atomic<std::mutex*> GSharedFiles{new std::mutex};

// Makes the file if it does not exist. Its creation time is set, since a file system may reuse that of an
// earlier file of the name.
void MakeFile(const TStringArg& AFileName) {
    platform::TFileHandle File;
    const platform::TResult<> Made = File.Open(AFileName, platform::TFileAccess::ReadWrite,
                                               platform::TFileCreation::Exclusive, {.Read = true});
    if (!Made) {
        if (!FileExists(AFileName))
            detail::RaiseFileError<EFCreateError>(SFCreateError, AFileName, Made.Error());
        return;
    }
    File.Close();
    try {
        QzSetFileCreated(AFileName, NowUTC());
    } catch (const Exception&) { // NOLINT(bugprone-empty-catch): the file keeps the system's time
    }
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
    : FFileName(ExpandFileName(AFileName)),
      FLock(ALock != nullptr ? *ALock : FCritSect),
      FSizeLimit(platform::FileSizeLimit()),
      FLookedAt(platform::CoarseTickCount64()) {
    Open();
    FSize = *FHandle.Seek(0, platform::TFileOrigin::End); // 0 for a pipe or a device
    TLineFlusher::Instance().Add(*this);
}

TQzTextFile::~TQzTextFile() {
    TLineFlusher::Instance().Remove(*this);
    try {
        FlushWaiting();
    } catch (...) {
        detail::ReportLoss(FLines, {}, FFileName, u"Lines in the buffer of the file are lost",
                           detail::TDropKey::Buffer);
    }
    if (FIsShared && GHasForked)
        FHandle.DenyNothing();
}

// A file that another object of this process has open is opened by a duplicate of its handle.
void TQzTextFile::Open() {
    const bool IsThere = FileExists(FFileName);
    const UnicodeString Path = ExtractFilePath(FFileName);
    if (!Path.IsEmpty())
        ForceDirectories(Path);
    if (!IsThere)
        MakeFile(FFileName);
    platform::TResult<> Opened;
    // Another object may be opening or closing the file at this moment.
    for (int Try = 0; Try < cTriesToOpen && !FHandle.IsOpen(); ++Try) {
        if (Try != 0)
            platform::SleepMs(1);
        Opened = FHandle.Open(FFileName, platform::TFileAccess::ReadWrite, platform::TFileCreation::Never,
                              {.Read = true, .Write = GHasForked});
        if (!Opened && TLineFlusher::Instance().Duplicate(FFileName, FHandle))
            FIsShared = true;
    }
    if (!FHandle.IsOpen())
        detail::RaiseFileError<EFOpenError>(SFOpenError, FFileName, Opened.Error());
    if (const platform::TResult<> Moved = FHandle.WriteAtEnd(); !Moved)
        detail::RaiseFileError<EStreamError>(cCannotSeek, FFileName, Moved.Error());
}

bool TQzTextFile::DuplicateTo(const UnicodeString& AFileName, platform::TFileHandle& AHandle,
                              TAccessKey<TLineFlusher>) noexcept {
    if (!SameFileName(FFileName, AFileName) || !FHandle.IsAt(FFileName))
        return false;
    platform::TResult<platform::TFileHandle> Copy = FHandle.Duplicate();
    if (!Copy)
        return false;
    FIsShared = true;
    AHandle = std::move(*Copy);
    return true;
}

std::int64_t TQzTextFile::Size() {
    if (!FIsShared.load(std::memory_order_relaxed))
        return FSize.load(std::memory_order_relaxed);
    const TScopedLock Hold(FLock);
    const auto End = FHandle.Seek(0, platform::TFileOrigin::End);
    if (!End)
        detail::RaiseFileError<EStreamError>(cCannotSeek, FFileName, End.Error());
    return *End + static_cast<std::int64_t>(FWaiting);
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
    platform::TError Error;
    const std::size_t Done = PutBytes(BytesOf(Start, static_cast<std::size_t>(End - Start)), Error);
    AddTo(FSize, static_cast<std::int64_t>(Done));
    if (Error.Code != 0)
        detail::RaiseFileError<EWriteError>(cCannotWrite, FFileName, Error);
}

// Appends ABytes, and gives how many of them are in the file: all, or none if a part could be removed again.
// At the limit of file sizes this asks for the limit again, which may have been raised.
std::size_t TQzTextFile::PutBytes(TBytes ABytes, platform::TError& AError) {
    const auto Size = static_cast<std::uint64_t>(FSize.load(std::memory_order_relaxed));
    const bool IsShared = FIsShared.load(std::memory_order_relaxed);
    std::unique_lock<std::mutex> Hold;
    if (IsShared) [[unlikely]]
        Hold = std::unique_lock(*GSharedFiles.load(std::memory_order_acquire));
    if (Size + ABytes.size() <= FSizeLimit && (!IsShared || FSizeLimit == UINT64_MAX)) [[likely]]
        return AppendSome(ABytes, AError);
    FSizeLimit = platform::FileSizeLimit();
    const platform::TNoLimitSignal Quiet;
    return AppendSome(ABytes, AError);
}

std::size_t TQzTextFile::AppendSome(TBytes ABytes, platform::TError& AError) {
    const bool IsEnding = TLineFlusher::IsEnding();
    const platform::TWritten Written =
        !IsEnding ? FHandle.Append(ABytes) : FHandle.AppendWithin(ABytes, GPatienceAtEnd);
    if (Written) [[likely]]
        return ABytes.size();
    if (IsEnding)
        GPatienceAtEnd = 0;
    AError = Written.Error;
    return Written.Done != 0 && !TakeBack(ABytes.first(Written.Done)) ? Written.Done : 0;
}

// Removes ABytes from the end of the file; false if other bytes are there.
bool TQzTextFile::TakeBack(TBytes ABytes) {
    using platform::TFileOrigin;
    std::vector<std::byte> Found(ABytes.size());
    const auto Count = static_cast<std::int64_t>(ABytes.size());
    bool Result = false;
    const platform::TResult<std::int64_t> Size = FHandle.Seek(0, TFileOrigin::End);
    if (Size && *Size >= Count && FHandle.Seek(*Size - Count, TFileOrigin::Beginning)) {
        const platform::TResult<std::size_t> Got = FHandle.Read(Found);
        if (Got && *Got == Found.size() && std::ranges::equal(Found, ABytes))
            Result = static_cast<bool>(FHandle.SetSize(*Size - Count));
    }
    std::ignore = FHandle.Seek(0, TFileOrigin::End);
    return Result;
}

bool TQzTextFile::RemoveEnd(const TStringArg& AText) {
    std::vector<char> Text(Utf16ToUtf8Length(AText));
    Utf16ToUtf8(AText, Text.data());
    const TScopedLock Hold(FLock);
    const std::lock_guard Shared(*GSharedFiles.load(std::memory_order_acquire));
    const bool Result = TakeBack(BytesOf(Text.data(), Text.size()));
    if (Result)
        AddTo(FSize, -static_cast<std::int64_t>(Text.size()));
    return Result;
}

void TQzTextFile::FlushWaiting() {
    if (FWaiting == 0)
        return;
    platform::TError Error;
    const std::size_t Done = PutBytes(BytesOf(FBuffer.get(), FWaiting), Error);
    FWaiting -= Done;
    if (Error.Code == 0)
        return FLines.store(0, std::memory_order_relaxed);
    std::copy_n(FBuffer.get() + Done, FWaiting, FBuffer.get());
    detail::RaiseFileError<EWriteError>(cCannotWrite, FFileName, Error);
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
    if (Now - FLookedAt.load(std::memory_order_relaxed) < cLookEvery)
        return false;
    FLookedAt.store(Now, std::memory_order_relaxed);
    const TScopedLock Hold(FLock);
    FSizeLimit = platform::FileSizeLimit();
    if (!FHandle.IsAt(FFileName))
        return true;
    if (const auto End = FHandle.Seek(0, platform::TFileOrigin::End))
        FSize = *End + static_cast<std::int64_t>(FWaiting);
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
    // A thread of the parent may have held the old one.
    if (auto* const Fresh = new (std::nothrow) std::mutex)
        GSharedFiles = Fresh;
}

} // namespace qz
