#include <qz/platform/Threads.h>

#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

TEST(Threads, IdsOfLivingThreadsDiffer) {
    constexpr size_t cCount = 8;
    std::vector<uint32_t> Ids(cCount, 0);
    std::vector<std::thread> Threads;
    for (size_t Index = 0; Index < cCount; ++Index)
        Threads.emplace_back([&Ids, Index] {
            Ids[Index] = CurrentThreadId();
            SleepMs(30);
            // Unchanged in the same thread, and never the mark of an id not yet asked for.
            if (CurrentThreadId() != Ids[Index])
                Ids[Index] = 0;
        });
    for (std::thread& Thread : Threads)
        Thread.join();
    std::set<uint32_t> Distinct(Ids.begin(), Ids.end());
    Distinct.insert(CurrentThreadId());
    EXPECT_EQ(Distinct.size(), cCount + 1);
    EXPECT_EQ(Distinct.count(0), 0u);
}

TEST(Threads, ClocksRunInMilliseconds) {
    const uint64_t Start = TickCount64();
    const uint32_t Start32 = TickCount();
    SleepMs(60);
    const uint64_t Passed = TickCount64() - Start;
    // Windows counts in steps of 16 ms; the upper limit leaves a busy machine its time.
    EXPECT_GE(Passed, 44u);
    EXPECT_LT(Passed, 5000u);
    EXPECT_GE(TickCount() - Start32, 44u);
    const auto Lag = static_cast<int32_t>(static_cast<uint32_t>(TickCount64()) - TickCount());
    EXPECT_LE(Lag, 0);
    EXPECT_GT(Lag, -5000);
}

TEST(Threads, NamingPassesWithoutADebugger) {
    std::thread([] {
        SetCurrentThreadName("");
        SetCurrentThreadName(std::string(70000, 'x'));
        SetCurrentThreadName(std::string_view("a\0b", 3));
    }).join();
}

TEST(Threads, ProcessorCountIsInReason) {
    EXPECT_GE(ProcessorCount(), 1u);
    EXPECT_LE(ProcessorCount(), 65536u);
}

} // namespace
} // namespace qz::platform
