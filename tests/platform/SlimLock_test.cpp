#include <qz/platform/SlimLock.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <qz/platform/Threads.h>

namespace qz::platform {
namespace {

// What the lock is for, tests/common/uQzThreads checks on both of its forms.
const TSlimLockFunctions& Lock = *SystemSlimLock();

// Each writer holds the lock until the others sleep, so that nothing but a release can wake them.
TEST(SlimLock, ThreadsThatSleepAreWoken) {
    TSlimLockWord Word;
    int Count = 0;
    std::vector<std::thread> Threads;
    Threads.reserve(6);
    for (int Index = 0; Index < 6; ++Index)
        Threads.emplace_back([&, Index] {
            for (int Round = 0; Round < 10; ++Round) {
                const bool Write = Index < 4 && Round < 8;
                (Write ? Lock.AcquireExclusive : Lock.AcquireShared)(&Word);
                if (Write)
                    ++Count;
                SleepMs(2);
                (Write ? Lock.ReleaseExclusive : Lock.ReleaseShared)(&Word);
            }
        });
    for (std::thread& Thread : Threads)
        Thread.join();
    EXPECT_EQ(Count, 32);
    EXPECT_EQ(Word.Ptr, nullptr);
}

// A reader stays until the next one is in, or until it is clear that none gets in. A lock that admitted
// readers all the time would never be free of them.
TEST(SlimLock, ReaderThreadsDoNotStarveAWriter) {
    constexpr uint64_t cGiveUp = 6000;
    TSlimLockWord Word;
    std::atomic<bool> Stop = false;
    std::atomic<int> Entered = 0;
    const uint64_t Start = TickCount64();
    std::vector<std::thread> Readers;
    Readers.reserve(3);
    for (int Index = 0; Index < 3; ++Index)
        Readers.emplace_back([&] {
            while (!Stop && TickCount64() - Start < cGiveUp) {
                Lock.AcquireShared(&Word);
                const int Ticket = ++Entered;
                const uint64_t Patience = TickCount64() + 50;
                while (!Stop && Entered == Ticket && TickCount64() < Patience)
                    SleepMs(1);
                Lock.ReleaseShared(&Word);
            }
        });
    while (Entered < 10)
        SleepMs(1);
    for (int Round = 0; Round < 5; ++Round) {
        Lock.AcquireExclusive(&Word);
        Lock.ReleaseExclusive(&Word);
    }
    EXPECT_LT(TickCount64() - Start, cGiveUp);
    Stop = true;
    for (std::thread& Reader : Readers)
        Reader.join();
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
        std::thread First(Leave, true);
        std::thread Second(Leave, Round % 2 == 0);
        Leave(true);
        First.join();
        Second.join();
    }
}

// The readers of one round see one state of two plain variables, which a race would tear.
TEST(SlimLock, ThreadsNeverSeeHalfAWrite) {
    constexpr int cWriters = 3;
    constexpr int cReaders = 3;
    constexpr int cRounds = 3000;
    TSlimLockWord Word;
    long First = 0;
    long Second = 0;
    std::atomic<int> Torn = 0;
    std::vector<std::thread> Threads;
    Threads.reserve(cWriters + cReaders);
    for (int Index = 0; Index < cWriters; ++Index)
        Threads.emplace_back([&, Index] {
            for (int Round = 0; Round < cRounds; ++Round) {
                if (Round % 4 != 0 || !Lock.TryAcquireExclusive(&Word))
                    Lock.AcquireExclusive(&Word);
                ++First;
                if (Round % 64 == Index)
                    SleepMs(0); // other threads wait for the lock and sleep
                ++Second;
                Lock.ReleaseExclusive(&Word);
            }
        });
    for (int Index = 0; Index < cReaders; ++Index)
        Threads.emplace_back([&] {
            for (int Round = 0; Round < cRounds; ++Round) {
                if (Round % 4 != 0 || !Lock.TryAcquireShared(&Word))
                    Lock.AcquireShared(&Word);
                if (First != Second)
                    ++Torn;
                if (Round % 64 == 0)
                    SleepMs(0);
                Lock.ReleaseShared(&Word);
            }
        });
    for (std::thread& Thread : Threads)
        Thread.join();
    EXPECT_EQ(Torn, 0);
    EXPECT_EQ(First, long{cWriters} * cRounds);
    EXPECT_EQ(Second, First);
    EXPECT_EQ(Word.Ptr, nullptr);
}

} // namespace
} // namespace qz::platform
