#include "platform/Clock.h"

#include <ctime>

#include <gtest/gtest.h>

#include "platform/Environment.h"

namespace qz::platform {
namespace {

TEST(ClockLinux, OffsetIsThatOfTheZone) {
    struct TCase {
        const char16_t* Zone;
        int Offset;
    };
    const auto Old = GetEnvironment(u"TZ");
    for (const TCase& Case : {TCase{u"UTC0", 0}, {u"IST-5:30", 330}, {u"NST3:30", -210}, {u"LINT-14", 840}}) {
        ASSERT_TRUE(SetEnvironment(u"TZ", Case.Zone));
        tzset();
        EXPECT_EQ(LocalNow().OffsetMinutes, Case.Offset);
    }
    SetEnvironment(u"TZ", Old ? std::optional<std::u16string_view>(*Old) : std::nullopt);
    tzset();
}

} // namespace
} // namespace qz::platform
