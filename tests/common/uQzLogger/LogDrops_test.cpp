#include <qz/common/uQzLogger/LogDrops.h>

#include <gtest/gtest.h>

#include <thread>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

// Notes what the hook hears of.
class TDropNotes {
public:
    TDropNotes() {
        QzSetLogDropHook([this](const TQzLogDrop& ADrop) {
            Notes += ADrop.Logger + u'/' + ADrop.Appender + u": " + ADrop.Message + u'|';
        });
    }
    ~TDropNotes() { QzSetLogDropHook(nullptr); }
    TDropNotes(const TDropNotes&) = delete;
    TDropNotes& operator=(const TDropNotes&) = delete;
    UnicodeString Notes;
};

TEST(LogDrops, FaultsOfTheConfigurationOnceEach) {
    const TLogTree Tree;
    TDropNotes Hook;
    const std::uint64_t Dropped = QzDroppedLogMessages();
    Logger().Error("no appender, but not fatal");
    for (int I = 0; I < 2; ++I)
        Logger().Fatal("lost %d", {I});
    EXPECT_EQ(Hook.Notes, u"root/: No appender for the fatal message: lost 0|");
    Hook.Notes = {};
    const Ref<TConfiguration> Values = TConfiguration::Create();
    Values->Answers[u"root/Appenders"] = VarArrayOf({u"misspelt", u"bare"});
    Values->Answers[u"root/Level"] = 0;
    Values->Answers[u"bare/class"] = u"TQzFileAppender";
    Values->Answers[u"bare/FileName"] = u" ";
    Logger().SetConfig(Values.Get());
    for (int I = 0; I < 2; ++I)
        Logger().Info("x");
    EXPECT_EQ(Hook.Notes,
              u"root/misspelt: The appender does not exist and has no class|"
              u"/bare: The appender has no layout|");
    EXPECT_EQ(QzDroppedLogMessages(), Dropped);
}

TEST(LogDrops, QueueAndBufferAreReported) {
    const TLogTree Tree;
    TDropNotes Hook;
    const std::uint64_t Dropped = QzDroppedLogMessages();
    TMemoryAppender& Out = AddMemory(Logger());
    Out.OnWrite = [](const UnicodeString&) { Logger().Info("again"); };
    Logger().Info("first");
    EXPECT_EQ(Out.Lines.size(), 1001u);
    EXPECT_EQ(QzDroppedLogMessages(), Dropped + 1);
    EXPECT_EQ(Hook.Notes, u"root/: More than 1000 messages arose while one was delivered|");
}

// A report that is made only once must not be lost.
TEST(LogDrops, WhatAnotherThreadReportsWaitsForTheHook) {
    const TLogTree Tree;
    UnicodeString Notes;
    QzSetLogDropHook([&Notes](const TQzLogDrop& ADrop) {
        if (Notes.IsEmpty())
            std::thread([] { Logger().Fatal("second"); }).join();
        Notes += ADrop.Message + u'|';
    });
    const Ref<TConfiguration> Values = TConfiguration::Create();
    Values->Answers[u"root/Appenders"] = VarArrayOf({u"misspelt"});
    Logger().SetConfig(Values.Get());
    QzSetLogDropHook(nullptr);
    EXPECT_EQ(Notes,
              u"The appender does not exist and has no class|No appender for the fatal message: second|");
}

TEST(LogDrops, PatternsAreCheckedWhereNoAppenderTakesThem) {
    const TLogTree Tree;
    EXPECT_THROW(Logger().Debug("%d", {"text"}), EConvertError);
    EXPECT_THROW(Logger().Info(u"%s", {}), EConvertError);
    EXPECT_THROW(Logger().Trace(&Logger(), "%", {1}), EConvertError);
    EXPECT_THROW(Logger().EnterMethod(&Logger(), "%q", {1}), EConvertError);
    EXPECT_NO_THROW(Logger().Warn("%s %5.2f %x %% %p", {"a", 1.5, 255, nullptr}));
}

TEST(LogMessages, EachLevelTakesPatternsAndExceptions) {
    const TLogTree Tree;
    TMemoryAppender& Out = AddMemory(Logger());
    Logger().SetLevel(llAll);
    IQzLogger& Log = Logger();
    const std::runtime_error Plain("why");
    const EConvertError Own(u"how"); // an object as the value, the text of which holds its address
    Log.Info("%s-%d", {"a", 1});
    Log.Warn("%s", {'c'});
    Log.Error("%s", {u"e"});
    Log.Trace("t", Plain);
    Log.Debug("d", Plain);
    Log.Error("e", Own);
    Log.Warn("w", Plain);
    Log.Error("e", Plain);
    Log.Fatal("f", Plain);
    Log.Fatal(Plain);
    EXPECT_EQ(Out.Take(),
              u"root>root Info a-1|root>root Warn c|root>root Error e|root>root Trace t=why|"
              u"root>root Debug d=why|root>root Error e\r\nhow|root>root Warn w=why|"
              u"root>root Error e\r\nwhy|root>root Fatal f=why|root>root Fatal why=why|");
}

} // namespace
} // namespace qz
