#include <qz/common/uQzLogAppenders/FileAppender.h>

#include <gtest/gtest.h>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include <qz/common/uQzLogger.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

class FileAppender : public testing::Test {
protected:
    TLogFiles Files;
    const TLogTree Tree;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
};

// A continued file gets no second header, and its new lines follow the footer.
TEST_F(FileAppender, FilesAreContinuedOrReplaced) {
    Say(File, u"one");
    EXPECT_EQ(Files.Text(), "head|one|");
    Say(File, u"Zo\u00EB \xD83D\xDE00 \xD800");
    File->Close();
    File->Close();
    EXPECT_EQ(Files.Text(), "head|one|Zo\u00EB \U0001F600 \uFFFD|foot");
    Say(File, u"two");
    EXPECT_EQ(Files.Text(), "head|one|Zo\u00EB \U0001F600 \uFFFD|foottwo|");
    File->Close();
    File->SetAppendExisting(false);
    Say(File, u"three");
    EXPECT_EQ(Files.Text(), "head|three|");
    File->SetFileName(Files.Path(u"a/b/app.log"));
    EXPECT_EQ(Files.Text(), "head|three|foot") << "a new name closes the file";
    Say(File, u"four");
    File->SetFileName(Files.Path(u"a/b/app.log"));
    Say(File, u"five");
    EXPECT_EQ(Files.Text(u"a/b/app.log"), "head|four|five|") << "the same name does not";
}

TEST_F(FileAppender, NamesAndExtensions) {
    File->SetFileName(Files.Path(u"x"));
    File->SetFileExt(u"txt");
    EXPECT_EQ(File->GetFileName(), Files.Path(u"x.txt"));
    File->SetFileName(Files.Path(u"y.dat"));
    EXPECT_EQ(File->GetFileExt(), u".dat");
    File->SetFileExt(u"");
    EXPECT_EQ(File->GetFileName(), Files.Path(u"y."));
    File->SetFileName(u"  ");
    Say(File, u"nowhere");
    EXPECT_EQ(Files.Names(), "");
}

TEST_F(FileAppender, Configuration) {
    const Ref<TConfiguration> Config(TConfiguration::Create());
    const Ref<TQzDailyRollingFileAppender> Daily(TQzDailyRollingFileAppender::Create(nullptr, u"f"));
    Daily->SetAppendExisting(false);
    Config->Answers = {{u"f/FileName", Files.Path(u"n.txt")},
                       {u"f/MaxFileSize", std::int64_t{0x1'0000'0007}},
                       {u"f/DatePattern", u"yyyy"},
                       {u"f/FlushLevel", 5}};
    Daily->SetConfig(Config.Get());
    EXPECT_TRUE(Daily->GetAppendExisting()); // the default passed to the configurator
    EXPECT_EQ(Daily->GetFileName(), Files.Path(u"n.txt"));
    EXPECT_EQ(Daily->GetMaxFileSize(), 7u);
    EXPECT_EQ(Daily->GetDatePattern(), u"yyyy");
    EXPECT_EQ(Daily->GetFlushLevel(), llError);
    const std::pair<const char16_t*, int> OutOfRange[] = {
        {u"f/BufferSize", -1}, {u"f/MaxBackupCount", -1}, {u"f/MaxBackupCount", 65536}, {u"f/FlushLevel", 8}};
    for (const auto& [Key, Value] : OutOfRange) {
        Config->Answers = {{Key, Value}};
        EXPECT_THROW(Daily->SetConfig(Config.Get()), ERangeError);
    }
}

TEST_F(FileAppender, LinesWaitInTheBuffer) {
    File->SetBufferSize(64);
    Say(File, u"one");
    Say(File, u"two");
    EXPECT_EQ(Files.Text(), "head|");
    Say(File, u"three", llWarn);
    EXPECT_EQ(Files.Text(), "head|one|two|three|");
    Say(File, u"four");
    Say(File, UnicodeString(70, u'x')); // longer than the buffer
    EXPECT_EQ(Files.Text(), "head|one|two|three|four|" + std::string(70, 'x') + '|');
    Say(File, u"six");
    File->SetBufferSize(0);
    EXPECT_TRUE(Files.Text().ends_with("|six|"));
    File->SetBufferSize(4096);
    Say(File, u"seven");
    for (int I = 0; I < 300 && !Files.Text().ends_with("|seven|"); ++I)
        platform::SleepMs(10);
    EXPECT_TRUE(Files.Text().ends_with("|seven|")); // written by the flusher
    Say(File, u"eight");
    File->Close();
    EXPECT_TRUE(Files.Text().ends_with("|eight|foot"));
}

// A layout that closes the appender, or gives it another layout, while it formats.
class TUnrulyLayout : public TPlainLayout {
    QZ_CLASS(TUnrulyLayout, TPlainLayout)

public:
    UnicodeString FormatLine(const UnicodeString&, TQzLogLevel, const UnicodeString& AMessage, PQzDataRec,
                             TQzLogIndent) override {
        if (AMessage == u"close")
            Appender->Close();
        else if (AMessage == u"replace")
            Appender->SetLayout(TQzLogBaseClass::Of<TPlainLayout>());
        return AMessage;
    }
    TQzFileAppender* Appender = nullptr;

protected:
    using TPlainLayout::TPlainLayout;
};
const TClassRec TUnrulyLayout::ClassRec =
    DescribeLogBase<TUnrulyLayout>(u"TUnrulyLayout", {.Unit = u"Tests"});

TEST_F(FileAppender, LayoutsMayDoAsTheyLike) {
    TUnrulyLayout* Layout = TUnrulyLayout::Create(nullptr, u"");
    Layout->Appender = File.Get();
    File->SetLayout(static_cast<IQzLogLayout*>(Layout));
    for (const char16_t* Message : {u"close", u"one", u"replace", u"two"})
        Say(File, Message);
    EXPECT_EQ(Files.Text(), "head|footclose|one|footreplace|two|");
}

TEST_F(FileAppender, WhatCannotBeOpenedIsTriedAgain) {
    ASSERT_TRUE(ForceDirectories(Files.Path(u"app.log"))); // a directory of that name
    Logger().AddAppender(File.Get());
    const std::uint64_t Dropped = QzDroppedLogMessages();
    Logger().Info("lost");
    EXPECT_EQ(QzDroppedLogMessages(), Dropped + 1);
    EXPECT_THROW(File->Initialize(), EFCreateError);
    ASSERT_TRUE(platform::RemoveEmptyDirectory(Files.Path(u"app.log")));
    for (int Try = 0; Try < 500 && Files.Text() == "-"; ++Try) {
        Logger().Info("kept"); // dropped for a tenth of a second
        platform::SleepMs(10);
    }
    EXPECT_EQ(Files.Text(), "head|kept|");
}

} // namespace
} // namespace qz
