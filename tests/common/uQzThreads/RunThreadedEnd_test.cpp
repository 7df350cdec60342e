#include <gtest/gtest.h>

#include <memory>

#include <qz/common/uQzThreads/RunThreaded.h>
#include <qz/platform/Threads.h>

namespace qz {
namespace {

// The thread object owns the procedure, so that the end of what that holds is the end of the object.
TEST(QzRunThreadedEnd, TheThreadFreesItself) {
    const auto Held = std::make_shared<int>();
    QzRunThreaded([Held](IQzSimpleEvent*) {});
    QzRunThreaded([Held] {}, nullptr);
    const std::uint64_t Start = platform::TickCount64();
    while (Held.use_count() > 1 && platform::TickCount64() - Start < 60'000)
        platform::SleepMs(1);
    EXPECT_EQ(Held.use_count(), 1);
}

} // namespace
} // namespace qz
