#include <qz/common/uQzLogLayouts/XmlLayout.h>

#include <gtest/gtest.h>

#include <regex>

#include "tests/common/support/LogFiles.h"
#include <qz/common/uQzLogger.h>
#include <qz/common/uQzWindows.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/values/Value.h>

namespace qz {
namespace {

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
    // an existing stylesheet stays
    Files.Put(u"new/app.log.xsl", "mine");
    File->SetLayout(QzXmlLayout);
    EXPECT_EQ(Files.Text(u"new/app.log.xsl"), "mine");
    EXPECT_TRUE(DeleteFile(Files.Path(u"new/app.log.xsl")) &&
                ForceDirectories(Files.Path(u"new/app.log.xsl")));
    EXPECT_THROW(File->SetLayout(QzXmlLayout), EFCreateError);
}

} // namespace
} // namespace qz
