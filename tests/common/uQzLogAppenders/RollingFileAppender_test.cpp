#include <qz/common/uQzLogAppenders/RollingFileAppender.h>

#include <gtest/gtest.h>

#include "tests/common/support/LogFiles.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/common/uQzWindows.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

TEST(RollingFileAppender, NamesAreTakenApart) {
    TLogFiles Files;
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
    const struct {
        const char16_t* Name;
        int Index;
        const char16_t* Right;
    } cCases[] = {{u"app.log", 0, u""},       {u"app.3.log", 3, u""},
                  {u"app.3.x.log", 3, u".x"}, {u"app.x.log", 0, u""},
                  {u"app2.log", 0, u"2"},     {u"app.12.a.b.log", 12, u".a.b"},
                  {u"app", 0, u""},           {u"app..log", 0, u""},
                  {u"app..5.log", 0, u""},    {u"app.99999999999.log", 0, u""}};
    for (const auto& Case : cCases) {
        const TQzFileInfo Info = File->CreateFileInfo(Case.Name);
        EXPECT_EQ(Info.FileNameLeft, u"app");
        EXPECT_EQ(Info.Index, Case.Index) << Utf16ToUtf8(Case.Name);
        EXPECT_EQ(Info.FileNameRight, Case.Right) << Utf16ToUtf8(Case.Name);
    }
}

TEST(RollingFileAppender, RollsOverAtItsSize) {
    TLogFiles Files;
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
    File->SetMaxFileSize(10);
    Say(File, u"12345678901234567890"); // written whole, and over the limit
    Say(File, u"b");                    // "head", with its end of a line, is below it
    Say(File, u"c");
    EXPECT_EQ(Files.Names(), "app.1.log app.log ");
    EXPECT_EQ(Files.Text(u"app.1.log"), "head|12345678901234567890|foot");
    EXPECT_EQ(Files.Text(), "head|b|c|");
    for (int I = 0; I < 12; ++I)
        Say(File, IntToStr(I));
    EXPECT_EQ(Files.Names(), "app.1.log app.2.log app.3.log app.4.log app.log ");
    EXPECT_EQ(Files.Text(u"app.4.log"), "head|4|5|foot");
    File->SetMaxFileSize(0);
    for (int I = 0; I < 20; ++I)
        Say(File, u"x");
    EXPECT_EQ(Files.Text().size(), 48u);
}

TEST(RollingFileAppender, FamiliesWithGapsAndStrangers) {
    TLogFiles Files;
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
    const auto Expect = [&](const char* AContents) {
        std::string Found;
        for (const char16_t* Name : {u"app.log", u"app.1.log", u"app.2.log", u"app.3.log", u"app.4.log"})
            Found += Files.Text(Name) + ' ';
        EXPECT_EQ(Found, AContents);
    };
    Files.Put(u"app.log", "0");
    Files.Put(u"app.1.log", "1");
    Files.Put(u"app.7.log", "7");
    File->RollOver();
    Expect("head| 0 1 7 - ");
    File->Close();
    // some numbers decrease and others increase, and nothing is lost
    EXPECT_TRUE(DeleteFile(Files.Path(u"app.1.log")) && DeleteFile(Files.Path(u"app.2.log")));
    Files.Put(u"app.log", "0");
    Files.Put(u"app.9.log", "9");
    File->RollOver();
    Expect("head| 0 7 9 - ");
    File->Close();
    // two backups of one number, of which the newer one stays, and a name that only begins with the base
    Files.Put(u"app.2.x.log", "x");
    Files.Put(u"apple", "stranger");
    File->RollOver();
    EXPECT_EQ(Files.Names(), "app.1.log app.2le.log app.3.log app.4.x.log app.log ");
}

TEST(RollingFileAppender, TheCount) {
    TLogFiles Files;
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
    Say(File, u"a");
    for (int I = 0; I < 3; ++I)
        File->RollOver();
    EXPECT_EQ(Files.Names(), "app.1.log app.2.log app.3.log app.log ");
    File->SetMaxBackupCount(2);
    EXPECT_EQ(Files.Names(), "app.1.log app.log ");
    File->SetMaxBackupCount(0);
    EXPECT_EQ(Files.Names(), "");
    Say(File, u"nothing");
    EXPECT_EQ(Files.Names(), "");
    File->SetMaxBackupCount(3);
    Say(File, u"again");
    EXPECT_EQ(Files.Text(), "head|again|");
}

// A long extension, and a name that is only an extension.
TEST(RollingFileAppender, Extensions) {
    TLogFiles Files;
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
    File->SetLayout(QzXmlLayout);
    EXPECT_TRUE(DeleteFile(Files.Path(u"app.log.xsl")));
    Say(File, u"x");
    for (int I = 0; I < 3; ++I)
        File->RollOver();
    EXPECT_EQ(Files.Names(), "app.1.log.xml app.2.log.xml app.3.log.xml app.log.xml ");
    File->SetMaxBackupCount(0);
    Files.Put(u"mine", "mine");
    File->SetFileName(Files.Path(u".log"));
    File->SetMaxBackupCount(2);
    Say(File, u"x");
    File->RollOver();
    EXPECT_EQ(Files.Text(u"mine"), "mine");
}

// The live file comes before a backup with a negative number.
TEST(RollingFileAppender, OddNumbers) {
    TLogFiles Files;
    Files.Put(u"app.-1.log", "odd");
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
    Say(File, u"x");
    File->SetMaxBackupCount(1);
    EXPECT_EQ(Files.Names(), "app.log ");
}

TEST(RollingFileAppender, WhatIsNotContinuedIsPutAside) {
    TLogFiles Files;
    Files.Put(u"app.log", "old");
    const Ref<TQzRollingFileAppender> File = Files.Make<TQzRollingFileAppender>();
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

UnicodeString DateOf(TDateTime ADay) {
    return FormatDateTime(u"yyyy-mm-dd", ADay);
}

TEST(DailyRollingFileAppender, AFileOfAnEarlierDayIsPutAside) {
    TLogFiles Files;
    const TDateTime Before = Now() - 3;
    const UnicodeString Dated = u"app." + DateOf(Before) + u".log";
    Files.Put(u"app.log", "old");
    QzSetFileCreated(Files.Path(u"app.log"), QzLocalToUTC(Before));
    if (DateOf(QzGetFileCreated(Files.Path(u"app.log"))) != DateOf(Before))
        GTEST_SKIP() << "the system does not keep the time at which a file was made";
    for (const bool Appends : {true, false}) {
        Files.Put(u"app.log", "old");
        QzSetFileCreated(Files.Path(u"app.log"), QzLocalToUTC(Before));
        const Ref<TQzDailyRollingFileAppender> File = Files.Make<TQzDailyRollingFileAppender>();
        File->SetAppendExisting(Appends);
        Say(File, u"new");
        EXPECT_EQ(Files.Text(Dated), "old");
        EXPECT_EQ(Files.Text(), "head|new|");
        File->Close();
        EXPECT_TRUE(DeleteFile(Files.Path(Dated)) && DeleteFile(Files.Path(u"app.log")));
    }
    // the dated name exists: number and date
    Files.Put(u"app.log", "old");
    Files.Put(Dated, "taken");
    QzSetFileCreated(Files.Path(u"app.log"), QzLocalToUTC(Before));
    const Ref<TQzDailyRollingFileAppender> File = Files.Make<TQzDailyRollingFileAppender>();
    Say(File, u"new");
    EXPECT_EQ(Files.Text(u"app.1." + DateOf(Before) + u".log"), "old");
    EXPECT_EQ(Files.Text(u"app.2." + DateOf(Before) + u".log"), "taken");
    EXPECT_EQ(Files.Text(), "head|new|");
    File->SetMaxBackupCount(0);
    EXPECT_EQ(Files.Names(), "");
}

TEST(DailyRollingFileAppender, RollsWhenTheTextChanges) {
    TLogFiles Files;
    const Ref<TQzDailyRollingFileAppender> File = Files.Make<TQzDailyRollingFileAppender>();
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
    Names = Files.Names();
    EXPECT_TRUE(Names.starts_with("app.1.2")) << Names;
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
