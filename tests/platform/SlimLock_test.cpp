#include "platform/SlimLock.h"

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Threads.h"

namespace qz::platform {
namespace {

const TSlimLockFunctions& Lock = *SystemSlimLock();

TEST(SlimLock, AdmitsManyReadersOrOneWriter) {
    TSlimLockWord Word;
    Lock.AcquireShared(&Word);
    EXPECT_TRUE(Lock.TryAcquireShared(&Word));
    EXPECT_FALSE(Lock.TryAcquireExclusive(&Word));
    Lock.ReleaseShared(&Word);
    EXPECT_FALSE(Lock.TryAcquireExclusive(&Word));
    Lock.ReleaseShared(&Word);
    EXPECT_EQ(Word.Ptr, nullptr);

    EXPECT_TRUE(Lock.TryAcquireExclusive(&Word));
    EXPECT_NE(Word.Ptr, nullptr);
    EXPECT_FALSE(Lock.TryAcquireExclusive(&Word));
    EXPECT_FALSE(Lock.TryAcquireShared(&Word));
    Lock.ReleaseExclusive(&Word);
    EXPECT_EQ(Word.Ptr, nullptr);
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
    for (int Index = 0; Index < cWriters; ++Index)
        Threads.emplace_back([&, Index] {
            for (int Round = 0; Round < cRounds; ++Round) {
                if (Round % 4 != 0 || !Lock.TryAcquireExclusive(&Word))
                    Lock.AcquireExclusive(&Word);
                ++First;
                if (Round % 64 == Index)
                    SleepMs(0); // others pile up behind the lock and fall asleep
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

// The readers overlap, so that at no time the lock would be free of them by itself.
TEST(SlimLock, ReaderThreadsDoNotStarveAWriter) {
    TSlimLockWord Word;
    std::atomic<bool> Stop = false;
    std::vector<std::thread> Readers;
    for (int Index = 0; Index < 4; ++Index)
        Readers.emplace_back([&] {
            while (!Stop) {
                Lock.AcquireShared(&Word);
                SleepMs(2);
                Lock.ReleaseShared(&Word);
            }
        });
    const uint64_t Start = TickCount64();
    for (int Round = 0; Round < 20; ++Round) {
        Lock.AcquireExclusive(&Word);
        Lock.ReleaseExclusive(&Word);
    }
    EXPECT_LT(TickCount64() - Start, 10'000u);
    Stop = true;
    for (std::thread& Reader : Readers)
        Reader.join();
}

// Whoever gets the lock last may free its memory, while the one before is still on its way out of the release.
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

} // namespace
} // namespace qz::platform
