#include "common/uQzLogAppenders/TextFile.h"

#include <algorithm>

#include "common/uQzLogAppenders/LineFlusher.h"
#include "common/uQzLogger/LogDrops.h"
#include "common/uQzWindows/FileTimes.h"
#include "platform/FileLimit.h"
#include "platform/Threads.h"
#include "runtime/errors/Exceptions.h"
#include "runtime/files/FileNames.h"
#include "runtime/files/FileSystem.h"
#include "runtime/reflection/Describe.h"
#include "runtime/time/DateTime.h"

namespace qz {

constinit const TClassRec TQzTextFile::ClassRec =
    DescribeClass<TQzTextFile>(u"TQzTextFile", {.Unit = u"uQzLogAppenders"});

namespace {

constexpr std::u16string_view cLineEnd = u"\r\n";
constexpr std::size_t cMostBytesOfUnit = 3;
constexpr std::uint64_t cLookEvery = 1000; // milliseconds

// The day of the file is that of its making even where its name has been used before.
void MakeFile(const TStringArg& AFileName) {
    { const TFileStream File(AFileName, fmCreate | fmShareDenyWrite); }
    try {
        QzSetFileCreated(AFileName, NowUTC());
    } catch (
        const Exception&) { // NOLINT(bugprone-empty-catch): then the system's own time of the file counts
    }
}

TFileStream OpenFile(const TStringArg& AFileName) {
    const bool IsThere = FileExists(AFileName);
    const UnicodeString Path = ExtractFilePath(AFileName);
    if (!Path.IsEmpty())
        ForceDirectories(Path);
    if (!IsThere)
        MakeFile(AFileName);
    return TFileStream(AFileName, fmOpenReadWrite | fmShareDenyWrite);
}

std::span<const std::byte> BytesOf(const char* AText, std::size_t ACount) {
    return std::as_bytes(std::span(AText, ACount));
}

} // namespace

TQzTextFile::TQzTextFile(const TStringArg& AFileName, TCriticalSection* ALock)
    : FFile(OpenFile(AFileName)),
      FLock(ALock != nullptr ? *ALock : FCritSect),
      FSizeLimit(platform::FileSizeLimit()),
      FLookedAt(platform::CoarseTickCount64()) {
    platform::TError Error;
    std::int64_t End = 0; // of a pipe or a device
    FFile.SetAppending();
    FFile.Handle().Seek(0, platform::TFileOrigin::End, End, Error);
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
    FSize.fetch_add(End - Start, std::memory_order_relaxed);
}

// A file that comes to its limit is asked about anew, since the limit may have been raised.
void TQzTextFile::PutBytes(TBytes ABytes) {
    const std::int64_t End = FSize.load(std::memory_order_relaxed) - static_cast<std::int64_t>(FWaiting);
    if (static_cast<std::uint64_t>(End) + ABytes.size() <= FSizeLimit)
        return FFile.AppendWhole(ABytes, End);
    FSizeLimit = platform::FileSizeLimit();
    const platform::TNoLimitSignal Quiet;
    FFile.AppendWhole(ABytes, End);
}

void TQzTextFile::FlushWaiting() {
    if (FWaiting == 0)
        return;
    PutBytes(BytesOf(FBuffer.get(), FWaiting));
    FWaiting = 0;
    FLines = 0;
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
            FSize.fetch_add(End - Start, std::memory_order_relaxed);
            FWaiting += static_cast<std::size_t>(End - Start);
            if (++FLines == 1 && !TLineFlusher::Instance().Await())
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

bool TQzTextFile::HasGone() {
    const std::uint64_t Now = platform::CoarseTickCount64();
    if (Now - FLookedAt.load(std::memory_order_relaxed) < cLookEvery)
        return false;
    FLookedAt.store(Now, std::memory_order_relaxed);
    const TScopedLock Hold(FLock);
    FSizeLimit = platform::FileSizeLimit();
    if (!FFile.Handle().IsAt(FFile.FileName()))
        return true;
    platform::TError Error;
    std::int64_t End = 0;
    if (FFile.Handle().Seek(0, platform::TFileOrigin::End, End, Error))
        FSize = End + static_cast<std::int64_t>(FWaiting);
    return false;
}

void TQzTextFile::Discard() noexcept {
    FWaiting = 0;
    FLines = 0;
    FIsShared = true;
}

} // namespace qz
