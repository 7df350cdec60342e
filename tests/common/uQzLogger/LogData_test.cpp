#include <qz/common/uQzLogger/LogData.h>

#include <regex>

#include <gtest/gtest.h>

#include <qz/common/uQzWindows.h>

namespace qz {
namespace {

TEST(LogData, TellsOfTheMachine) {
    const Ref<TQzLogData> Data(TQzLogData::Create(llWarn, u"hot"));
    EXPECT_LE(Data->FTimestamp, Now());
    EXPECT_EQ(Data->FUserName, QzGetUserName());
    EXPECT_EQ(Data->FActiveForm, u"n.a.");
    const auto Version = static_cast<std::string>(Data->FVersion);
    EXPECT_TRUE(std::regex_match(Version, std::regex("[1-9]\\d*\\.\\d+; Build: [0-9A-F]+, \".*\"")))
        << Version;
    EXPECT_EQ(detail::SystemNameOf(1), u"Win 3.1");
    EXPECT_EQ(detail::SystemNameOf(621), u"Windows 8");
    EXPECT_EQ(detail::SystemNameOf(622), u"Unidentified OS");
}

} // namespace
} // namespace qz
