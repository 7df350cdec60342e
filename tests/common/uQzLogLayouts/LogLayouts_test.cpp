#include <qz/common/uQzLogLayouts.h>

#include <gtest/gtest.h>

#include <regex>

#include "tests/common/support/LogFiles.h"
#include "tests/support/Message.h"
#include <qz/common/uQzLogger.h>
#include <qz/common/uQzWindows.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

UnicodeString WithoutTime(const UnicodeString& ALine) {
    const auto Digit = ALine.View().find_first_not_of(u' ');
    return UnicodeString(ALine.View().substr(0, Digit)) + u'@' + ALine.View().substr(Digit + 23);
}

TEST(SimpleLayout, LinesHaveTimeLevelLoggerMessageAndValue) {
    const Ref<IQzLogLayout> Layout = AsInterface<IQzLogLayout>(TQzSimpleLayout::Create(nullptr, u""));
    const TValue Value(17);
    EXPECT_EQ(WithoutTime(Layout->FormatLine(u"root", llInfo, u"started", nullptr, liIndentNone)),
              u"@ - Info root - started");
    EXPECT_EQ(WithoutTime(Layout->FormatLine(u"", llDoNotLog, u"a\nb", &Value, liIndentNone)),
              u"@ - Disabled  - a\nb - 17");
    const TDateTime Before = Now();
    const UnicodeString Line = Layout->FormatLine(u"root", llAll, u"", nullptr, liIndentNone);
    const UnicodeString Time(Line.View().substr(0, 23));
    EXPECT_LE(FormatDateTime(u"yyyy-mm-dd hh:mm:ss:zzz", Before), Time);
    EXPECT_LE(Time, FormatDateTime(u"yyyy-mm-dd hh:mm:ss:zzz", Now()));
    EXPECT_TRUE(Layout->GetFooter().View().starts_with(u"Log stopped on : "));
}

TEST(SimpleLayout, EnteredMethodsStandDeeper) {
    const Ref<IQzLogLayout> Layout = AsInterface<IQzLogLayout>(TQzSimpleLayout::Create(nullptr, u""));
    const std::pair<TQzLogIndent, int> Steps[] = {
        {liIndentDecrease, 0}, {liIndentIncrease, 2}, {liIndentNone, 2},     {liIndentIncrease, 4},
        {liIndentDecrease, 2}, {liIndentDecrease, 0}, {liIndentDecrease, 0}, {liIndentIncrease, 2}};
    for (const auto& [Indent, Spaces] : Steps) {
        const UnicodeString Line = Layout->FormatLine(u"r", llInfo, u"m", nullptr, Indent);
        EXPECT_EQ(Line.View().find_first_not_of(u' '), static_cast<std::size_t>(Spaces));
    }
}

std::string Line(TQzXmlLayout& ALayout, const UnicodeString& AMessage, const TValue* AValue = nullptr) {
    return std::string(ALayout.FormatLine(u"root.o'b", llWarn, AMessage, AValue, liIndentDecrease));
}

TEST(XmlLayout, TheLine) {
    const Ref<TQzXmlLayout> Layout(TQzXmlLayout::Create(nullptr, u""));
    const std::string Thread = std::to_string(QzGetCurrentThreadId());
    const std::regex Form(
        "<item><timeStamp>\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ</timeStamp><threadID>" + Thread +
        "</threadID><loggerName>root.o&apos;b</loggerName><logLevel>4</logLevel>"
        "<logIndent>2</logIndent><logMessage>(.*)</logMessage>(.*)</item>");
    const auto Parts = [&](const std::string& AText) {
        std::smatch Match;
        return std::regex_match(AText, Match, Form) ? Match.str(1) + '|' + Match.str(2)
                                                    : "no match: " + AText;
    };
    EXPECT_EQ(Parts(Line(*Layout, u"")), "|");
    EXPECT_EQ(Parts(Line(*Layout, UnicodeString(u"<&>\0 \"' \t\x01", 10))),
              "&lt;&amp;&gt; &quot;&apos; \t\x01|");
    const std::pair<const char16_t*, const char*> cValues[] = {
        {u"17", "17"}, {u" a]]>b]]>]] ", " a__>b__>]] "}, {u"]]]]>>", "]]__>>"}, {u"<&\"", "<&\""}};
    for (const auto& [Text, Expected] : cValues) {
        const TValue Value = TValue::From(UnicodeString(Text));
        EXPECT_EQ(Parts(Line(*Layout, u"m", &Value)),
                  "m|<logValue><![CDATA[" + std::string(Expected) + "]]></logValue>");
    }
    const TValue Blank = TValue::From(UnicodeString(u" \t"));
    EXPECT_EQ(Parts(Line(*Layout, u"m", &Blank)), "m|");
    Layout->SetStrictXml(true);
    const TValue Control = TValue::From(UnicodeString(u"a\x02"));
    EXPECT_EQ(Parts(Line(*Layout, u"\x01\x1F\t\xFFFF", &Control)),
              "\uFFFD\uFFFD\t\uFFFD|<logValue><![CDATA[a\uFFFD]]></logValue>");
}

TEST(XmlLayout, TheDocument) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File(TQzFileAppender::Create(nullptr, u""));
    File->SetFileName(Files.Path(u"new/app.log"));
    File->SetLayout(QzXmlLayout);
    EXPECT_EQ(File->GetFileName(), Files.Path(u"new/app.log.xml"));
    const std::string Style = Files.Text(u"new/app.log.xsl");
    EXPECT_TRUE(Style.starts_with("<xsl:stylesheet ") && Style.ends_with("</xsl:stylesheet>|"));
    Say(File, u"hello");
    File->Close();
    const std::regex Form(
        "<\\?xml-stylesheet type=\"text/xsl\" href=\"app.log.xsl\"\\?><log timeStamp=\"[^\"]{20}\" "
        "fileName=\"[^\"]+\" userName=\"[^\"]*\" computer=\"[^\"]*\" processID=\"\\d+\">\\|"
        "<item>.*<logMessage>hello</logMessage></item>\\|</log>");
    EXPECT_TRUE(std::regex_match(Files.Text(u"new/app.log.xml"), Form)) << Files.Text(u"new/app.log.xml");
}

} // namespace
} // namespace qz
