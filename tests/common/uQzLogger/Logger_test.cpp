#include <qz/common/uQzLogger.h>

#include <gtest/gtest.h>

#include <regex>
#include <thread>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/MemoryAppender.h"
#include "tests/support/Message.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzWindows.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

class LoggerTree : public testing::Test {
protected:
    ~LoggerTree() override { QzSetLogDropHook(nullptr); }
    const TLogTree Tree;
    TQzLogger& Top = Logger();
};

// A logger below another one, each with an appender.
class LoggerAppenders : public LoggerTree {
protected:
    Ref<IQzLogger> Log = Top.GetLogger("a");
    TMemoryAppender& First = AddMemory(*Log, u"First");
    TMemoryAppender& Second = AddMemory(*Log);
    TMemoryAppender& Root = AddMemory(Top);
};

TEST_F(LoggerTree, LoggersAreFoundByTheirPaths) {
    const Ref<IQzLogger> Log = Top.GetLogger("a.b");
    EXPECT_EQ(Log->GetFullName(), u"root.a.b");
    EXPECT_EQ(Top.GetLogger(u".a..b."), Log);
    EXPECT_NE(Log, Top.GetLogger("a.B"));
    EXPECT_EQ(Log->GetParentLogger()->GetFullName(), u"root.a");
    EXPECT_EQ(Top.GetParentLogger(), nullptr);
    EXPECT_THROW(Top.GetLogger(static_cast<TObject*>(nullptr)), EAssertionFailed);
}

TEST_F(LoggerTree, ALoggerLivesAsLongAsItOrOneBelowIsReferredTo) {
    TQzLoggerList& Children = *Top.GetChildLoggers();
    Ref<IQzLogger> Log = Top.GetLogger("a.b");
    Log->SetLevel(llError);
    EXPECT_EQ(Children.Count(), 1);
    EXPECT_NE(nullptr, Children.FindLogger(u"root.a"));
    EXPECT_EQ(Children.FindLogger(u"root.A"), nullptr);
    EXPECT_EQ(Children.FindLogger(u"rootxa"), nullptr);
    Log.Clear();
    EXPECT_EQ(Children.Count(), 0);
}

TEST_F(LoggerTree, TheLevelIsTakenFromTheNearestThatHasOne) {
    const Ref<IQzLogger> Log = Top.GetLogger("a.b");
    const Ref<IQzLogger> Parent = Log->GetParentLogger();
    Top.SetLevel(llWarn);
    EXPECT_EQ(Log->GetLevel(), llWarn);
    Parent->SetLevel(llInfo);
    EXPECT_EQ(Log->GetLevel(), llInfo);
    Log->SetLevel(llFatal);
    Parent->SetLevel(llAll);
    EXPECT_EQ(Log->GetLevel(), llFatal);
    Log->SetParentLevel(true);
    EXPECT_EQ(Log->GetLevel(), llAll);
    Top.SetParentLevel(true);
    EXPECT_EQ(Top.GetLevel(), llWarn);
    EXPECT_FALSE(Top.IsEnabledFor(llInfo));
}

TEST_F(LoggerTree, AMessageIsOfferedToEachOnTheWayToTheRoot) {
    const Ref<IQzLogger> Log = Top.GetLogger("a.b");
    const Ref<IQzLogger> Middle = Log->GetParentLogger();
    TMemoryAppender& Own = AddMemory(*Log);
    TMemoryAppender& Root = AddMemory(Top);
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
}

TEST_F(LoggerAppenders, WhatAnAppenderRaisesIsDroppedAndToldToTheHook) {
    std::vector<UnicodeString> Told;
    QzSetLogDropHook([&](const TQzLogDrop& ADrop) {
        Told.push_back(ADrop.Logger + u'/' + ADrop.Appender + u'/' + ADrop.ClassName + u'/' + ADrop.Message);
        Log->Info("from the hook");
        throw EConvertError(u"of the hook");
    });
    const std::uint64_t Before = QzDroppedLogMessages();
    First.OnWrite = [&](const UnicodeString&) { throw EConvertError(u"no"); };
    Log->Warn("x");
    EXPECT_EQ(Second.Take() + Root.Take(),
              u"root.a>root.a Info from the hook|root.a>root Info from the hook|");
    First.OnWrite = [&](const UnicodeString&) { throw 17; };
    Log->Warn("x");
    Root.OnWrite = std::exchange(First.OnWrite, nullptr);
    Log->Warn("x");
    EXPECT_EQ(QzDroppedLogMessages() - Before, 3u);
    ASSERT_EQ(Told.size(), 2u) << "at most once a second for each appender";
    EXPECT_EQ(Told[0], u"root.a/First/EConvertError/no");
    EXPECT_TRUE(Told[1].View().ends_with(u"/Unknown exception")) << Told[1];
}

// A message that arises while an appender writes is delivered next, to all appenders.
TEST_F(LoggerAppenders, AppendersMayLogWhileTheyWrite) {
    UnicodeString Text; // of an object that has ended by then
    {
        const TOwned<TComponent> Gone(TQzBaseAppender::Create(nullptr, u"Temporary"));
        Text = TValue(static_cast<TObject*>(Gone.get())).ToString();
        First.OnWrite = [&](const UnicodeString& AMessage) {
            if (AMessage == u"x")
                Log->Debug(u"1", Gone.get());
        };
        Log->Info("x");
    }
    const UnicodeString Own = u"root.a>root.a Info x|root.a>root.a Debug 1=" + Text + u"|";
    EXPECT_EQ(First.Take(), Own);
}

TEST_F(LoggerAppenders, AppendersMayChangeTheirListWhileTheyWrite) {
    TMemoryAppender& Third = AddMemory(*Log);
    First.OnWrite = [&](const UnicodeString&) {
        First.OnWrite = nullptr;
        Log->RemoveAppender(static_cast<IQzLogAppender*>(&Second)); // its last reference
        AddMemory(*Log, u"New");
    };
    Log->Info("x");
    EXPECT_EQ(Third.Take(), u"root.a>root.a Info x|");
    EXPECT_EQ(Log->GetAppenders()->Count(), 3);
    auto& New = dynamic_cast<TMemoryAppender&>(*Log->GetAppenders()->GetAppender(2)->Component());
    EXPECT_EQ(New.Take(), u"");
    First.OnWrite = [&](const UnicodeString&) { Log->ClearAppenders(); };
    Log->Info("y");
    EXPECT_EQ(Log->GetAppenders()->Count(), 0);
}

TEST_F(LoggerTree, AppendersThatLogWithEachMessageMakeNoFlood) {
    int Writes = 0;
    for (int I = 0; I < 9; ++I)
        AddMemory(Top).OnWrite = [&Writes](const UnicodeString& AMessage) {
            ++Writes;
            Logger().Info(AMessage);
        };
    const std::uint64_t Before = QzDroppedLogMessages();
    Top.Info("x");
    EXPECT_EQ(Writes, 9 * 1001);
    EXPECT_EQ(QzDroppedLogMessages() - Before, 9u * 1001 - 1000);
    Top.ClearAppenders();
    TMemoryAppender& Out = AddMemory(Top);
    Top.Info("y");
    EXPECT_EQ(Out.Take(), u"root>root Info y|");
}

// An appender raises at its end; another one closes the tree while it writes.
TEST_F(LoggerAppenders, AppendersMayEndBadly) {
    UnicodeString Told;
    QzSetLogDropHook([&Told](const TQzLogDrop& ADrop) { Told = ADrop.Appender + u": " + ADrop.Message; });
    AddMemory(Top, u"Bad").OnClose = [] { throw EConvertError(u"disk full"); };
    Top.ClearAppenders();
    EXPECT_EQ(Told, u"Bad: disk full");
    AddMemory(Top).OnWrite = [](const UnicodeString&) { CloseRootLogger(); };
    TMemoryAppender& After = AddMemory(Top);
    const Ref<IQzLogAppender> Hold(static_cast<IQzLogAppender*>(&After));
    Top.Info("x");
    EXPECT_EQ(After.Take(), u"");
    EXPECT_EQ(Logger().GetAppenders()->Count(), 0);
}

TEST_F(LoggerAppenders, LoggersOutliveTheirTree) {
    const Ref<IQzLogger> Child = Log->GetLogger("b");
    Top.SetLevel(llFatal);
    CloseRootLogger();
    EXPECT_EQ(Log->GetParentLogger(), nullptr);
    EXPECT_EQ(Child->GetLevel(), llDebug);
    Child->Info("x");
    EXPECT_EQ(First.Take(), u"root.a.b>root.a Info x|");
    TMemoryAppender& Fresh = AddMemory(Logger());
    EXPECT_EQ(Logger().GetLevel(), llDebug);
    EXPECT_NE(Log, Logger().GetLogger("a"));
    Child->Info("y");
    EXPECT_EQ(Fresh.Take(), u"");
}

TEST_F(LoggerTree, TheRootIsNotCounted) {
    void* Out = nullptr;
    EXPECT_EQ(Message([&] { Top.QueryInterface(IQzLogger::IID, &Out); }),
              u"Do not get the IQzLogger interface from the rootlogger!");
    for (int I = 0; I < 3; ++I)
        EXPECT_EQ(Ref<IQzLogger>(&Top).Get(), &Logger());
}

TEST_F(LoggerTree, PathsMayBeDeep) {
    UnicodeString Path;
    for (int I = 0; I < 10000; ++I)
        Path += u"a.";
    Ref<IQzLogger> Deep = Top.GetLogger(Path);
    TMemoryAppender& Root = AddMemory(Top);
    EXPECT_EQ(Deep->GetFullName().Length(), 20004);
    Top.SetLevel(llError);
    Deep->Error("x");
    EXPECT_EQ(Root.Lines.size(), 1U);
    Deep.Clear();
    EXPECT_EQ(Top.GetChildLoggers()->Count(), 0);
}

TEST_F(LoggerTree, ALockIsGivenUpAfterASecond) {
    TQzLoggerList& List = *Top.GetChildLoggers();
    List.Lock(u"", true);
    std::thread([&] {
        EXPECT_FALSE(List.Lock(u"Test", false));
        EXPECT_EQ(Message([&] { List.FindLogger(u"root.a"); }),
                  u"root.LoggerList.Remove failed to get a lock");
        EXPECT_EQ(Message([] { Logger().ClearChildLoggers(); }),
                  u"root.ClearChildLoggers failed to get a lock");
    }).join();
    List.Unlock();
}

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

TEST(LogData, TellsOfTheMachine) {
    const Ref<TQzLogData> Data(TQzLogData::Create(llWarn, u"hot"));
    EXPECT_LE(Data->FTimestamp, Now());
    EXPECT_EQ(Data->FUserName, QzGetUserName());
    EXPECT_EQ(Data->FActiveForm, u"n.a.");
    const auto Version = static_cast<std::string>(Data->FVersion);
    EXPECT_TRUE(std::regex_match(Version, std::regex("[1-9]\\d*\\.\\d+; Build: [0-9A-F]+, \".*\"")))
        << Version;
    EXPECT_EQ(detail::SystemNameOf(1), u"Win 3.1");
    EXPECT_EQ(detail::SystemNameOf(621), u"Windows 8");
    EXPECT_EQ(detail::SystemNameOf(622), u"Unidentified OS");
}

// An object with a property of each kind, some of which are not shown.
class TSample : public TPersistent {
    QZ_CLASS(TSample, TPersistent)

public:
    std::int32_t GetBad() const { throw EConvertError(u"no value"); }
    void SetBad(std::int32_t) {}
    std::int32_t GetFixed() const { return 1; }

    std::int32_t FNumber = 17;
    double FRatio = 0.5;
    TQzDatePeriod FPeriod = dpDay;
    UnicodeString FText = u"16 bits are not shown";
    AnsiString FNarrow{AnsiString("eight bits")};
    std::int64_t FLong = 1;
    Variant FAny = VarArrayOf({1, u"two"});
    TSample* FInner = nullptr;
};

constexpr TPropInfo cSampleProps[] = {
    Property<&TSample::FNumber, &TSample::FNumber>(u"Number"),
    Property<&TSample::GetBad, &TSample::SetBad>(u"Bad"),
    ReadOnly<&TSample::GetFixed>(u"Fixed"),
    Property<&TSample::FRatio, &TSample::FRatio>(u"Ratio"),
    Property<&TSample::FPeriod, &TSample::FPeriod>(u"Period"),
    Property<&TSample::FText, &TSample::FText>(u"Text"),
    Property<&TSample::FNarrow, &TSample::FNarrow>(u"Narrow"),
    Property<&TSample::FLong, &TSample::FLong>(u"Long"),
    Property<&TSample::FAny, &TSample::FAny>(u"Any"),
    Property<&TSample::FInner, &TSample::FInner>(u"Inner"),
};

const TClassRec TSample::ClassRec =
    DescribeClass<TSample>(u"TSample", {.Unit = u"Tests", .Properties = cSampleProps});

TEST(LogFamilies, EachMakesItsMessage) {
    const TLogTree Tree;
    TMemoryAppender& Out = AddMemory(Logger());
    TQzLogger& Log = Logger();
    Log.SetLevel(llAll);
    const TSample Object;
    const EConvertError Failure(u"went wrong");
    const Ref<IQzLogData> Data = TQzLogData::Create(llWarn, u"kept");
    const UnicodeString Address = Format(u"%p", {static_cast<const void*>(&Object)});
    const UnicodeString Shown =
        u"=(EConvertError @ " + Format(u"%p", {static_cast<const void*>(&Failure)}) + u")|";
    const std::pair<std::function<void()>, UnicodeString> Cases[] = {
        {[&] { Log.Trace(&Object, "%d", {1}); }, u"Trace TSample($" + Address + u").1|"},
        {[&] { Log.Debug("m", &Object); }, u"Debug m=(TSample @ " + Address + u")|"},
        {[&] { Log.Fatal("%d", {2}); }, u"Fatal 2|"},
        {[&] { Log.Error("m", Failure); }, u"Error m\r\nwent wrong|"},
        {[&] { Log.Fatal("m", Failure); }, u"Fatal m" + Shown},
        {[&] { Log.Count("hits", -3); }, u"Debug #counter::hits#=-3|"},
        {[&] { Log.ClearLog(); }, u""},
        {[&] { Log.EnterMethod("%d", {3}, llInfo); }, u"Info 3 {|"},
        {[&] { Log.EnterMethod(&Object, "Run %d", {4}, llInfo); }, u"Info TSample.Run 4 {|"},
        {[&] { Log.EnterMethod(static_cast<TObject*>(nullptr), "x"); }, u"Trace nil.x {|"},
        {[&] { Log.Log(llFatal, "m", true, liIndentIncrease); }, u"Fatal m=True {|"},
        {[&] { Log.LogValue(llFatal, "m", dpDay); }, u"Fatal m=dpDay|"},
        {[&] { Log.Log(Data); }, u"Warn kept|"},
        {[&] { const TQzMethodScope Scope(&Log, &Object, "Run%"); },
         u"Trace TSample.Run% {|root>root Trace TSample.Run% }|"},
    };
    for (const auto& [Call, Expected] : Cases) {
        Call();
        EXPECT_EQ(Out.Take(), Expected.IsEmpty() ? u"" : u"root>root " + Expected);
    }
    EXPECT_THROW(Log.Debug("%d", {u"x"}), EConvertError);
    EXPECT_THROW(Log.Log(static_cast<IQzLogData*>(nullptr)), EAssertionFailed);
}

TEST(DataRec, DumpsPublishedProperties) {
    TSample Outer;
    TSample Inner;
    Outer.FInner = &Inner;
    Inner.FInner = &Outer; // a cycle ends at its first object
    Inner.FPeriod = static_cast<TQzDatePeriod>(77);
    const auto Lines = [](const UnicodeString& AIndent, const char16_t* APeriod) {
        UnicodeString Result;
        for (const UnicodeString Line :
             {u"Number = 17",
              u"Exception EConvertError(no value) was raised while trying to read property: Bad",
              u"Ratio = 0.5", APeriod, u"Narrow = eight bits", u"Any = 1\r\ntwo\r\n"})
            Result += AIndent + Line + u"\r\n";
        return Result;
    };
    const TValue Value(static_cast<TObject*>(&Outer));
    EXPECT_EQ(QzDataRecToString(&Value),
              u"object : TSample\r\n" + Lines(u"  ", u"Period = dpDay") + u"  object : TSample\r\n" +
                  Lines(u"    ", u"Period = 77"));
    const TValue Number(5);
    EXPECT_EQ(QzDataRecToString(&Number), u"5");
}

} // namespace

} // namespace qz
