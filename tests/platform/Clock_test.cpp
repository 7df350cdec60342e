#include <qz/platform/Clock.h>

#include <chrono>
#include <cstdlib>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

using TSteps = std::chrono::duration<int64_t, std::ratio<1, 10'000'000>>;

template <class TDuration> int64_t Since1601(std::chrono::sys_time<TDuration> ATime) {
    // Nanoseconds since then would not fit 64 bits.
    constexpr TSteps cStart = std::chrono::sys_days{std::chrono::year{1601} / 1 / 1}.time_since_epoch();
    return (std::chrono::duration_cast<TSteps>(ATime.time_since_epoch()) - cStart).count();
}

TEST(Clock, UtcNowIsNow) {
    const int64_t Before = Since1601(std::chrono::system_clock::now());
    const int64_t Now = UtcNow100ns();
    const int64_t After = Since1601(std::chrono::system_clock::now());
    constexpr int64_t cTolerance = 500'000; // clocks of different fineness
    EXPECT_GE(Now, Before - cTolerance);
    EXPECT_LE(Now, After + cTolerance);
}

} // namespace
} // namespace qz::platform
