#include <qz/platform/SlimLock.h>

#include <atomic>
#include <memory>

#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include <qz/platform/Threads.h>

namespace qz::platform {
namespace {

// What the lock is for, tests/common/uQzThreads checks on both of its forms.
const TSlimLockFunctions& Lock = *SystemSlimLock();

// Each writer holds the lock until the others sleep, so that nothing but a release can wake them.
TEST(SlimLock, ThreadsThatSleepAreWoken) {
    TSlimLockWord Word;
    int Count = 0;
    AtOnce(6, [&](int AIndex) {
        for (int Round = 0; Round < 10; ++Round) {
            const bool Write = AIndex < 4 && Round < 8;
            (Write ? Lock.AcquireExclusive : Lock.AcquireShared)(&Word);
            if (Write)
                ++Count;
            SleepMs(2);
            (Write ? Lock.ReleaseExclusive : Lock.ReleaseShared)(&Word);
        }
    });
    EXPECT_EQ(Count, 32);
    EXPECT_EQ(Word.Ptr, nullptr);
}

// A reader stays until the next one is in, or until it is clear that none gets in. A lock that admitted
// readers all the time would never be free of them.
TEST(SlimLock, ReaderThreadsDoNotStarveAWriter) {
    constexpr uint64_t cGiveUp = 60'000;
    TSlimLockWord Word;
    std::atomic<bool> Stop = false;
    std::atomic<int> Entered = 0;
    const uint64_t Start = TickCount64();
    const auto Read = [&] {
        while (!Stop && TickCount64() - Start < cGiveUp) {
            Lock.AcquireShared(&Word);
            const int Ticket = ++Entered;
            const uint64_t Patience = TickCount64() + 50;
            while (!Stop && Entered == Ticket && TickCount64() < Patience)
                SleepMs(1);
            Lock.ReleaseShared(&Word);
        }
    };
    const auto Write = [&] {
        while (Entered < 10)
            SleepMs(1);
        for (int Round = 0; Round < 5; ++Round) {
            Lock.AcquireExclusive(&Word);
            Lock.ReleaseExclusive(&Word);
        }
        EXPECT_LT(TickCount64() - Start, cGiveUp);
        Stop = true;
    };
    AtOnce(4, [&](int AIndex) { AIndex == 0 ? Write() : Read(); });
}

// Whoever gets the lock last may free its memory, while the one before is still on its way out of the
// release.
TEST(SlimLock, ThreadsMayDestroyWhatTheyHoldLast) {
    struct TShared {
        TSlimLockWord Word;
        int Left = 3;
    };
    for (int Round = 0; Round < 300; ++Round) {
        auto* Shared = new TShared;
        const auto Leave = [Shared](bool AReadFirst) {
            if (AReadFirst) {
                Lock.AcquireShared(&Shared->Word);
                Lock.ReleaseShared(&Shared->Word);
            }
            Lock.AcquireExclusive(&Shared->Word);
            const bool Last = --Shared->Left == 0;
            Lock.ReleaseExclusive(&Shared->Word);
            const std::unique_ptr<TShared> Owner(Last ? Shared : nullptr);
        };
        AtOnce(3, [&](int AIndex) { Leave(AIndex == 1 || (AIndex == 2 && Round % 2 != 0)); });
    }
}

// The readers of one round see one state of two plain variables, which a race would tear.
TEST(SlimLock, ThreadsNeverSeeHalfAWrite) {
    constexpr int cRounds = 3000;
    TSlimLockWord Word;
    long First = 0;
    long Second = 0;
    std::atomic<int> Torn = 0;
    const auto Write = [&](int ARound) {
        if (ARound % 4 != 0 || !Lock.TryAcquireExclusive(&Word))
            Lock.AcquireExclusive(&Word);
        ++First;
        if (ARound % 64 < 3)
            SleepMs(0); // other threads wait for the lock and sleep
        ++Second;
        Lock.ReleaseExclusive(&Word);
    };
    const auto Read = [&](int ARound) {
        if (ARound % 4 != 0 || !Lock.TryAcquireShared(&Word))
            Lock.AcquireShared(&Word);
        if (First != Second)
            ++Torn;
        if (ARound % 64 == 0)
            SleepMs(0);
        Lock.ReleaseShared(&Word);
    };
    AtOnce(6, [&](int AIndex) {
        for (int Round = 0; Round < cRounds; ++Round)
            AIndex < 3 ? Write(Round) : Read(Round);
    });
    EXPECT_EQ(Torn, 0);
    EXPECT_EQ(First, 3L * cRounds);
    EXPECT_EQ(Second, First);
    EXPECT_EQ(Word.Ptr, nullptr);
}

} // namespace
} // namespace qz::platform
