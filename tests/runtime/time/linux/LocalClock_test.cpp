#include <qz/runtime/time/LocalClock.h>

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <qz/runtime/time/TimeZone.h>

namespace qz {
namespace {

// In a child, whose zone is its own affair.
int MinutesAheadOfUtc(const char* AZone) {
    const pid_t Child = fork();
    if (Child == 0) {
        setenv("TZ", AZone, 1);
        TTimeZone::Refresh();
        const std::int64_t Utc = time(nullptr) % 86400;
        const std::int64_t Ahead = (LocalClock().MSecs / 1000 - Utc + 2 * 86400 + 30) % 86400;
        _exit(static_cast<int>(Ahead / 60 / 15));
    }
    int Status = -1;
    waitpid(Child, &Status, 0);
    return WEXITSTATUS(Status) * 15;
}

TEST(LocalClock, FollowsTheZone) {
    EXPECT_EQ(MinutesAheadOfUtc("EAST-5:45"), 345);
    EXPECT_EQ(1440 - 210, MinutesAheadOfUtc("WEST3:30"));
}

} // namespace
} // namespace qz
