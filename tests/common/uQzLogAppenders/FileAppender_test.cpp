#include <qz/common/uQzLogAppenders/FileAppender.h>

#include <gtest/gtest.h>

#include <thread>

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

// A continued file gets no second header, and its new lines follow the footer.
TEST(FileAppender, FilesAreContinuedOrReplaced) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>(u"a/b/app.log");
    Say(File, u"one");
    EXPECT_EQ(Files.Text(u"a/b/app.log"), "head|one|");
    Say(File, u"Zo\u00EB \xD83D\xDE00 \xD800");
    EXPECT_EQ(Files.Text(u"a/b/app.log"), "head|one|Zo\u00EB \U0001F600 \uFFFD|");
    File->Close();
    File->Close();
    EXPECT_EQ(Files.Text(u"a/b/app.log"), "head|one|Zo\u00EB \U0001F600 \uFFFD|foot");
    Say(File, u"two");
    EXPECT_EQ(Files.Text(u"a/b/app.log"), "head|one|Zo\u00EB \U0001F600 \uFFFD|foottwo|");
    File->Close();
    File->SetAppendExisting(false);
    Say(File, u"three");
    EXPECT_EQ(Files.Text(u"a/b/app.log"), "head|three|");
    File->SetLayout(nullptr); // writes the footer of the old layout
    Say(File, u"four");
    EXPECT_EQ(Files.Text(u"a/b/app.log"), "");
    File->Close();
}

TEST(FileAppender, NamesAndExtensions) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File(TQzFileAppender::Create(nullptr, u""));
    EXPECT_EQ(File->GetFileExt(), u".log");
    EXPECT_TRUE(File->GetFileName().View().ends_with(u".log"));
    EXPECT_TRUE(File->GetAppendExisting());
    File->SetFileName(Files.Path(u"x"));
    EXPECT_EQ(File->GetFileName(), Files.Path(u"x.log"));
    File->SetFileExt(u"txt");
    EXPECT_EQ(File->GetFileExt(), u".txt");
    EXPECT_EQ(File->GetFileName(), Files.Path(u"x.txt"));
    File->SetFileName(Files.Path(u"y.dat"));
    EXPECT_EQ(File->GetFileExt(), u".dat");
    File->SetFileExt(u"");
    EXPECT_EQ(File->GetFileName(), Files.Path(u"y."));
    File->SetFileName(u"  ");
    File->SetLayout(TQzLogBaseClass::Of<TPlainLayout>());
    Say(File, u"nowhere");
    EXPECT_EQ(Files.Names(), "");
    // a new name closes the file, the same name does not
    File->SetFileName(Files.Path(u"a.log"));
    Say(File, u"one");
    File->SetFileName(Files.Path(u"a.log"));
    Say(File, u"two");
    File->SetFileName(Files.Path(u"b.log"));
    EXPECT_EQ(Files.Text(u"a.log"), "head|one|two|foot");
}

TEST(FileAppender, Configuration) {
    TLogFiles Files;
    const Ref<TConfiguration> Config(TConfiguration::Create());
    const Ref<TQzDailyRollingFileAppender> File(TQzDailyRollingFileAppender::Create(nullptr, u"f"));
    EXPECT_EQ(File->GetMaxFileSize(), 0x7FFFFFFFu);
    EXPECT_EQ(File->GetMaxBackupCount(), 5);
    EXPECT_EQ(File->GetDatePattern(), u"yyyy-mm-dd");
    File->SetAppendExisting(false);
    Config->Answers = {{u"f/FileName", Files.Path(u"n.txt")},
                       {u"f/FileExt", u"dat"},
                       {u"f/Layout", u"TQzSimpleLayout"},
                       {u"f/MaxFileSize", std::int64_t{0x1'0000'0007}},
                       {u"f/MaxBackupCount", 3},
                       {u"f/DatePattern", u"yyyy"},
                       {u"f/BufferSize", 4096},
                       {u"f/FlushLevel", 5}};
    File->SetConfig(Config.Get());
    EXPECT_TRUE(File->GetAppendExisting()); // the default passed to the configurator
    EXPECT_EQ(File->GetFileName(), Files.Path(u"n.txt"));
    EXPECT_EQ(File->GetFileExt(), u".txt");
    EXPECT_EQ(File->GetMaxFileSize(), 7u);
    EXPECT_EQ(File->GetMaxBackupCount(), 3);
    EXPECT_EQ(File->GetDatePattern(), u"yyyy");
    EXPECT_EQ(File->GetBufferSize(), 4096);
    EXPECT_EQ(File->GetFlushLevel(), llError);
    EXPECT_NE(nullptr, File->GetLayout());
    Config->Answers = {{u"f/FileExt", u"dat"}, {u"f/AppendExisting", false}};
    File->SetConfig(Config.Get());
    EXPECT_EQ(File->GetFileName(), Files.Path(u"n.dat"));
    EXPECT_FALSE(File->GetAppendExisting());
    EXPECT_EQ(File->GetMaxFileSize(), 7u);
    Config->Answers = {{u"f/BufferSize", -1}};
    EXPECT_THROW(File->SetConfig(Config.Get()), ERangeError);
    for (const int Count : {-1, 65536}) {
        Config->Answers = {{u"f/MaxBackupCount", Count}};
        EXPECT_THROW(File->SetConfig(Config.Get()), ERangeError);
    }
    Config->Answers = {{u"f/FlushLevel", 8}};
    EXPECT_THROW(File->SetConfig(Config.Get()), ERangeError);
}

// A logger holds the appender once, by whichever interface it is added.
TEST(FileAppender, IsOneAppenderByAnyInterface) {
    TLogFiles Files;
    const TLogTree Tree;
    const Ref<TQzDailyRollingFileAppender> File = Files.Make<TQzDailyRollingFileAppender>();
    const auto Daily = AsInterface<IQzFileAppender>(File.Get());
    EXPECT_EQ(Daily.Get(),
              static_cast<IQzFileAppender*>(static_cast<IQzDailyRollingFileAppender*>(File.Get())));
    Logger().AddAppender(File.Get());
    Logger().AddAppender(Daily.Get());
    Logger().AddAppender(AsInterface<IQzLogAppender>(File.Get()).Get());
    EXPECT_EQ(Logger().GetAppenders()->Count(), 1);
    Logger().Info("once");
    EXPECT_EQ(Files.Text(), "head|once|");
    Logger().RemoveAppender(Daily.Get());
    EXPECT_EQ(Logger().GetAppenders()->Count(), 0);
    for (const char16_t* Name :
         {u"TQzFileAppender", u"TQzRollingFileAppender", u"TQzDailyRollingFileAppender"})
        EXPECT_EQ(RegisteredAppenders().GetClass(Name)->Name(), Name);
}

TEST(FileAppender, LinesWaitInTheBuffer) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    File->SetBufferSize(64);
    Say(File, u"one");
    Say(File, u"two");
    EXPECT_EQ(Files.Text(), "head|");
    Say(File, u"three", llWarn);
    EXPECT_EQ(Files.Text(), "head|one|two|three|");
    Say(File, u"four");
    Say(File, UnicodeString(70, u'x')); // longer than the buffer
    EXPECT_EQ(Files.Text(), "head|one|two|three|four|" + std::string(70, 'x') + '|');
    Say(File, u"five");
    File->Flush();
    EXPECT_TRUE(Files.Text().ends_with("|five|"));
    Say(File, u"six");
    File->SetBufferSize(0);
    EXPECT_TRUE(Files.Text().ends_with("|six|"));
    File->SetBufferSize(4096);
    Say(File, u"seven");
    for (int I = 0; I < 6000 && !Files.Text().ends_with("|seven|"); ++I)
        platform::SleepMs(10);
    EXPECT_TRUE(Files.Text().ends_with("|seven|")); // written by the flusher
    Say(File, u"eight");
    File->Close();
    EXPECT_TRUE(Files.Text().ends_with("|eight|foot"));
}

// The file has each line of each thread once and in order.
TEST(FileAppender, ManyThreadsWriteWholeLines) {
    constexpr int cThreads = 4;
    constexpr int cLines = 500;
    for (const int BufferSize : {0, 1024}) {
        TLogFiles Files;
        const TLogTree Tree;
        const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
        File->SetBufferSize(BufferSize);
        Logger().AddAppender(File.Get());
        std::vector<std::thread> Threads;
        for (int T = 0; T < cThreads; ++T)
            Threads.emplace_back([T] {
                for (int I = 0; I < cLines; ++I)
                    Logger().Info(Format(u"%d:%d", {T, I}));
            });
        for (std::thread& Thread : Threads)
            Thread.join();
        File->Close();
        std::string Text = Files.Text();
        ASSERT_TRUE(Text.starts_with("head|"));
        int Next[cThreads] = {};
        std::size_t Place = 5;
        for (int I = 0; I < cThreads * cLines; ++I) {
            int T = 0, Line = 0, Length = 0;
            ASSERT_EQ(std::sscanf(Text.c_str() + Place, "%d:%d|%n", &T, &Line, &Length), 2);
            ASSERT_TRUE(T >= 0 && T < cThreads);
            ASSERT_EQ(Line, Next[T]++);
            Place += static_cast<std::size_t>(Length);
        }
        EXPECT_EQ(Text.substr(Place), "foot");
    }
}

// A layout that closes the appender, gives it another layout, or logs, while it formats.
class TUnrulyLayout : public TPlainLayout {
    QZ_CLASS(TUnrulyLayout, TPlainLayout)

public:
    UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel, const UnicodeString& AMessage,
                             PQzDataRec AValue, TQzLogIndent AIndent) override {
        if (AMessage == u"close")
            Appender->Close();
        if (AMessage == u"log")
            Logger().Info("of the layout");
        if (AMessage == u"replace")
            Appender->SetLayout(TQzLogBaseClass::Of<TPlainLayout>());
        return Inherited::FormatLine(ALogger, ALevel, AMessage, AValue, AIndent);
    }
    TQzFileAppender* Appender = nullptr;

protected:
    using TPlainLayout::TPlainLayout;
};
const TClassRec TUnrulyLayout::ClassRec =
    DescribeLogBase<TUnrulyLayout>(u"TUnrulyLayout", {.Unit = u"Tests"});

TEST(FileAppender, LayoutsMayDoAsTheyLike) {
    TLogFiles Files;
    const TLogTree Tree;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    Logger().AddAppender(File.Get());
    TUnrulyLayout* Layout = TUnrulyLayout::Create(nullptr, u"");
    Layout->Appender = File.Get();
    File->SetLayout(static_cast<IQzLogLayout*>(Layout));
    Say(File, u"close");
    Say(File, u"one");
    Say(File, u"log"); // not through a logger
    Say(File, u"replace");
    Say(File, u"two");
    EXPECT_EQ(Files.Text(), "head|footclose|one|log|of the layout|footreplace|two|");
}

TEST(FileAppender, WhatCannotBeOpenedIsTriedAgain) {
    TLogFiles Files;
    const TLogTree Tree;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    ASSERT_TRUE(ForceDirectories(Files.Path(u"app.log"))); // a directory of that name
    Logger().AddAppender(File.Get());
    const std::uint64_t Dropped = QzDroppedLogMessages();
    Logger().Info("lost");
    EXPECT_EQ(QzDroppedLogMessages(), Dropped + 1);
    EXPECT_THROW(File->Initialize(), EFCreateError);
    ASSERT_TRUE(platform::RemoveEmptyDirectory(Files.Path(u"app.log")));
    for (int Try = 0; Try < 6000 && Files.Text() == "-"; ++Try) {
        Logger().Info("kept"); // dropped for a tenth of a second
        platform::SleepMs(10);
    }
    EXPECT_EQ(Files.Text(), "head|kept|");
}

} // namespace
} // namespace qz
