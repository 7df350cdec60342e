#include <qz/platform/Debugger.h>

#include <string_view>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

TEST(Debugger, NoWindowHasAMadeUpName) {
    using namespace std::string_view_literals;
    EXPECT_FALSE(HasTopLevelWindow(u"NoSuchClassOfWindow", u""));
    EXPECT_FALSE(HasTopLevelWindow(u"", u"no window has such a title"));
    EXPECT_FALSE(HasTopLevelWindow(u"\0"sv, u""));
}

} // namespace
} // namespace qz::platform
