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

} // namespace
} // namespace qz::platform
