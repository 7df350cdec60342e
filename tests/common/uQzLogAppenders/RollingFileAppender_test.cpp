#include <qz/common/uQzLogAppenders/RollingFileAppender.h>

#include <gtest/gtest.h>

#include <thread>

#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/common/uQzWindows.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

class RollingFileAppender : public testing::Test {
protected:
    TLogFiles Files;
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
};

TEST_F(RollingFileAppender, NamesAreTakenApart) {
    const std::tuple<const char16_t*, int, const char16_t*> Cases[] = {
        {u"app.3.log", 3, u""},  {u"app.3.x.log", 3, u".x"},
        {u"app.x.log", 0, u""},  {u"app2.log", 0, u"2"},
        {u"app", 0, u""},        {u"app.12.a.b.log", 12, u".a.b"},
        {u"app..5.log", 0, u""}, {u"app.99999999999.log", 0, u""}};
    for (const auto& [Name, Index, Right] : Cases) {
        const TQzFileInfo Info = File->CreateFileInfo(Name);
        EXPECT_EQ(Info.FileNameLeft, u"app");
        EXPECT_EQ(Info.Index, Index) << Utf16ToUtf8(Name);
        EXPECT_EQ(Info.FileNameRight, Right) << Utf16ToUtf8(Name);
    }
}

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
    // the live file comes before a backup with a negative number
    Files.Put(u"app.-1.log", "odd");
    File->SetMaxBackupCount(1);
    EXPECT_EQ(Files.Names(), "app.log ");
}

// A long extension, and a name that is only an extension.
TEST_F(RollingFileAppender, Extensions) {
    File->SetFileName(Files.Path(u".log"));
    File->SetFileExt(u".log.xml");
    Files.Put(u"mine", "mine");
    Say(File, u"x");
    File->RollOver();
    EXPECT_EQ(Files.Names(), ".1.log.xml .log.xml mine ");
}

TEST_F(RollingFileAppender, WhatIsNotContinuedIsPutAside) {
    Files.Put(u"app.log", "old");
    File->SetAppendExisting(false);
    Say(File, u"new");
    EXPECT_EQ(Files.Text(u"app.1.log"), "old");
    EXPECT_EQ(Files.Text(), "head|new|");
    // the files are counted before the new one exists
    for (int I = 0; I < 6; ++I) {
        File->Close();
        Say(File, u"x");
    }
    EXPECT_EQ(Files.Names(), "app.1.log app.2.log app.3.log app.4.log app.5.log app.log ");
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
    // by size, when the dated name exists
    File->SetDatePattern(u"yyyy");
    File->SetMaxFileSize(1);
    Say(File, u"three");
    Say(File, u"four");
    EXPECT_EQ(Files.Text(), "head|four|");
}

} // namespace
} // namespace qz
