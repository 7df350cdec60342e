#include <qz/runtime/threads/MultiReadLock.h>

#include <algorithm>

#include <qz/platform/Threads.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TMultiReadExclusiveWriteSynchronizer);

constinit const TClassRec TMultiReadExclusiveWriteSynchronizer::ClassRec =
    DescribeClass<TMultiReadExclusiveWriteSynchronizer>(u"TMultiReadExclusiveWriteSynchronizer",
                                                        {.Unit = u"System"});

auto TMultiReadExclusiveWriteSynchronizer::FindReader(std::uint32_t AThread) noexcept -> TReader* {
    const auto Found = std::find_if(FReaders.begin(), FReaders.end(),
                                    [&](const TReader& AReader) { return AReader.Thread == AThread; });
    return Found == FReaders.end() ? nullptr : &*Found;
}

bool TMultiReadExclusiveWriteSynchronizer::HasOtherReaders(std::uint32_t AThread) const noexcept {
    return std::any_of(FReaders.begin(), FReaders.end(),
                       [&](const TReader& AReader) { return AReader.Thread != AThread; });
}

bool TMultiReadExclusiveWriteSynchronizer::MayRead(std::uint32_t AThread) const noexcept {
    return FWriter == AThread || (FWriter == 0 && FWaitingWriters == 0);
}

void TMultiReadExclusiveWriteSynchronizer::TakeWrite(std::uint32_t AThread) noexcept {
    FWriter = AThread;
    FWriteDepth = 1;
    ++FRevision;
}

void TMultiReadExclusiveWriteSynchronizer::BeginRead() {
    const std::uint32_t Self = platform::CurrentThreadId();
    std::unique_lock Hold(FMutex);
    if (TReader* Reader = FindReader(Self)) {
        ++Reader->Depth;
        return;
    }
    FChanged.wait(Hold, [&] { return MayRead(Self); });
    FReaders.push_back({Self, 1});
}

bool TMultiReadExclusiveWriteSynchronizer::TryBeginRead() {
    const std::uint32_t Self = platform::CurrentThreadId();
    const std::lock_guard Hold(FMutex);
    if (TReader* Reader = FindReader(Self))
        ++Reader->Depth;
    else if (MayRead(Self))
        FReaders.push_back({Self, 1});
    else
        return false;
    return true;
}

void TMultiReadExclusiveWriteSynchronizer::EndRead() {
    const std::lock_guard Hold(FMutex);
    TReader* Reader = FindReader(platform::CurrentThreadId());
    if (Reader == nullptr || --Reader->Depth != 0)
        return;
    *Reader = FReaders.back();
    FReaders.pop_back();
    FChanged.notify_all();
}

bool TMultiReadExclusiveWriteSynchronizer::BeginWrite() {
    const std::uint32_t Self = platform::CurrentThreadId();
    std::unique_lock Hold(FMutex);
    if (FWriter == Self) {
        ++FWriteDepth;
        return true;
    }
    const std::uint32_t Revision = FRevision;
    // Two readers that both turn to writing would wait for each other forever. One that waits to write has
    // stopped reading, so the other may go first; that it did shows in the revision.
    TReader* Reader = FindReader(Self);
    const TReader Paused = Reader == nullptr ? TReader{Self, 0} : *Reader;
    if (Reader != nullptr) {
        *Reader = FReaders.back();
        FReaders.pop_back();
        FChanged.notify_all();
    }
    ++FWaitingWriters;
    FChanged.wait(Hold, [&] { return FWriter == 0 && !HasOtherReaders(Self); });
    --FWaitingWriters;
    if (Paused.Depth != 0)
        FReaders.push_back(Paused);
    const bool IsUnchanged = FRevision == Revision;
    TakeWrite(Self);
    return IsUnchanged;
}

bool TMultiReadExclusiveWriteSynchronizer::TryBeginWrite() {
    const std::uint32_t Self = platform::CurrentThreadId();
    const std::lock_guard Hold(FMutex);
    if (FWriter == Self)
        ++FWriteDepth;
    else if (FWriter == 0 && !HasOtherReaders(Self))
        TakeWrite(Self);
    else
        return false;
    return true;
}

void TMultiReadExclusiveWriteSynchronizer::EndWrite() {
    const std::lock_guard Hold(FMutex);
    if (FWriter != platform::CurrentThreadId() || --FWriteDepth != 0)
        return;
    FWriter = 0;
    FChanged.notify_all();
}

std::uint32_t TMultiReadExclusiveWriteSynchronizer::RevisionLevel() const {
    const std::lock_guard Hold(FMutex);
    return FRevision;
}

} // namespace qz
