#include <qz/common/uQzThreads/MultiReadLock.h>

#include <memory>

#include <qz/platform/Threads.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzMultiReadSingleWrite);

constinit const TClassRec _TMultiReadExclusiveWriteSynchronizer::ClassRec =
    DescribeClass<_TMultiReadExclusiveWriteSynchronizer>(u"_TMultiReadExclusiveWriteSynchronizer",
                                                         {.Unit = u"uQzThreads", .IsPublic = false});
constinit const TClassRec TQzMultiReadSingleWrite::ClassRec =
    DescribeClass<TQzMultiReadSingleWrite>(u"TQzMultiReadSingleWrite", {.Unit = u"uQzThreads"});

void _TMultiReadExclusiveWriteSynchronizer::AcquireShared() {
    BeginRead();
    FReadLock = platform::CurrentThreadId();
}

bool _TMultiReadExclusiveWriteSynchronizer::TryAcquireShared() {
    if (FWriteLock != 0 || !TryBeginRead())
        return false;
    FReadLock = platform::CurrentThreadId();
    return true;
}

void _TMultiReadExclusiveWriteSynchronizer::ReleaseShared() {
    EndRead();
    FReadLock = 0;
}

void _TMultiReadExclusiveWriteSynchronizer::AcquireExclusive() {
    BeginWrite();
    FWriteLock = platform::CurrentThreadId();
}

bool _TMultiReadExclusiveWriteSynchronizer::TryAcquireExclusive() {
    if (FWriteLock != 0 || FReadLock != 0 || !TryBeginWrite())
        return false;
    FWriteLock = platform::CurrentThreadId();
    return true;
}

// The mark goes first: after EndWrite it might wipe out that of the next writer.
void _TMultiReadExclusiveWriteSynchronizer::ReleaseExclusive() {
    FWriteLock = 0;
    EndWrite();
}

namespace {

_TMultiReadExclusiveWriteSynchronizer& Fallback(TSRWLOCK* ALock) noexcept {
    return *static_cast<_TMultiReadExclusiveWriteSynchronizer*>(ALock->Ptr);
}

constexpr TSRWLockSlots cFallback = {
    [](TSRWLOCK* ALock) { Fallback(ALock).AcquireExclusive(); },
    [](TSRWLOCK* ALock) -> unsigned char { return Fallback(ALock).TryAcquireExclusive(); },
    [](TSRWLOCK* ALock) { Fallback(ALock).ReleaseExclusive(); },
    [](TSRWLOCK* ALock) { Fallback(ALock).AcquireShared(); },
    [](TSRWLOCK* ALock) -> unsigned char { return Fallback(ALock).TryAcquireShared(); },
    [](TSRWLOCK* ALock) { Fallback(ALock).ReleaseShared(); },
};

bool IsComplete(const TSRWLockSlots& ASlots) noexcept {
    return ASlots.AcquireExclusive != nullptr && ASlots.TryAcquireExclusive != nullptr &&
        ASlots.ReleaseExclusive != nullptr && ASlots.AcquireShared != nullptr &&
        ASlots.TryAcquireShared != nullptr && ASlots.ReleaseShared != nullptr;
}

} // namespace

const TSRWLockSlots& TQzMultiReadSingleWrite::FallbackSlots() noexcept {
    return cFallback;
}

const TSRWLockSlots& TQzMultiReadSingleWrite::Slots() noexcept {
    static const TSRWLockSlots* const Slots =
        IsComplete(*platform::SystemSlimLock()) ? platform::SystemSlimLock() : &cFallback;
    return *Slots;
}

TQzMultiReadSingleWrite::TQzMultiReadSingleWrite() : FSlots(&Slots()) {
    if (FSlots == &cFallback)
        FLock.Ptr = std::make_unique<_TMultiReadExclusiveWriteSynchronizer>().release();
}

TQzMultiReadSingleWrite::TQzMultiReadSingleWrite(TFallback) : FSlots(&cFallback) {
    FLock.Ptr = std::make_unique<_TMultiReadExclusiveWriteSynchronizer>().release();
}

TQzMultiReadSingleWrite::~TQzMultiReadSingleWrite() {
    if (FSlots == &cFallback)
        std::unique_ptr<_TMultiReadExclusiveWriteSynchronizer>(&Fallback(&FLock)).reset();
}

} // namespace qz
