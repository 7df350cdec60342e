#include "common/uQzLogger/LogData.h"

#include <map>
#include <regex>

#include <gtest/gtest.h>

#include "common/uQzWindows.h"

namespace qz {
namespace {

TEST(LogData, TellsOfTheMachine) {
    const TDateTime Before = Now();
    const Ref<TQzLogData> Data(TQzLogData::Create(llWarn, u"hot"));
    EXPECT_LE(Before, Data->FTimestamp);
    EXPECT_LE(Data->FTimestamp, Now());
    EXPECT_EQ(QzGetComputerName(), Data->FComputerName);
    EXPECT_EQ(QzGetUserName(), Data->FUserName);
    for (const UnicodeString& Text : {Data->FActiveForm, Data->FActiveControl, Data->FResolution})
        EXPECT_EQ(u"n.a.", Text);
    EXPECT_EQ(u"", Data->FSource + Data->FExtendedInfo + Data->FHelpText);
    const std::map<int, UnicodeString> Systems = {{601, u"Vista"}, {611, u"Windows 7"}, {621, u"Windows 8"}};
    const auto System = Systems.find(QzGetWindowsVersion());
    EXPECT_EQ(System != Systems.end() ? System->second : u"Unidentified OS", Data->FOS);
    const auto Version = static_cast<std::string>(Data->FVersion);
    EXPECT_TRUE(std::regex_match(Version, std::regex("[1-9]\\d*\\.\\d+; Build: [0-9A-F]+, \".*\"")))
        << Version;
}

} // namespace
} // namespace qz
