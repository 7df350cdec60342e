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

// A file that is continued gets no second header, and goes on behind the footer.
TEST(FileAppender, FilesAreContinuedOrReplaced) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>(u"a/b/app.log");
    Say(File, u"one");
    EXPECT_EQ("head|one|", Files.Text(u"a/b/app.log"));
    Say(File, u"Zo\u00EB \xD83D\xDE00 \xD800");
    EXPECT_EQ("head|one|Zo\u00EB \U0001F600 \uFFFD|", Files.Text(u"a/b/app.log"));
    File->Close();
    File->Close();
    EXPECT_EQ("head|one|Zo\u00EB \U0001F600 \uFFFD|foot", Files.Text(u"a/b/app.log"));
    Say(File, u"two");
    EXPECT_EQ("head|one|Zo\u00EB \U0001F600 \uFFFD|foottwo|", Files.Text(u"a/b/app.log"));
    File->Close();
    File->SetAppendExisting(false);
    Say(File, u"three");
    EXPECT_EQ("head|three|", Files.Text(u"a/b/app.log"));
    File->SetLayout(nullptr); // the old layout ends its file
    Say(File, u"four");
    EXPECT_EQ("", Files.Text(u"a/b/app.log"));
    File->Close();
}

TEST(FileAppender, NamesAndExtensions) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File(TQzFileAppender::Create(nullptr, u""));
    EXPECT_EQ(u".log", File->GetFileExt());
    EXPECT_TRUE(File->GetFileName().View().ends_with(u".log"));
    EXPECT_TRUE(File->GetAppendExisting());
    File->SetFileName(Files.Path(u"x"));
    EXPECT_EQ(Files.Path(u"x.log"), File->GetFileName());
    File->SetFileExt(u"txt");
    EXPECT_EQ(u".txt", File->GetFileExt());
    EXPECT_EQ(Files.Path(u"x.txt"), File->GetFileName());
    File->SetFileName(Files.Path(u"y.dat"));
    EXPECT_EQ(u".dat", File->GetFileExt());
    File->SetFileExt(u"");
    EXPECT_EQ(Files.Path(u"y."), File->GetFileName());
    File->SetFileName(u"  ");
    File->SetLayout(TQzLogBaseClass::Of<TPlainLayout>());
    Say(File, u"nowhere");
    EXPECT_EQ("", Files.Names());
    // another name closes the file, the same one does not
    File->SetFileName(Files.Path(u"a.log"));
    Say(File, u"one");
    File->SetFileName(Files.Path(u"a.log"));
    Say(File, u"two");
    File->SetFileName(Files.Path(u"b.log"));
    EXPECT_EQ("head|one|two|foot", Files.Text(u"a.log"));
}

TEST(FileAppender, Configuration) {
    TLogFiles Files;
    const Ref<TConfiguration> Config(TConfiguration::Create());
    const Ref<TQzDailyRollingFileAppender> File(TQzDailyRollingFileAppender::Create(nullptr, u"f"));
    EXPECT_EQ(0x7FFFFFFFu, File->GetMaxFileSize());
    EXPECT_EQ(5, File->GetMaxBackupCount());
    EXPECT_EQ(u"yyyy-mm-dd", File->GetDatePattern());
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
    EXPECT_TRUE(File->GetAppendExisting()); // the default of the question
    EXPECT_EQ(Files.Path(u"n.txt"), File->GetFileName());
    EXPECT_EQ(u".txt", File->GetFileExt());
    EXPECT_EQ(7u, File->GetMaxFileSize());
    EXPECT_EQ(3, File->GetMaxBackupCount());
    EXPECT_EQ(u"yyyy", File->GetDatePattern());
    EXPECT_EQ(4096, File->GetBufferSize());
    EXPECT_EQ(llError, File->GetFlushLevel());
    EXPECT_NE(nullptr, File->GetLayout());
    Config->Answers = {{u"f/FileExt", u"dat"}, {u"f/AppendExisting", false}};
    File->SetConfig(Config.Get());
    EXPECT_EQ(Files.Path(u"n.dat"), File->GetFileName());
    EXPECT_FALSE(File->GetAppendExisting());
    EXPECT_EQ(7u, File->GetMaxFileSize());
    Config->Answers = {{u"f/BufferSize", -1}};
    EXPECT_THROW(File->SetConfig(Config.Get()), ERangeError);
    for (const int Count : {-1, 65536}) {
        Config->Answers = {{u"f/MaxBackupCount", Count}};
        EXPECT_THROW(File->SetConfig(Config.Get()), ERangeError);
    }
    Config->Answers = {{u"f/FlushLevel", 8}};
    EXPECT_THROW(File->SetConfig(Config.Get()), ERangeError);
}

// A logger takes the appender once, by whatever interface it comes.
TEST(FileAppender, IsOneAppenderByAnyInterface) {
    TLogFiles Files;
    const TLogTree Tree;
    const Ref<TQzDailyRollingFileAppender> File = Files.Make<TQzDailyRollingFileAppender>();
    const auto Daily = AsInterface<IQzFileAppender>(File.Get());
    EXPECT_EQ(static_cast<IQzFileAppender*>(static_cast<IQzDailyRollingFileAppender*>(File.Get())),
              Daily.Get());
    Logger().AddAppender(File.Get());
    Logger().AddAppender(Daily.Get());
    Logger().AddAppender(AsInterface<IQzLogAppender>(File.Get()).Get());
    EXPECT_EQ(1, Logger().GetAppenders()->Count());
    Logger().Info("once");
    EXPECT_EQ("head|once|", Files.Text());
    Logger().RemoveAppender(Daily.Get());
    EXPECT_EQ(0, Logger().GetAppenders()->Count());
    for (const char16_t* Name :
         {u"TQzFileAppender", u"TQzRollingFileAppender", u"TQzDailyRollingFileAppender"})
        EXPECT_EQ(Name, RegisteredAppenders().GetClass(Name)->Name());
}

TEST(FileAppender, LinesWaitInTheBuffer) {
    TLogFiles Files;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    File->SetBufferSize(64);
    Say(File, u"one");
    Say(File, u"two");
    EXPECT_EQ("head|", Files.Text());
    Say(File, u"three", llWarn);
    EXPECT_EQ("head|one|two|three|", Files.Text());
    Say(File, u"four");
    Say(File, UnicodeString(70, u'x')); // longer than the buffer
    EXPECT_EQ("head|one|two|three|four|" + std::string(70, 'x') + '|', Files.Text());
    Say(File, u"five");
    File->Flush();
    EXPECT_TRUE(Files.Text().ends_with("|five|"));
    Say(File, u"six");
    File->SetBufferSize(0);
    EXPECT_TRUE(Files.Text().ends_with("|six|"));
    File->SetBufferSize(4096);
    Say(File, u"seven");
    for (int I = 0; I < 300 && !Files.Text().ends_with("|seven|"); ++I)
        platform::SleepMs(10);
    EXPECT_TRUE(Files.Text().ends_with("|seven|")); // by itself
    Say(File, u"eight");
    File->Close();
    EXPECT_TRUE(Files.Text().ends_with("|eight|foot"));
}

// Each line of each thread is there once and in order.
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
            ASSERT_EQ(2, std::sscanf(Text.c_str() + Place, "%d:%d|%n", &T, &Line, &Length));
            ASSERT_TRUE(T >= 0 && T < cThreads);
            ASSERT_EQ(Next[T]++, Line);
            Place += static_cast<std::size_t>(Length);
        }
        EXPECT_EQ("foot", Text.substr(Place));
    }
}

// A layout that closes the appender, or gives it another layout, while it formats.
class TUnrulyLayout : public TPlainLayout {
    QZ_CLASS(TUnrulyLayout, TPlainLayout)

public:
    UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel, const UnicodeString& AMessage,
                             PQzDataRec AValue, TQzLogIndent AIndent) override {
        if (AMessage == u"close")
            Appender->Close();
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
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    TUnrulyLayout* Layout = TUnrulyLayout::Create(nullptr, u"");
    Layout->Appender = File.Get();
    File->SetLayout(static_cast<IQzLogLayout*>(Layout));
    Say(File, u"close");
    Say(File, u"one");
    Say(File, u"replace");
    Say(File, u"two");
    EXPECT_EQ("head|footclose|one|footreplace|two|", Files.Text());
}

TEST(FileAppender, WhatCannotBeOpenedIsTriedAgain) {
    TLogFiles Files;
    const TLogTree Tree;
    const Ref<TQzFileAppender> File = Files.Make<TQzFileAppender>();
    ASSERT_TRUE(ForceDirectories(Files.Path(u"app.log"))); // in the way
    Logger().AddAppender(File.Get());
    const std::uint64_t Dropped = QzDroppedLogMessages();
    Logger().Info("lost");
    EXPECT_EQ(Dropped + 1, QzDroppedLogMessages());
    EXPECT_THROW(File->Initialize(), EFCreateError);
    ASSERT_TRUE(platform::RemoveEmptyDirectory(Files.Path(u"app.log")));
    Logger().Info("kept");
    EXPECT_EQ("head|kept|", Files.Text());
}

} // namespace
} // namespace qz
