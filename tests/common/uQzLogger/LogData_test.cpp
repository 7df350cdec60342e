#include <qz/common/uQzLogger/LogData.h>

#include <map>
#include <regex>

#include <gtest/gtest.h>

#include <qz/common/uQzWindows.h>

namespace qz {
namespace {

TEST(LogData, TellsOfTheMachine) {
    const TDateTime Before = Now();
    const Ref<TQzLogData> Data(TQzLogData::Create(llWarn, u"hot"));
    EXPECT_LE(Before, Data->FTimestamp);
    EXPECT_LE(Data->FTimestamp, Now());
    EXPECT_EQ(Data->FComputerName, QzGetComputerName());
    EXPECT_EQ(Data->FUserName, QzGetUserName());
    for (const UnicodeString& Text : {Data->FActiveForm, Data->FActiveControl, Data->FResolution})
        EXPECT_EQ(Text, u"n.a.");
    EXPECT_EQ(Data->FSource + Data->FExtendedInfo + Data->FHelpText, u"");
    EXPECT_EQ(Data->FOS, detail::SystemNameOf(QzGetWindowsVersion()));
    const auto Version = static_cast<std::string>(Data->FVersion);
    EXPECT_TRUE(std::regex_match(Version, std::regex("[1-9]\\d*\\.\\d+; Build: [0-9A-F]+, \".*\"")))
        << Version;
}

TEST(LogData, SystemsHaveNames) {
    const std::map<int, std::u16string_view> Names = {
        {1, u"Win 3.1"},        {3, u"Windows 95"},      {5, u"Windows 95 OSR2"},
        {7, u"Windows 98"},     {9, u"Windows 98 SE"},   {11, u"Windows Milennium"},
        {12, u"Windows NT"},    {14, u"Windows NT 3.0"}, {16, u"Windows NT 4.0"},
        {500, u"Windows 2000"}, {511, u"Windows XP"},    {520, u"Windows Server 2003"},
        {601, u"Vista"},        {611, u"Windows 7"},     {621, u"Windows 8"}};
    for (int Version = 0; Version <= 0xFFFF; ++Version) {
        const auto Name = Names.find(Version);
        ASSERT_EQ(detail::SystemNameOf(static_cast<std::uint16_t>(Version)),
                  Name != Names.end() ? Name->second : u"Unidentified OS")
            << Version;
    }
}

} // namespace
} // namespace qz
