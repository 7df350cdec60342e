#include <qz/common/uQzLogAppenders/FileAppender.h>

#include <gtest/gtest.h>

#include <thread>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/common/uQzWindows.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/time/DateTimeText.h>

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
    Config->Answers = {{u"f/FileName", Files.Path(u"n.txt")},
                       {u"f/MaxFileSize", std::int64_t{0x1'0000'0007}},
                       {u"f/DatePattern", u"yyyy"},
                       {u"f/FlushLevel", 5}};
    Daily->SetConfig(Config.Get());
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
    for (int I = 0; I < 6000 && !Files.Text().ends_with("|seven|"); ++I)
        platform::SleepMs(10);
    EXPECT_TRUE(Files.Text().ends_with("|seven|")); // written by the flusher
    Say(File, u"eight");
    File->Close();
    EXPECT_TRUE(Files.Text().ends_with("|eight|foot"));
}

TEST_F(FileAppender, WhatCannotBeOpenedIsTriedAgain) {
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

class RollingFileAppender : public testing::Test {
protected:
    TLogFiles Files;
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
};

TEST_F(RollingFileAppender, RollsOverAtItsSize) {
    File->SetMaxFileSize(10);
    Say(File, u"12345678901234567890"); // written whole, and over the limit
    Say(File, u"b");                    // "head", with its end of a line, is below it
    Say(File, u"c");
    EXPECT_EQ(Files.Text(u"app.1.log"), "head|12345678901234567890|foot");
    EXPECT_EQ(Files.Text(), "head|b|c|");
    for (int I = 0; I < 12; ++I)
        Say(File, IntToStr(I));
    EXPECT_EQ(Files.Names(), "app.1.log app.2.log app.3.log app.4.log app.log ");
    EXPECT_EQ(Files.Text(u"app.4.log"), "head|4|5|foot");
}

TEST_F(RollingFileAppender, FamiliesWithGapsAndStrangers) {
    const auto Contents = [&] {
        std::string Found;
        for (const char16_t* Name : {u"app.log", u"app.1.log", u"app.2.log", u"app.3.log", u"app.4.log"})
            Found += Files.Text(Name) + ' ';
        return Found;
    };
    Files.Put(u"app.log", "0");
    Files.Put(u"app.1.log", "1");
    Files.Put(u"app.7.log", "7");
    File->RollOver();
    EXPECT_EQ(Contents(), "head| 0 1 7 - ");
    File->Close();
    // some numbers decrease and others increase, and nothing is lost
    EXPECT_TRUE(DeleteFile(Files.Path(u"app.1.log")) && DeleteFile(Files.Path(u"app.2.log")));
    Files.Put(u"app.log", "0");
    Files.Put(u"app.9.log", "9");
    File->RollOver();
    EXPECT_EQ(Contents(), "head| 0 7 9 - ");
    File->Close();
    // two backups of one number, of which the newer one stays, and a name that only begins with the base
    Files.Put(u"app.2.x.log", "x");
    Files.Put(u"apple", "stranger");
    File->RollOver();
    EXPECT_EQ(Files.Names(), "app.1.log app.2le.log app.3.log app.4.x.log app.log ");
}

TEST_F(RollingFileAppender, FilesAboveTheCountGo) {
    Say(File, u"a");
    for (int I = 0; I < 3; ++I)
        File->RollOver();
    EXPECT_EQ(Files.Names(), "app.1.log app.2.log app.3.log app.log ");
    File->SetMaxBackupCount(2);
    EXPECT_EQ(Files.Names(), "app.1.log app.log ");
    File->SetMaxBackupCount(0);
    Say(File, u"nothing");
    EXPECT_EQ(Files.Names(), "");
    File->SetMaxBackupCount(3);
    Say(File, u"again");
    EXPECT_EQ(Files.Text(), "head|again|");
}

TEST_F(RollingFileAppender, WhatIsNotContinuedIsPutAside) {
    Files.Put(u"app.log", "old");
    File->SetAppendExisting(false);
    Say(File, u"new");
    EXPECT_EQ(Files.Text(u"app.1.log"), "old");
    EXPECT_EQ(Files.Text(), "head|new|");
}

// The family has each line once and in order.
TEST_F(RollingFileAppender, ThreadsThatRollOver) {
    const TLogTree Tree;
    File->SetMaxFileSize(64 << 10);
    File->SetMaxBackupCount(100);
    std::vector<std::thread> Threads;
    for (const int BufferSize : {0, 1024}) {
        File->SetBufferSize(BufferSize);
        Logger().AddAppender(File.Get());
        for (int T = 0; T < 8; ++T)
            Threads.emplace_back([Thread = BufferSize + T] {
                for (int I = 0; I < 2000; ++I)
                    Logger().Info(Format(u"%d:%d", {Thread, I}));
            });
        for (std::thread& Thread : std::exchange(Threads, {}))
            Thread.join();
    }
    File->Close();
    std::map<int, int> Next;
    for (int Number = 99; Number > 0; --Number)
        if (const std::string Text = Files.Text(Format(u"app.%d.log", {Number})); Text != "-")
            CountInOrder(Text, Next);
    CountInOrder(Files.Text(), Next);
    EXPECT_EQ(Next.size(), 16u);
    for (const auto& [Thread, Count] : Next)
        EXPECT_EQ(Count, 2000) << Thread;
}

UnicodeString DateOf(TDateTime ADay) {
    return FormatDateTime(u"yyyy-mm-dd", ADay);
}

class DailyRollingFileAppender : public testing::Test {
protected:
    TLogFiles Files;
    const Ref<TQzDailyRollingFileAppender> File = Files.Make<TQzDailyRollingFileAppender>();
};

TEST_F(DailyRollingFileAppender, AFileOfAnEarlierDayIsPutAside) {
    const TDateTime Before = Now() - 3;
    const auto PutOld = [&] {
        File->Close();
        Files.Put(u"app.log", "old");
        QzSetFileCreated(Files.Path(u"app.log"), QzLocalToUTC(Before));
    };
    PutOld();
    if (DateOf(QzGetFileCreated(Files.Path(u"app.log"))) != DateOf(Before))
        GTEST_SKIP() << "the system does not keep the time at which a file was made";
    const UnicodeString Dated = DateOf(Before) + u".log";
    Say(File, u"new");
    EXPECT_EQ(Files.Text(u"app." + Dated), "old");
    EXPECT_EQ(Files.Text(), "head|new|");
    // the dated name exists: number and date
    PutOld();
    Files.Put(u"app." + Dated, "taken");
    File->SetAppendExisting(false);
    Say(File, u"new");
    EXPECT_EQ(Files.Text(u"app.1." + Dated), "old");
    EXPECT_EQ(Files.Text(u"app.2." + Dated), "taken");
    EXPECT_EQ(Files.Text(), "head|new|");
    File->SetMaxBackupCount(0);
    EXPECT_EQ(Files.Names(), "");
}

TEST_F(DailyRollingFileAppender, RollsWhenTheTextChanges) {
    File->SetDatePattern(u"yyyymmdd-hhnnss");
    Say(File, u"one");
    platform::SleepMs(1100);
    Say(File, u"two");
    EXPECT_EQ(Files.Text(), "head|two|");
    std::string Names = Files.Names();
    EXPECT_EQ(std::count(Names.begin(), Names.end(), ' '), 2) << Names;
    EXPECT_TRUE(Names.starts_with("app.2")) << Names;
    // the text is no valid name: number and date of the old file
    File->SetDatePattern(u"yyyy'/'mm");
    EXPECT_TRUE(Files.Names().starts_with("app.1.2")) << Files.Names();
    EXPECT_EQ(Files.Text(), "head|");
}

} // namespace
} // namespace qz
