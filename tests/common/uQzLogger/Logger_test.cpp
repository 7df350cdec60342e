#include <qz/common/uQzLogger.h>

#include <gtest/gtest.h>

#include <thread>

#include "tests/common/support/MemoryAppender.h"
#include "tests/support/Message.h"

namespace qz {
namespace {

TEST(Logger, IsFoundByItsPath) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    EXPECT_EQ(Log->GetFullName(), u"root.a.b");
    EXPECT_EQ(Log->GetName(), u"b");
    EXPECT_EQ(Logger().GetLogger(u".a..b."), Log);
    EXPECT_EQ(Logger().GetLogger("a")->GetLogger("b"), Log);
    EXPECT_NE(Log, Logger().GetLogger("a.B"));
    EXPECT_EQ(Log->GetParentLogger()->GetFullName(), u"root.a");
    EXPECT_EQ(Log->GetParentLogger()->GetParentLogger()->GetFullName(), u"root");
    EXPECT_EQ(Logger().GetParentLogger(), nullptr);
    for (const char* Nothing : {"", "..", "."})
        EXPECT_EQ(Log->GetLogger(Nothing), Log);
    EXPECT_EQ(Logger().GetLogger(Logger().GetChildLoggers())->GetFullName(), u"root.TQzLoggerList");
    EXPECT_THROW(Logger().GetLogger(static_cast<TObject*>(nullptr)), EAssertionFailed);
}

TEST(Logger, LivesAsLongAsSomebodyHoldsItOrOneBelow) {
    const TLogTree Tree;
    const TQzLoggerList& Children = *Logger().GetChildLoggers();
    {
        Ref<IQzLogger> Log = Logger().GetLogger("a.b");
        Log->SetLevel(llError);
        EXPECT_EQ(Children.Count(), 1);
        EXPECT_EQ(Children.GetLogger(0)->GetFullName(), u"root.a");
        EXPECT_NE(nullptr, Logger().GetChildLoggers()->FindLogger(u"root.a"));
        EXPECT_EQ(Logger().GetChildLoggers()->FindLogger(u"root.A"), nullptr);
        EXPECT_EQ(Logger().GetChildLoggers()->FindLogger(u"rootxa"), nullptr);
    }
    EXPECT_EQ(Children.Count(), 0);
    EXPECT_EQ(Logger().GetLogger("a.b")->GetLevel(), llDebug);
}

TEST(Logger, TakesItsLevelFromTheNearestThatHasOne) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    const Ref<IQzLogger> Parent = Log->GetParentLogger();
    EXPECT_TRUE(Log->GetParentLevel());
    Logger().SetLevel(llWarn);
    EXPECT_EQ(Log->GetLevel(), llWarn);
    Parent->SetLevel(llInfo);
    EXPECT_EQ(Log->GetLevel(), llInfo);
    Log->SetLevel(llFatal);
    Parent->SetLevel(llAll);
    EXPECT_EQ(Log->GetLevel(), llFatal);
    Log->SetParentLevel(true);
    EXPECT_EQ(Log->GetLevel(), llAll);
    Log->SetParentLevel(false);
    EXPECT_EQ(Log->GetLevel(), llFatal);
    EXPECT_FALSE(Log->IsErrorEnabled());
    EXPECT_TRUE(Log->IsFatalEnabled());
    Logger().SetParentLevel(true);
    EXPECT_EQ(Logger().GetLevel(), llWarn);
    EXPECT_FALSE(Logger().IsEnabledFor(llInfo));
}

TEST(Logger, OffersAMessageToEachOnTheWayToTheRoot) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    const Ref<IQzLogger> Middle = Log->GetParentLogger();
    TMemoryAppender& Own = AddMemory(*Log);
    TMemoryAppender& Root = AddMemory(Logger());
    Log->Info("x");
    EXPECT_EQ(Own.Take(), u"root.a.b>root.a.b Info x|");
    EXPECT_EQ(Root.Take(), u"root.a.b>root Info x|");
    Log->SetLevel(llError);
    Log->Info("y");
    EXPECT_EQ(Own.Take(), u"");
    EXPECT_EQ(Root.Take(), u"root.a.b>root Info y|");
    Middle->SetLevel(llDoNotLog);
    Middle->SetAdditive(false);
    Log->Fatal("z");
    EXPECT_EQ(Own.Take(), u"root.a.b>root.a.b Fatal z|");
    EXPECT_EQ(Root.Take(), u"");
    Middle->SetAdditive(true);
    Log->SetAdditive(false);
    Log->Log(llDoNotLog, "only here");
    EXPECT_EQ(Own.Take(), u"root.a.b>root.a.b Disabled only here|");
    Logger().SetLevel(llDoNotLog);
    Logger().Fatal("nowhere");
    Logger().Log(llDoNotLog, "here");
    EXPECT_EQ(Root.Take(), u"root>root Disabled here|");
    Logger().SetLevel(llAll);
    Logger().Log(llAll, "all");
    EXPECT_EQ(Root.Take(), u"root>root All all|");
}

TEST(Logger, DropsWhatAnAppenderRaisesAndTellsTheHook) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    AddMemory(*Log, u"First");
    TMemoryAppender& Bad = AddMemory(*Log, u"Bad");
    TMemoryAppender& Behind = AddMemory(*Log);
    TMemoryAppender& Root = AddMemory(Logger());
    std::vector<UnicodeString> Told;
    QzSetLogDropHook([&](const TQzLogDrop& ADrop) {
        Told.push_back(ADrop.Logger + u'/' + ADrop.Appender + u'/' + ADrop.ClassName + u'/' + ADrop.Message);
        Log->Info("from the hook");
    });
    const std::uint64_t Before = QzDroppedLogMessages();
    const std::function<void()> Raises[] = {[] { throw EConvertError(u"no"); },
                                            [] { throw std::runtime_error("std"); }, [] { throw 17; }};
    UnicodeString Expected = u"root.a>root.a Info from the hook|root.a>root Info from the hook|";
    for (const auto& Raise : Raises) {
        Bad.OnWrite = [&](const UnicodeString&) { Raise(); };
        Log->Warn("x");
        EXPECT_EQ(Behind.Take() + Root.Take(), Expected);
        QzSetLogDropHook(nullptr);
        Expected.Clear();
    }
    EXPECT_EQ(QzDroppedLogMessages(), Before + 3);
    ASSERT_EQ(Told.size(), 1U);
    EXPECT_EQ(Told[0], u"root.a/Bad/EConvertError/no");
    Bad.OnWrite = nullptr;
    Log->Warn("y");
    EXPECT_EQ(Behind.Take() + Root.Take(), u"root.a>root.a Warn y|root.a>root Warn y|");
}

TEST(Logger, SaysWhatIsRaisedAtMostOnceASecondForEachAppender) {
    const TLogTree Tree;
    TMemoryAppender& Bad = AddMemory(Logger(), u"Bad");
    Bad.OnWrite = [](const UnicodeString&) { throw 1; };
    int Told = 0;
    QzSetLogDropHook([&](const TQzLogDrop& ADrop) {
        EXPECT_EQ(ADrop.Message, u"Unknown exception");
        ++Told;
        throw EConvertError(u"of the hook");
    });
    for (int I = 0; I < 5; ++I)
        Logger().Info("x");
    const Ref<IQzLogger> Other = Logger().GetLogger("other");
    Other->SetAdditive(false);
    AddMemory(*Other).OnWrite = [](const UnicodeString&) { throw 1; };
    Other->Info("y");
    EXPECT_EQ(Told, 2);
    QzSetLogDropHook(nullptr);
}

// A message that arises while an appender writes is delivered next, to all appenders.
TEST(Logger, AppendersMayLogWhileTheyWrite) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    TMemoryAppender& First = AddMemory(*Log);
    TMemoryAppender& Second = AddMemory(*Log);
    TMemoryAppender& Root = AddMemory(Logger());
    UnicodeString Text; // of an object that has ended by then
    {
        const TOwned<TComponent> Gone(TQzBaseAppender::Create(nullptr, u"Temporary"));
        Text = TValue(static_cast<TObject*>(Gone.get())).ToString();
        First.OnWrite = [&](const UnicodeString& AMessage) {
            if (AMessage == u"x")
                Log->Debug(u"1", Gone.get());
        };
        Second.OnWrite = [&](const UnicodeString& AMessage) {
            if (AMessage == u"x")
                Log->Info(u"2");
        };
        Log->Info("x");
    }
    const UnicodeString Own =
        u"root.a>root.a Info x|root.a>root.a Debug 1=" + Text + u"|root.a>root.a Info 2|";
    EXPECT_EQ(First.Take(), Own);
    EXPECT_EQ(Second.Take(), Own);
    EXPECT_EQ(Root.Take(), u"root.a>root Info x|root.a>root Debug 1=" + Text + u"|root.a>root Info 2|");
}

TEST(Logger, AppendersMayChangeTheirListWhileTheyWrite) {
    const TLogTree Tree;
    TMemoryAppender& First = AddMemory(Logger());
    TMemoryAppender& Second = AddMemory(Logger());
    TMemoryAppender& Third = AddMemory(Logger());
    First.OnWrite = [&](const UnicodeString&) {
        First.OnWrite = nullptr;
        Logger().RemoveAppender(static_cast<IQzLogAppender*>(&Second)); // its last reference
        AddMemory(Logger(), u"New");
    };
    Logger().Info("x");
    EXPECT_EQ(Third.Take(), u"root>root Info x|");
    EXPECT_EQ(Logger().GetAppenders()->Count(), 3);
    auto& New = dynamic_cast<TMemoryAppender&>(*Logger().GetAppenders()->GetAppender(2)->Component());
    EXPECT_EQ(New.Take(), u"");
    First.OnWrite = [&](const UnicodeString&) { Logger().ClearAppenders(); };
    Logger().Info("y");
    EXPECT_EQ(Logger().GetAppenders()->Count(), 0);
}

TEST(Logger, AppendersThatLogWithEachMessageMakeNoFlood) {
    const TLogTree Tree;
    int Writes = 0;
    for (int I = 0; I < 9; ++I)
        AddMemory(Logger()).OnWrite = [&Writes](const UnicodeString& AMessage) {
            ++Writes;
            Logger().Info(AMessage);
        };
    const std::uint64_t Before = QzDroppedLogMessages();
    Logger().Info("x");
    EXPECT_EQ(Writes, 9 * 1001);
    EXPECT_EQ(QzDroppedLogMessages() - Before, 9u * 1001 - 1000);
    Logger().ClearAppenders();
    TMemoryAppender& Out = AddMemory(Logger());
    Logger().Info("y");
    EXPECT_EQ(Out.Take(), u"root>root Info y|");
}

// An appender raises at its end; another one closes the tree while it writes.
TEST(Logger, AppendersMayEndBadly) {
    const TLogTree Tree;
    UnicodeString Told;
    QzSetLogDropHook([&Told](const TQzLogDrop& ADrop) { Told = ADrop.Appender + u": " + ADrop.Message; });
    AddMemory(Logger(), u"Bad").OnClose = [] { throw EConvertError(u"disk full"); };
    Logger().ClearAppenders();
    EXPECT_EQ(Told, u"Bad: disk full");
    QzSetLogDropHook(nullptr);
    AddMemory(Logger()).OnWrite = [](const UnicodeString&) { CloseRootLogger(); };
    TMemoryAppender& Behind = AddMemory(Logger());
    const Ref<IQzLogAppender> Hold(static_cast<IQzLogAppender*>(&Behind));
    Logger().Info("x");
    EXPECT_EQ(Behind.Take(), u"");
    EXPECT_EQ(Logger().GetAppenders()->Count(), 0);
}

TEST(Logger, AThreadThatHoldsALockLogsAtOnce) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    TMemoryAppender& Out = AddMemory(Logger());
    Log->LockAppenders();
    Logger().LockAppenders();
    Log->Info("x");
    EXPECT_EQ(Out.Take(), u"root.a>root Info x|");
    Logger().UnLockAppenders();
    Log->UnLockAppenders();
    Logger().Lock(u"", true);
    Log->Info("y");
    EXPECT_EQ(Out.Take(), u"root.a>root Info y|");
    Logger().Unlock();
}

TEST(Logger, OutlivesItsTree) {
    const TLogTree Tree;
    CloseRootLogger();
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    const Ref<IQzLogger> Parent = Log->GetParentLogger();
    TMemoryAppender& Own = AddMemory(*Log);
    TMemoryAppender& Above = AddMemory(*Parent);
    AddMemory(Logger());
    Logger().SetLevel(llFatal);
    CloseRootLogger();
    EXPECT_EQ(Parent->GetParentLogger(), nullptr);
    EXPECT_EQ(Log->GetLevel(), llDebug);
    EXPECT_EQ(Log->GetFullName(), u"root.a.b");
    Log->Info("x");
    EXPECT_EQ(Own.Take(), u"root.a.b>root.a.b Info x|");
    EXPECT_EQ(Above.Take(), u"root.a.b>root.a Info x|");
    EXPECT_EQ(Log->GetLogger("c")->GetFullName(), u"root.a.b.c");
    TMemoryAppender& Fresh = AddMemory(Logger());
    EXPECT_EQ(Logger().GetLevel(), llDebug);
    EXPECT_NE(Log, Logger().GetLogger("a.b"));
    Log->Info("y");
    EXPECT_EQ(Fresh.Take(), u"");
}

TEST(Logger, TheRootIsNotCounted) {
    const TLogTree Tree;
    void* Out = nullptr;
    EXPECT_EQ(Message([&] { Logger().QueryInterface(IQzLogger::IID, &Out); }),
              u"Do not get the IQzLogger interface from the rootlogger!");
    for (int I = 0; I < 3; ++I)
        EXPECT_EQ(Ref<IQzLogger>(&Logger()).Get(), &Logger());
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    EXPECT_EQ(As<IQzLogger>(static_cast<IInterface*>(Log.Get())), Log);
    EXPECT_EQ(Log->QueryInterface(IQzLogAppender::IID, &Out), E_NOINTERFACE_RESULT);
    const TOwned<TQzLogger> Own(TQzLogger::Create(nullptr, u"alone"));
    EXPECT_EQ(Own->GetFullName(), u"");
}

TEST(Logger, NamesMayBeLongAndPathsDeep) {
    const TLogTree Tree;
    const UnicodeString Long(1 << 20, u'x');
    EXPECT_EQ(Logger().GetLogger(Long)->GetFullName().Length(), (1 << 20) + 5);
    UnicodeString Path;
    for (int I = 0; I < 10000; ++I)
        Path += u"a.";
    {
        const Ref<IQzLogger> Deep = Logger().GetLogger(Path);
        TMemoryAppender& Root = AddMemory(Logger());
        EXPECT_EQ(Deep->GetFullName().Length(), 20004);
        Logger().SetLevel(llError);
        EXPECT_EQ(Deep->GetLevel(), llError);
        Deep->Error("x");
        EXPECT_EQ(Root.Lines.size(), 1U);
    }
    EXPECT_EQ(Logger().GetChildLoggers()->Count(), 0);
}

TEST(LoggerList, GivesUpAfterASecond) {
    const TLogTree Tree;
    TQzLoggerList& List = *Logger().GetChildLoggers();
    List.Lock(u"", true);
    std::thread([&] {
        EXPECT_FALSE(List.Lock(u"Test", false));
        EXPECT_EQ(Message([&] { List.Lock(u"Test", true); }), u"Test failed to get a lock");
        EXPECT_EQ(Message([&] { List.FindLogger(u"root.a"); }),
                  u"root.LoggerList.Remove failed to get a lock");
        EXPECT_EQ(Message([] { Logger().ClearChildLoggers(); }),
                  u"root.ClearChildLoggers failed to get a lock");
    }).join();
    List.Unlock();
    EXPECT_EQ(Logger().GetLogger("a")->GetFullName(), u"root.a");
}

} // namespace
} // namespace qz
