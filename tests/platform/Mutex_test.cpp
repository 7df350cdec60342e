#include <qz/platform/Mutex.h>

#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <qz/platform/Threads.h>

namespace qz::platform {
namespace {

bool OtherThreadGets(TRecursiveMutex& AMutex) {
    bool Result = false;
    std::thread([&] {
        Result = AMutex.TryEnter();
        if (Result)
            AMutex.Leave();
    }).join();
    return Result;
}

TEST(Mutex, OwnerMayEnterAgain) {
    TRecursiveMutex Mutex;
    Mutex.Enter();
    EXPECT_TRUE(Mutex.TryEnter());
    Mutex.Enter();
    for (int Depth = 3; Depth > 0; --Depth) {
        EXPECT_FALSE(OtherThreadGets(Mutex)) << Depth;
        Mutex.Leave();
    }
    EXPECT_TRUE(OtherThreadGets(Mutex));
    EXPECT_TRUE(Mutex.TryEnter());
    EXPECT_FALSE(OtherThreadGets(Mutex));
    Mutex.Leave();
}

TEST(Mutex, ThreadsTakeTurns) {
    constexpr int cThreads = 4;
    constexpr int cRounds = 4000;
    TRecursiveMutex Mutex;
    long Count = 0;
    std::vector<std::thread> Threads;
    Threads.reserve(cThreads);
    for (int Index = 0; Index < cThreads; ++Index)
        Threads.emplace_back([&] {
            for (int Round = 0; Round < cRounds; ++Round) {
                if (Round % 3 != 0 || !Mutex.TryEnter())
                    Mutex.Enter();
                const long Seen = Count;
                Mutex.Enter();
                if (Round % 100 == 0)
                    SleepMs(0);
                Count = Seen + 1;
                Mutex.Leave();
                Mutex.Leave();
            }
        });
    for (std::thread& Thread : Threads)
        Thread.join();
    EXPECT_EQ(Count, long{cThreads} * cRounds);
}

} // namespace
} // namespace qz::platform
