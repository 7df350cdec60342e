#include <qz/runtime/time/LocalClock.h>

#include <gtest/gtest.h>
#include <stdlib.h>
#include <time.h>

#include "tests/support/Child.h"
#include <qz/runtime/time/TimeZone.h>

namespace qz {
namespace {

// In a child, whose zone is its own affair.
int MinutesAheadOfUtc(const char* AZone) {
    return 15 * InChild([AZone] {
               setenv("TZ", AZone, 1);
               TTimeZone::Refresh();
               const std::int64_t Utc = time(nullptr) % 86400;
               return static_cast<int>((LocalClock().MSecs / 1000 - Utc + 2 * 86400 + 30) % 86400 / 60 / 15);
           });
}

TEST(LocalClock, FollowsTheZone) {
    EXPECT_EQ(MinutesAheadOfUtc("EAST-5:45"), 345);
    EXPECT_EQ(MinutesAheadOfUtc("WEST3:30"), 1440 - 210);
}

} // namespace
} // namespace qz
