#include <qz/common/uQzLogAppenders/TextFile.h>

#include <algorithm>

#include <qz/common/uQzLogAppenders/LineFlusher.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzWindows/FileTimes.h>
#include <qz/platform/FileLimit.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

constinit const TClassRec TQzTextFile::ClassRec =
    DescribeClass<TQzTextFile>(u"TQzTextFile", {.Unit = u"uQzLogAppenders"});

namespace {

constexpr std::u16string_view cLineEnd = u"\r\n";
constexpr std::size_t cMostBytesOfUnit = 3;
constexpr std::uint64_t cLookEvery = 1000; // milliseconds

// After a fork the family of processes writes to its files together.
std::atomic<bool> GHasForked{false};

// Makes the file, if it is not there at this moment. Its day is that of its making even where its name has been used before.
void MakeFile(const TStringArg& AFileName) {
    platform::TFileHandle File;
    const platform::TResult<> Made = File.Open(AFileName, platform::TFileAccess::ReadWrite,
                                               platform::TFileCreation::Exclusive, {.Read = true});
    if (!Made) {
        if (!FileExists(AFileName))
            throw EFCreateError(SFCreateError, {AFileName.View(), SysErrorMessage(Made.Code())});
        return;
    }
    File.Close();
    try {
        QzSetFileCreated(AFileName, NowUTC());
    } catch (const Exception&) { // NOLINT(bugprone-empty-catch): the system's own time counts, then
    }
}

TFileStream OpenFile(const TStringArg& AFileName) {
    const bool IsThere = FileExists(AFileName);
    const UnicodeString Path = ExtractFilePath(AFileName);
    if (!Path.IsEmpty())
        ForceDirectories(Path);
    if (!IsThere)
        MakeFile(AFileName);
    return TFileStream(AFileName, fmOpenReadWrite | (GHasForked ? fmShareDenyNone : fmShareDenyWrite));
}

// Under the lock, which keeps other changes out: others only read.
template <class T> void AddTo(std::atomic<T>& ATarget, T ACount) noexcept {
    ATarget.store(ATarget.load(std::memory_order_relaxed) + ACount, std::memory_order_relaxed);
}

std::span<const std::byte> BytesOf(const char* AText, std::size_t ACount) {
    return std::as_bytes(std::span(AText, ACount));
}

} // namespace

TQzTextFile::TQzTextFile(const TStringArg& AFileName, TCriticalSection* ALock)
    : FFile(OpenFile(AFileName)),
      FLock(ALock != nullptr ? *ALock : FCritSect),
      FIsWholePath(IsWholePath(AFileName)),
      FSizeLimit(platform::FileSizeLimit()),
      FLookedAt(platform::CoarseTickCount64()) {
    FFile.SetAppending();
    FSize = *FFile.Handle().Seek(0, platform::TFileOrigin::End); // 0 for a pipe or a device
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
        FFile.Handle().DenyNothing();
}

std::int64_t TQzTextFile::Size() {
    if (!FIsShared.load(std::memory_order_relaxed))
        return FSize.load(std::memory_order_relaxed);
    const TScopedLock Hold(FLock);
    return FFile.Seek(0, TSeekOrigin::soEnd) + static_cast<std::int64_t>(FWaiting);
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

// A file that comes to its limit is asked about anew, since the limit may have been raised.
void TQzTextFile::PutBytes(TBytes ABytes) {
    const auto Size = static_cast<std::uint64_t>(FSize.load(std::memory_order_relaxed));
    const bool IsShared = FIsShared.load(std::memory_order_relaxed);
    if (Size + ABytes.size() <= FSizeLimit && (!IsShared || FSizeLimit == UINT64_MAX))
        return FFile.AppendWhole(ABytes);
    FSizeLimit = platform::FileSizeLimit();
    const platform::TNoLimitSignal Quiet;
    FFile.AppendWhole(ABytes);
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
            if (FLines.load(std::memory_order_relaxed) == 1 && !TLineFlusher::Instance().Await())
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

// Not while lines wait, which has its end within a second: that saves a look at the clock with each of them.
bool TQzTextFile::HasGone() {
    if (FLines.load(std::memory_order_relaxed) != 0)
        return false;
    const std::uint64_t Now = platform::CoarseTickCount64();
    if (!FIsWholePath || Now - FLookedAt.load(std::memory_order_relaxed) < cLookEvery)
        return false;
    FLookedAt.store(Now, std::memory_order_relaxed);
    const TScopedLock Hold(FLock);
    FSizeLimit = platform::FileSizeLimit();
    if (!FFile.Handle().IsAt(FFile.FileName()))
        return true;
    if (const auto End = FFile.Handle().Seek(0, platform::TFileOrigin::End))
        FSize = *End + static_cast<std::int64_t>(FWaiting);
    return false;
}

void TQzTextFile::Share() noexcept {
    FIsShared = true;
    GHasForked = true;
}

void TQzTextFile::Inherit() noexcept {
    FSize.fetch_sub(static_cast<std::int64_t>(FWaiting), std::memory_order_relaxed);
    FWaiting = 0;
    FLines = 0;
    FIsInherited = true;
    Share();
}

} // namespace qz
