// Names, openings and survivors of log files.
#include <gtest/gtest.h>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {
namespace {

// Any of these answers makes the whole configuration fail if it is not left alone.
class TStrictConfiguration : public TConfiguration {
    QZ_CLASS(TStrictConfiguration, TConfiguration)

public:
    Variant GetAppenderValue(const UnicodeString&, const UnicodeString& AKey, TQzMainTypeKind,
                             const Variant& ADefault) override {
        if (AKey == u"BufferSize")
            throw EListError(u"unknown key");
        return AKey == u"FlushLevel" ? Variant(u"") : ADefault;
    }
};
constinit const TClassRec TStrictConfiguration::ClassRec =
    DescribeClass<TStrictConfiguration>(u"TStrictConfiguration", {.Unit = u"tests"});

// Closes its appender once.
class TClosingLayout : public TPlainLayout {
    QZ_CLASS(TClosingLayout, TPlainLayout)

public:
    UnicodeString GetHeader() override {
        if (TQzFileAppender* const File = std::exchange(Appender, nullptr))
            File->Close();
        return u"head";
    }
    TQzFileAppender* Appender = nullptr;

protected:
    using TPlainLayout::TPlainLayout;
};
constinit const TClassRec TClosingLayout::ClassRec =
    DescribeLogBase<TClosingLayout>(u"TClosingLayout", {.Unit = u"tests"});

TEST(LogFiles, TheNewestOfAFamilySurvive) {
    TLogFiles Files;
    for (const char16_t* Name : {u"app.2024-01-01.log", u"app.2024-01-02.log", u"app.2024-01-03.log"})
        Files.Put(Name, "x");
    const Ref<TQzDailyRollingFileAppender> File = Files.Make<TQzDailyRollingFileAppender>();
    Say(File, u"x");
    File->SetMaxBackupCount(3);
    EXPECT_EQ(Files.Names(), "app.2024-01-02.log app.2024-01-03.log app.log ");
}

TEST(LogFiles, TwoAppendersOfAProcessShareAFile) {
    TLogFiles Files;
    const Ref<TQzFileAppender> One = Files.Make<TQzFileAppender>();
    const Ref<TQzFileAppender> Two = Files.Make<TQzFileAppender>();
    Say(One, u"a");
    Say(Two, u"b");
    Say(One, u"c");
    Two->Close();
    Say(One, u"d");
    EXPECT_EQ(Files.Text(), "head|a|b|c|footd|");
}

TEST(LogFiles, ConfiguratorsNeedNotKnowTheKeysOfThisLibrary) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    File->SetBufferSize(100);
    const Ref<TStrictConfiguration> Values = TStrictConfiguration::Create();
    EXPECT_NO_THROW(File->SetConfig(Values.Get()));
    EXPECT_EQ(File->GetBufferSize(), 100);
    EXPECT_EQ(File->GetFlushLevel(), llWarn);
}

TEST(LogFiles, StrictXmlIsContinuedInsideTheDocument) {
    TLogFiles Files;
    const auto Run = [&Files](bool AIsStrict) {
        const Ref<TQzFileAppender> File(TQzFileAppender::Create(nullptr, u""));
        File->SetFileName(Files.Path(u"app"));
        const Ref<TQzXmlLayout> Layout(TQzXmlLayout::Create(nullptr, u""));
        Layout->SetStrictXml(AIsStrict);
        File->SetLayout(Layout.Get());
        Say(File, u"x");
        File->Close();
    };
    const auto Documents = [&Files] {
        const std::string Text = Files.Text(u"app.log.xml");
        int Result = 0;
        for (std::size_t Place = 0; (Place = Text.find("</log>", Place)) != std::string::npos; ++Place)
            ++Result;
        return Result;
    };
    Files.Put(u"app.log.xml", "");
    for (int I = 0; I < 3; ++I)
        Run(true);
    EXPECT_EQ(Files.Text(u"app.log.xml").rfind("<?xml-stylesheet", 0), 0u);
    EXPECT_EQ(Documents(), 1);
    Run(false);
    EXPECT_EQ(Documents(), 2);
}

TEST(LogFiles, NamesThatAreNotUsedLeaveNoDirectory) {
    const UnicodeString Path =
        ExtractFilePath(Ref<TQzFileAppender>(TQzFileAppender::Create(nullptr, u""))->GetFileName());
    std::ignore = platform::RemoveEmptyDirectory(Path);
    const bool WasThere = DirectoryExists(Path); // with files of other tests
    const Ref<TQzFileAppender> File(TQzFileAppender::Create(nullptr, u""));
    EXPECT_EQ(DirectoryExists(Path), WasThere);
}

// A header that closes its appender, and an opening that fails while a file is open.
TEST(LogFiles, NoFailureSilencesAnAppender) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    const Ref<TClosingLayout> Layout(TClosingLayout::Create(nullptr, u""));
    Layout->Appender = File.Get();
    File->SetLayout(Layout.Get());
    Say(File, u"one");
    EXPECT_NE(Files.Text().find("one|"), std::string::npos);
    File->SetAppendExisting(false);
    if (!DeleteFile(Files.Path(u"app.log")))
        return; // Windows keeps a file that is open
    EXPECT_TRUE(ForceDirectories(Files.Path(u"app.log")));
    EXPECT_THROW(File->Initialize(), EStreamError);
    EXPECT_TRUE(platform::RemoveEmptyDirectory(Files.Path(u"app.log")));
    Say(File, u"two");
    EXPECT_EQ(Files.Text(), "head|two|");
}

} // namespace
} // namespace qz
