#include <gtest/gtest.h>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/MemoryAppender.h"
#include "tests/support/Message.h"
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

class LogConfig : public testing::Test {
protected:
    LogConfig() {
        RegisteredAppenders().Add(TQzLogBaseClass::Of<TMemoryAppender>());
        Logger().SetConfig(Config.Get());
        Config->Asked.Clear();
    }
    static TMemoryAppender& Appender(IQzLogger& ALogger, int AIndex) {
        return dynamic_cast<TMemoryAppender&>(*ALogger.GetAppenders()->GetAppender(AIndex)->Component());
    }
    const TLogTree Tree;
    const Ref<TConfiguration> Config = TConfiguration::Create();
};

TEST_F(LogConfig, ANewLoggerAsksUnderItsFullName) {
    Config->Answers = {{u"root.a/Level", 3},
                       {u"root.a/Appenders", VarArrayOf({u"One", u"None", u"Two"})},
                       {u"One/class", u"tmemoryappender"},
                       {u"One/Layout", u"TQzSimpleLayout"},
                       {u"Two/class", u"TMemoryAppender"}};
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    EXPECT_EQ(
        Config->Asked,
        u"root.a/Level:1 root.a/Additive:4 root.a/Appenders:6 One/class:3 One/Layout:3 None/class:3 Two/class:3 "
        u"Two/Layout:3 ");
    EXPECT_EQ(Log->GetLevel(), llInfo);
    ASSERT_EQ(Log->GetAppenders()->Count(), 2);
    EXPECT_NE(nullptr, Appender(*Log, 0).GetLayout());
    EXPECT_EQ(Appender(*Log, 1).GetLayout(), nullptr);
    // The configurator has no answer for this logger.
    EXPECT_EQ(Logger().GetLogger("b")->GetLevel(), llDoNotLog);
}

TEST_F(LogConfig, LoggersShareTheAppenderOfAName) {
    Config->Answers = {{u"root.a/Level", 0},
                       {u"root.a.b/Level", 0},
                       {u"root.a/Appenders", VarArrayOf({u"Shared"})},
                       {u"root.a.b/Appenders", VarArrayOf({u"Shared"})},
                       {u"Shared/class", u"TMemoryAppender"},
                       {u"root.c/Appenders", VarArrayOf({u"shared"})}}; // names are case-sensitive
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    EXPECT_EQ(AppenderInstances().Count(), 1);
    Log->Info("x");
    EXPECT_EQ(Appender(*Log, 0).Take(), u"root.a.b>root.a.b Info x|root.a.b>root.a Info x|");
    EXPECT_EQ(Logger().GetLogger("c")->GetAppenders()->Count(), 0);
    EXPECT_LT(3, Config->RefCount());
    Logger().SetConfig(nullptr);
    EXPECT_EQ(Config->RefCount(), 1);
    EXPECT_EQ(Log->GetLevel(), llAll);
}

TEST_F(LogConfig, FailuresLeaveWhatWasDone) {
    Config->Answers = {{u"root.a/Appenders", VarArrayOf({u"One", u"Two", u"Three"})},
                       {u"One/class", u"TMemoryAppender"},
                       {u"Two/class", u"TNothing"}};
    EXPECT_EQ(Message([] { Logger().GetLogger("a"); }), u"Class TNothing not found!");
    EXPECT_EQ(AppenderInstances().Count(), 0);
    EXPECT_EQ(Logger().GetChildLoggers()->Count(), 0);
    Config->Answers = {{u"root/Level", 5},
                       {u"root/Appenders", VarArrayOf({u"1st", u"Two"})},
                       {u"1st/class", u"TMemoryAppender"},
                       {u"Two/class", u"TQzSimpleLayout"}};
    EXPECT_THROW(Logger().SetConfig(Config.Get()), EListError);
    EXPECT_EQ(Logger().GetLevel(), llError);
    ASSERT_EQ(Logger().GetAppenders()->Count(), 1);
    EXPECT_EQ(Logger().GetAppenders()->GetAppender(0)->GetName(), u"");
    Config->Answers = {{u"root/Level", 8}};
    EXPECT_EQ(Message([&] { Logger().SetConfig(Config.Get()); }), u"8 is not a log level");
}

// The tree drops its configurator, and its appenders do not ask it any more.
TEST_F(LogConfig, AClosedTreeHoldsNothing) {
    Logger().GetLogger("a");
    const Ref<TMemoryAppender> Left = TMemoryAppender::Create(&Logger(), u"left");
    CloseRootLogger();
    EXPECT_EQ(Config->RefCount(), 1);
    Config->Asked.Clear();
    Left->SetLayout(QzSimpleLayout);
    EXPECT_EQ(Config->Asked, u"");
}

TEST_F(LogConfig, TheConfiguratorMayAskForLoggersAndLog) {
    Config->Answers = {{u"root.a/Level", 0}, {u"root.a/Additive", false}};
    Config->OnConfigure = [](TQzLogger& ALogger) {
        AddMemory(ALogger);
        Logger().GetLogger("a")->Info("being configured");
        Logger().GetLogger("a.helper");
        ALogger.ClearAppenders();
        AddMemory(ALogger);
    };
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    Log->Info("x");
    EXPECT_EQ(Appender(*Log, 0).Take(), u"root.a>root.a Info x|");
    EXPECT_FALSE(Log->GetAdditive());
}

TEST_F(LogConfig, AListKeepsEachAppenderOnce) {
    TQzLogAppenderList& List = *Logger().GetAppenders();
    const Ref<IQzLogAppender> First = List.Add(TQzLogBaseClass::Of<TMemoryAppender>());
    List.Add(First.Get());
    EXPECT_EQ(List.Count(), 1);
    const Ref<IQzLogAppender> Second =
        List.Add(TQzLogBaseClass::Of<TMemoryAppender>(), TQzLogBaseClass::Of<TQzSimpleLayout>());
    EXPECT_NE(nullptr, Appender(Logger(), 1).GetLayout());
    EXPECT_THROW(List.Add(UnicodeString(u"TMemoryAppender"), UnicodeString(u"TNo")), EListError);
    EXPECT_THROW(List.Add(TQzLogBaseClass::Of<TQzSimpleLayout>()), EAssertionFailed);
    List.Remove(First.Get());
    EXPECT_EQ(List.GetAppender(0), Second);
}

// While another reference exists, Free raises, and the appender may be added again.
TEST_F(LogConfig, ARefusedAppenderMayBeAddedAgain) {
    Logger().SetLevel(llAll);
    TMemoryAppender* const Refused = TMemoryAppender::Create(nullptr, u"");
    const Ref<TMemoryAppender> Hold(Refused);
    Logger().AddAppender(Refused);
    EXPECT_THROW(Refused->Free(), Exception);
    Logger().Info("3");
    Logger().AddAppender(Refused);
    Logger().Info("4");
    EXPECT_EQ(Refused->Take(), u"root>root Info 4|");
    EXPECT_THROW(Logger().UnLockAppenders(), EAssertionFailed);
}

// The hook replaces the appender that failed by others, one of which may get its address.
TEST_F(LogConfig, AnotherAppenderAtTheSameAddress) {
    Logger().SetLevel(llAll);
    AddMemory(Logger()).OnWrite = [](const UnicodeString&) { throw 1; };
    QzSetLogDropHook([&](const TQzLogDrop&) {
        Logger().ClearAppenders();
        for (int I = 0; I < 8; ++I)
            AddMemory(Logger());
        Logger().Info("of the hook");
    });
    Logger().Info("fails");
    QzSetLogDropHook(nullptr);
    for (int I = 0; I < 8; ++I)
        Appender(Logger(), I).Take();
    Logger().Info("last");
    for (int I = 0; I < 8; ++I)
        EXPECT_EQ(Appender(Logger(), I).Take(), u"root>root Info last|") << I;
}

} // namespace
} // namespace qz
