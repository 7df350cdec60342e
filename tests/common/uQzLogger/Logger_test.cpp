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
    EXPECT_EQ(u"root.a.b", Log->GetFullName());
    EXPECT_EQ(u"b", Log->GetName());
    EXPECT_EQ(Log, Logger().GetLogger(u".a..b."));
    EXPECT_EQ(Log, Logger().GetLogger("a")->GetLogger("b"));
    EXPECT_NE(Log, Logger().GetLogger("a.B"));
    EXPECT_EQ(u"root.a", Log->GetParentLogger()->GetFullName());
    EXPECT_EQ(u"root", Log->GetParentLogger()->GetParentLogger()->GetFullName());
    EXPECT_EQ(nullptr, Logger().GetParentLogger());
    for (const char* Nothing : {"", "..", "."})
        EXPECT_EQ(Log, Log->GetLogger(Nothing));
    EXPECT_EQ(u"root.TQzLoggerList", Logger().GetLogger(Logger().GetChildLoggers())->GetFullName());
    EXPECT_THROW(Logger().GetLogger(static_cast<TObject*>(nullptr)), EAssertionFailed);
}

TEST(Logger, LivesAsLongAsSomebodyHoldsItOrOneBelow) {
    const TLogTree Tree;
    const TQzLoggerList& Children = *Logger().GetChildLoggers();
    {
        Ref<IQzLogger> Log = Logger().GetLogger("a.b");
        Log->SetLevel(llError);
        EXPECT_EQ(1, Children.Count());
        EXPECT_EQ(u"root.a", Children.GetLogger(0)->GetFullName());
        EXPECT_NE(nullptr, Logger().GetChildLoggers()->FindLogger(u"root.a"));
        EXPECT_EQ(nullptr, Logger().GetChildLoggers()->FindLogger(u"root.A"));
        EXPECT_EQ(nullptr, Logger().GetChildLoggers()->FindLogger(u"rootxa"));
    }
    EXPECT_EQ(0, Children.Count());
    EXPECT_EQ(llDebug, Logger().GetLogger("a.b")->GetLevel());
}

TEST(Logger, TakesItsLevelFromTheNearestThatHasOne) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    const Ref<IQzLogger> Parent = Log->GetParentLogger();
    EXPECT_TRUE(Log->GetParentLevel());
    Logger().SetLevel(llWarn);
    EXPECT_EQ(llWarn, Log->GetLevel());
    Parent->SetLevel(llInfo);
    EXPECT_EQ(llInfo, Log->GetLevel());
    Log->SetLevel(llFatal);
    Parent->SetLevel(llAll);
    EXPECT_EQ(llFatal, Log->GetLevel());
    Log->SetParentLevel(true);
    EXPECT_EQ(llAll, Log->GetLevel());
    Log->SetParentLevel(false);
    EXPECT_EQ(llFatal, Log->GetLevel());
    EXPECT_FALSE(Log->IsErrorEnabled());
    EXPECT_TRUE(Log->IsFatalEnabled());
    Logger().SetParentLevel(true);
    EXPECT_EQ(llWarn, Logger().GetLevel());
    EXPECT_FALSE(Logger().IsEnabledFor(llInfo));
}

TEST(Logger, OffersAMessageToEachOnTheWayToTheRoot) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    const Ref<IQzLogger> Middle = Log->GetParentLogger();
    TMemoryAppender& Own = AddMemory(*Log);
    TMemoryAppender& Root = AddMemory(Logger());
    Log->Info("x");
    EXPECT_EQ(u"root.a.b>root.a.b Info x|", Own.Take());
    EXPECT_EQ(u"root.a.b>root Info x|", Root.Take());
    Log->SetLevel(llError);
    Log->Info("y");
    EXPECT_EQ(u"", Own.Take());
    EXPECT_EQ(u"root.a.b>root Info y|", Root.Take());
    Middle->SetLevel(llDoNotLog);
    Middle->SetAdditive(false);
    Log->Fatal("z");
    EXPECT_EQ(u"root.a.b>root.a.b Fatal z|", Own.Take());
    EXPECT_EQ(u"", Root.Take());
    Middle->SetAdditive(true);
    Log->SetAdditive(false);
    Log->Log(llDoNotLog, "only here");
    EXPECT_EQ(u"root.a.b>root.a.b Disabled only here|", Own.Take());
    Logger().SetLevel(llDoNotLog);
    Logger().Fatal("nowhere");
    Logger().Log(llDoNotLog, "here");
    EXPECT_EQ(u"root>root Disabled here|", Root.Take());
    Logger().SetLevel(llAll);
    Logger().Log(llAll, "all");
    EXPECT_EQ(u"root>root All all|", Root.Take());
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
        EXPECT_EQ(Expected, Behind.Take() + Root.Take());
        QzSetLogDropHook(nullptr);
        Expected.Clear();
    }
    EXPECT_EQ(Before + 3, QzDroppedLogMessages());
    ASSERT_EQ(1U, Told.size());
    EXPECT_EQ(u"root.a/Bad/EConvertError/no", Told[0]);
    Bad.OnWrite = nullptr;
    Log->Warn("y");
    EXPECT_EQ(u"root.a>root.a Warn y|root.a>root Warn y|", Behind.Take() + Root.Take());
}

TEST(Logger, SaysWhatIsRaisedAtMostOnceASecondForEachAppender) {
    const TLogTree Tree;
    TMemoryAppender& Bad = AddMemory(Logger(), u"Bad");
    Bad.OnWrite = [](const UnicodeString&) { throw 1; };
    int Told = 0;
    QzSetLogDropHook([&](const TQzLogDrop& ADrop) {
        EXPECT_EQ(u"Unknown exception", ADrop.Message);
        ++Told;
        throw EConvertError(u"of the hook");
    });
    for (int I = 0; I < 5; ++I)
        Logger().Info("x");
    const Ref<IQzLogger> Other = Logger().GetLogger("other");
    Other->SetAdditive(false);
    AddMemory(*Other).OnWrite = [](const UnicodeString&) { throw 1; };
    Other->Info("y");
    EXPECT_EQ(2, Told);
    QzSetLogDropHook(nullptr);
}

// A message that arises while an appender writes is delivered next, to all appenders.
TEST(Logger, AppendersMayLogWhileTheyWrite) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    TMemoryAppender& First = AddMemory(*Log);
    TMemoryAppender& Second = AddMemory(*Log);
    TMemoryAppender& Root = AddMemory(Logger());
    {
        const TOwned<TComponent> Gone(TQzBaseAppender::Create(nullptr, u"Temporary"));
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
        u"root.a>root.a Info x|root.a>root.a Debug 1=object Temporary: TQzBaseAppender\r\n|root.a>root.a Info 2|";
    EXPECT_EQ(First.Take(), Own);
    EXPECT_EQ(Second.Take(), Own);
    EXPECT_EQ(
        Root.Take(),
        u"root.a>root Info x|root.a>root Debug 1=object Temporary: TQzBaseAppender\r\n|root.a>root Info 2|");
}

TEST(Logger, AppendersMayChangeTheirListWhileTheyWrite) {
    const TLogTree Tree;
    TMemoryAppender& First = AddMemory(Logger());
    TMemoryAppender& Second = AddMemory(Logger());
    TMemoryAppender& Third = AddMemory(Logger());
    First.OnWrite = [&](const UnicodeString&) {
        First.OnWrite = nullptr;
        Logger().RemoveAppender(static_cast<IQzLogAppender*>(&Second)); // it ends here
        AddMemory(Logger(), u"New");
    };
    Logger().Info("x");
    EXPECT_EQ(u"root>root Info x|", Third.Take());
    EXPECT_EQ(3, Logger().GetAppenders()->Count());
    auto& New = dynamic_cast<TMemoryAppender&>(*Logger().GetAppenders()->GetAppender(2)->Component());
    EXPECT_EQ(u"", New.Take());
    First.OnWrite = [&](const UnicodeString&) { Logger().ClearAppenders(); };
    Logger().Info("y");
    EXPECT_EQ(0, Logger().GetAppenders()->Count());
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
    EXPECT_EQ(u"root>root Info y|", Out.Take());
}

// Refuses to close, or ends the tree, while a message is on its way.
TEST(Logger, AppendersMayEndBadly) {
    const TLogTree Tree;
    UnicodeString Told;
    QzSetLogDropHook([&Told](const TQzLogDrop& ADrop) { Told = ADrop.Appender + u": " + ADrop.Message; });
    AddMemory(Logger(), u"Bad").OnClose = [] { throw EConvertError(u"disk full"); };
    Logger().ClearAppenders();
    EXPECT_EQ(u"Bad: disk full", Told);
    QzSetLogDropHook(nullptr);
    AddMemory(Logger()).OnWrite = [](const UnicodeString&) { CloseRootLogger(); };
    TMemoryAppender& Behind = AddMemory(Logger());
    const Ref<IQzLogAppender> Hold(static_cast<IQzLogAppender*>(&Behind));
    Logger().Info("x");
    EXPECT_EQ(u"", Behind.Take());
    EXPECT_EQ(0, Logger().GetAppenders()->Count());
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
    EXPECT_EQ(nullptr, Parent->GetParentLogger());
    EXPECT_EQ(llDebug, Log->GetLevel());
    EXPECT_EQ(u"root.a.b", Log->GetFullName());
    Log->Info("x");
    EXPECT_EQ(u"root.a.b>root.a.b Info x|", Own.Take());
    EXPECT_EQ(u"root.a.b>root.a Info x|", Above.Take());
    EXPECT_EQ(u"root.a.b.c", Log->GetLogger("c")->GetFullName());
    TMemoryAppender& Fresh = AddMemory(Logger());
    EXPECT_EQ(llDebug, Logger().GetLevel());
    EXPECT_NE(Log, Logger().GetLogger("a.b"));
    Log->Info("y");
    EXPECT_EQ(u"", Fresh.Take());
}

TEST(Logger, TheRootIsNotCounted) {
    const TLogTree Tree;
    void* Out = nullptr;
    EXPECT_EQ(u"Do not get the IQzLogger interface from the rootlogger!",
              Message([&] { Logger().QueryInterface(IQzLogger::IID, &Out); }));
    for (int I = 0; I < 3; ++I)
        EXPECT_EQ(&Logger(), Ref<IQzLogger>(&Logger()).Get());
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    EXPECT_EQ(Log, As<IQzLogger>(static_cast<IInterface*>(Log.Get())));
    EXPECT_EQ(E_NOINTERFACE_RESULT, Log->QueryInterface(IQzLogAppender::IID, &Out));
    const TOwned<TQzLogger> Own(TQzLogger::Create(nullptr, u"alone"));
    EXPECT_EQ(u"", Own->GetFullName());
}

TEST(Logger, NamesMayBeLongAndPathsDeep) {
    const TLogTree Tree;
    const UnicodeString Long(1 << 20, u'x');
    EXPECT_EQ((1 << 20) + 5, Logger().GetLogger(Long)->GetFullName().Length());
    UnicodeString Path;
    for (int I = 0; I < 10000; ++I)
        Path += u"a.";
    {
        const Ref<IQzLogger> Deep = Logger().GetLogger(Path);
        TMemoryAppender& Root = AddMemory(Logger());
        EXPECT_EQ(20004, Deep->GetFullName().Length());
        Logger().SetLevel(llError);
        EXPECT_EQ(llError, Deep->GetLevel());
        Deep->Error("x");
        EXPECT_EQ(1U, Root.Lines.size());
    }
    EXPECT_EQ(0, Logger().GetChildLoggers()->Count());
}

TEST(LoggerList, GivesUpAfterASecond) {
    const TLogTree Tree;
    TQzLoggerList& List = *Logger().GetChildLoggers();
    List.Lock(u"", true);
    std::thread([&] {
        EXPECT_FALSE(List.Lock(u"Test", false));
        EXPECT_EQ(u"Test failed to get a lock", Message([&] { List.Lock(u"Test", true); }));
        EXPECT_EQ(u"root.LoggerList.Remove failed to get a lock",
                  Message([&] { List.FindLogger(u"root.a"); }));
        EXPECT_EQ(u"root.ClearChildLoggers failed to get a lock",
                  Message([] { Logger().ClearChildLoggers(); }));
    }).join();
    List.Unlock();
    EXPECT_EQ(u"root.a", Logger().GetLogger("a")->GetFullName());
}

} // namespace
} // namespace qz
