#include <qz/platform/SlimLock.h>

#include <atomic>
#include <bit>
#include <cstdint>

#include <qz/platform/linux/Futex.h>

// The word holds, in its low half, which the kernel can wait on:
//
//     bit 0     a writer owns the lock
//     bit 1     writers first: no new readers, so that those inside run out
//     bit 2     a reader may be asleep
//     bits 3..  number of readers inside
//
// and in its high half the number of writers who wait, awake or asleep. Each of them comes off that number in
// the very step in which it takes the lock, so that the number is exact.
//
// Who sleeps wakes again:
//  - A reader sleeps only while the low half is unchanged with its bit 2 in it. That bit goes out only
//    together with a wake of all readers. The thread that frees the lock clears it, or leaves it to a waiting
//    writer that frees the lock later.
//  - A writer sleeps only while the lock is taken. The thread that frees it wakes a writer if the number is
//    not 0. If none sleeps, the waiting writers are awake and check the lock.
//
// "Writers first" is set by a writer who finds the lock taken. A writer who frees the lock to sleeping
// readers takes it out, which gives them a turn before the next writer finds them inside. A thread that has
// freed the lock does not look at the word any more: the next owner may have destroyed it.

namespace qz::platform {

namespace {

constexpr std::uintptr_t cWriter = 1;
constexpr std::uintptr_t cWritersFirst = 2;
constexpr std::uintptr_t cReadersWait = 4;
constexpr std::uintptr_t cReader = 8;
constexpr std::uintptr_t cWaitingWriter = std::uintptr_t{1} << 32;
constexpr std::uintptr_t cWaitingWriters = ~(cWaitingWriter - 1);

constexpr std::uint32_t cReaderGroup = 1;
constexpr std::uint32_t cWriterGroup = 2;

// Long enough for a short section to end, far shorter than a sleep in the kernel.
constexpr int cSpins = 60;

static_assert(sizeof(void*) == 8, "the number of waiting writers needs the high half of the word");

class TWord {
public:
    explicit TWord(TSlimLockWord* AWord) noexcept : FWord(AWord->Ptr), FAddress(&AWord->Ptr) {}

    std::uintptr_t Load() const noexcept {
        return reinterpret_cast<std::uintptr_t>(FWord.load(std::memory_order_relaxed));
    }

    // On failure AExpected receives the value of the word.
    bool Change(std::uintptr_t& AExpected, std::uintptr_t ANew,
                std::memory_order AOrder = std::memory_order_relaxed) noexcept {
        void* Expected = reinterpret_cast<void*>(AExpected);
        if (FWord.compare_exchange_weak(Expected, reinterpret_cast<void*>(ANew), AOrder,
                                        std::memory_order_relaxed))
            return true;
        AExpected = reinterpret_cast<std::uintptr_t>(Expected);
        return false;
    }

    void Sleep(std::uintptr_t AExpected, std::uint32_t AGroup) const noexcept {
        detail::FutexWait(LowHalf(), static_cast<std::uint32_t>(AExpected), AGroup);
    }

    void WakeWriter() const noexcept { detail::FutexWake(LowHalf(), 1, cWriterGroup); }

    void WakeReaders() const noexcept { detail::FutexWake(LowHalf(), detail::cFutexEveryone, cReaderGroup); }

private:
    const void* LowHalf() const noexcept {
        constexpr std::size_t cOffset = std::endian::native == std::endian::big ? sizeof(void*) - 4 : 0;
        return static_cast<const char*>(FAddress) + cOffset;
    }

    std::atomic_ref<void*> FWord;
    const void* FAddress;
};

bool IsFree(std::uintptr_t AState) {
    return (AState & ~cWaitingWriters & ~(cWritersFirst | cReadersWait)) == 0;
}

bool AdmitsReader(std::uintptr_t AState) {
    return (AState & (cWriter | cWritersFirst)) == 0;
}

unsigned char TryAcquireExclusive(TSlimLockWord* AWord) {
    TWord Word(AWord);
    std::uintptr_t State = Word.Load();
    while (IsFree(State)) {
        if (Word.Change(State, State | cWriter, std::memory_order_acquire))
            return 1;
    }
    return 0;
}

void WaitExclusive(TSlimLockWord* AWord) {
    TWord Word(AWord);
    for (int Spin = 0; Spin < cSpins; ++Spin) {
        detail::SpinPause();
        if (TryAcquireExclusive(AWord))
            return;
    }
    std::uintptr_t State = Word.Load();
    while (!Word.Change(State, State + cWaitingWriter)) {}
    State = Word.Load();
    for (;;) {
        if (IsFree(State)) {
            if (Word.Change(State, (State - cWaitingWriter) | cWriter, std::memory_order_acquire))
                return;
        } else if ((State & cWritersFirst) != 0 || Word.Change(State, State | cWritersFirst)) {
            Word.Sleep(State | cWritersFirst, cWriterGroup);
            State = Word.Load();
        }
    }
}

void AcquireExclusive(TSlimLockWord* AWord) {
    TWord Word(AWord);
    std::uintptr_t State = 0;
    if (!Word.Change(State, cWriter, std::memory_order_acquire))
        WaitExclusive(AWord);
}

void ReleaseExclusive(TSlimLockWord* AWord) {
    TWord Word(AWord);
    std::uintptr_t State = cWriter;
    std::uintptr_t After = 0;
    while (!Word.Change(State, After, std::memory_order_release)) {
        After = State & cWaitingWriters;
        if (After != 0 && (State & cReadersWait) == 0)
            After |= cWritersFirst;
    }
    if (After != 0)
        Word.WakeWriter();
    if ((State & cReadersWait) != 0)
        Word.WakeReaders();
}

unsigned char TryAcquireShared(TSlimLockWord* AWord) {
    TWord Word(AWord);
    std::uintptr_t State = Word.Load();
    while (AdmitsReader(State)) {
        if (Word.Change(State, State + cReader, std::memory_order_acquire))
            return 1;
    }
    return 0;
}

void WaitShared(TSlimLockWord* AWord) {
    TWord Word(AWord);
    for (int Spin = 0; Spin < cSpins; ++Spin) {
        detail::SpinPause();
        if (TryAcquireShared(AWord))
            return;
    }
    std::uintptr_t State = Word.Load();
    for (;;) {
        if (AdmitsReader(State)) {
            if (Word.Change(State, State + cReader, std::memory_order_acquire))
                return;
        } else if ((State & cReadersWait) != 0 || Word.Change(State, State | cReadersWait)) {
            Word.Sleep(State | cReadersWait, cReaderGroup);
            State = Word.Load();
        }
    }
}

void AcquireShared(TSlimLockWord* AWord) {
    if (!TryAcquireShared(AWord))
        WaitShared(AWord);
}

void ReleaseShared(TSlimLockWord* AWord) {
    TWord Word(AWord);
    std::uintptr_t State = Word.Load();
    std::uintptr_t After = 0;
    do {
        After = State - cReader;
        if (IsFree(After))
            After = (After & cWaitingWriters) != 0 ? After | cWritersFirst : 0;
    } while (!Word.Change(State, After, std::memory_order_release));
    if (After == 0 && (State & cReadersWait) != 0)
        Word.WakeReaders();
    else if (After != 0 && IsFree(After))
        Word.WakeWriter();
}

constexpr TSlimLockFunctions cFunctions = {
    AcquireExclusive, TryAcquireExclusive, ReleaseExclusive, AcquireShared, TryAcquireShared, ReleaseShared,
};

} // namespace

const TSlimLockFunctions* SystemSlimLock() noexcept {
    return &cFunctions;
}

} // namespace qz::platform
