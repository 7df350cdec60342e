#include <qz/platform/Environment.h>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

constexpr std::u16string_view cName = u"QZ_TEST_VARIABLE";

TEST(Environment, ValuesComeBack) {
    const std::u16string Values[] = {u"plain", u"", u"Grüße \xD83D\xDE00", u"a=b",
                                     std::u16string(3000, u'ä')};
    for (const std::u16string& Value : Values) {
        ASSERT_TRUE(SetEnvironment(cName, Value));
        EXPECT_EQ(GetEnvironment(cName), Value);
    }
    EXPECT_TRUE(SetEnvironment(cName, std::nullopt));
    EXPECT_EQ(GetEnvironment(cName), std::nullopt);
    EXPECT_TRUE(SetEnvironment(cName, std::nullopt)); // gone already
}

TEST(Environment, RefusesWhatNoVariableCanBe) {
    using namespace std::string_view_literals;
    for (const std::u16string_view Name : {u""sv, u"="sv, u"A=B"sv, u"A\0B"sv}) {
        EXPECT_FALSE(SetEnvironment(Name, u"x"));
        EXPECT_EQ(GetEnvironment(Name), std::nullopt);
    }
    EXPECT_FALSE(SetEnvironment(cName, u"a\0b"sv));
    EXPECT_EQ(GetEnvironment(cName), std::nullopt);
}

} // namespace
} // namespace qz::platform
