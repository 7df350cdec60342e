#include <gtest/gtest.h>

#include <map>
#include <thread>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/MemoryAppender.h"
#include "tests/support/Message.h"
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

struct TConfigured : TLogTree {
    TConfigured() {
        RegisteredAppenders().Add(TQzLogBaseClass::Of<TMemoryAppender>());
        Logger().SetConfig(Config.Get());
        Config->Asked.Clear();
    }
    Ref<TConfiguration> Config = TConfiguration::Create();
};

TMemoryAppender& Appender(IQzLogger& ALogger, int AIndex) {
    return dynamic_cast<TMemoryAppender&>(*ALogger.GetAppenders()->GetAppender(AIndex)->Component());
}

TEST(LogConfig, ANewLoggerAsksUnderItsFullName) {
    TConfigured Set;
    Set.Config->Answers = {{u"root.a/Level", 3},
                           {u"root.a/Appenders", VarArrayOf({u"One", u"None", u"Two"})},
                           {u"One/class", u"tmemoryappender"},
                           {u"One/Layout", u"TQzSimpleLayout"},
                           {u"Two/class", u"TMemoryAppender"}};
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    EXPECT_EQ(
        Set.Config->Asked,
        u"root.a/Level:1 root.a/Additive:4 root.a/Appenders:6 One/class:3 One/Layout:3 None/class:3 Two/class:3 "
        u"Two/Layout:3 ");
    EXPECT_EQ(Log->GetLevel(), llInfo);
    EXPECT_TRUE(Log->GetAdditive());
    EXPECT_FALSE(Log->GetParentLevel());
    ASSERT_EQ(Log->GetAppenders()->Count(), 2);
    EXPECT_EQ(Log->GetAppenders()->GetAppender(0)->GetName(), u"One");
    EXPECT_NE(nullptr, Appender(*Log, 0).GetLayout());
    EXPECT_EQ(Appender(*Log, 1).GetLayout(), nullptr);
    // The configurator has no answer for this logger.
    EXPECT_EQ(Logger().GetLogger("b")->GetLevel(), llDoNotLog);
    EXPECT_EQ(Logger().GetLevel(), llDoNotLog);
}

TEST(LogConfig, LoggersShareTheAppenderOfAName) {
    TConfigured Set;
    for (const char16_t* Name : {u"root.a", u"root.a.b"}) {
        Set.Config->Answers[Name + UnicodeString(u"/Level")] = 0;
        Set.Config->Answers[Name + UnicodeString(u"/Appenders")] = VarArrayOf({u"Shared"});
    }
    Set.Config->Answers[u"Shared/class"] = u"TMemoryAppender";
    Set.Config->Answers[u"root.c/Appenders"] = VarArrayOf({u"shared"}); // names are case-sensitive
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    EXPECT_EQ(AppenderInstances().Count(), 1);
    Log->Info("x");
    EXPECT_EQ(Appender(*Log, 0).Take(), u"root.a.b>root.a.b Info x|root.a.b>root.a Info x|");
    EXPECT_EQ(Logger().GetLogger("c")->GetAppenders()->Count(), 0);
}

TEST(LogConfig, FailuresLeaveWhatWasDone) {
    TConfigured Set;
    Set.Config->Answers = {{u"root.a/Level", 5},
                           {u"root.a/Appenders", VarArrayOf({u"One", u"Two", u"Three"})},
                           {u"One/class", u"TMemoryAppender"},
                           {u"Two/class", u"TNothing"}};
    EXPECT_EQ(Message([] { Logger().GetLogger("a"); }), u"Class TNothing not found!");
    EXPECT_EQ(AppenderInstances().Count(), 0);
    EXPECT_EQ(Logger().GetChildLoggers()->Count(), 0);
    Set.Config->Answers = {{u"root/Level", 5},
                           {u"root/Appenders", VarArrayOf({u"One", u"Two"})},
                           {u"One/class", u"TMemoryAppender"},
                           {u"Two/class", u"TQzSimpleLayout"}};
    EXPECT_THROW(Logger().SetConfig(Set.Config.Get()), EListError);
    EXPECT_EQ(Logger().GetLevel(), llError);
    EXPECT_EQ(Logger().GetAppenders()->Count(), 1);
    Set.Config->Answers = {{u"root/Level", 8}};
    EXPECT_EQ(Message([&] { Logger().SetConfig(Set.Config.Get()); }), u"8 is not a log level");
    Set.Config->Answers = {{u"root/Level", u"many"}};
    EXPECT_THROW(Logger().SetConfig(Set.Config.Get()), EConvertError);
    Set.Config->Answers = {
        {u"root/Level", 1}, {u"root/Appenders", VarArrayOf({u"1st"})}, {u"1st/class", u"TMemoryAppender"}};
    Logger().SetConfig(Set.Config.Get());
    EXPECT_EQ(Logger().GetAppenders()->GetAppender(1)->GetName(), u"");
}

TEST(LogConfig, NullTakesTheConfiguratorFromTheWholeTree) {
    TConfigured Set;
    Set.Config->Answers = {{u"root.a/Level", 4}, {u"root.a.b/Level", 2}};
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    EXPECT_LT(3, Set.Config->RefCount());
    Logger().SetConfig(nullptr);
    EXPECT_EQ(Set.Config->RefCount(), 1);
    EXPECT_EQ(Log->GetLevel(), llDebug);
    EXPECT_EQ(Log->GetParentLogger()->GetLevel(), llWarn);
}

// The tree drops its configurator, and its appenders do not ask it any more.
TEST(LogConfig, AClosedTreeHoldsNothing) {
    const Ref<TConfiguration> Config = TConfiguration::Create();
    Ref<TMemoryAppender> Left;
    {
        const TLogTree Tree;
        Logger().SetConfig(Config.Get());
        Logger().GetLogger("a");
        Left = TMemoryAppender::Create(&Logger(), u"left");
    }
    EXPECT_EQ(Config->RefCount(), 1);
    Config->Asked.Clear();
    Left->SetLayout(QzSimpleLayout);
    EXPECT_EQ(Config->Asked, u"");
}

TEST(LogConfig, TheConfiguratorMayAskForLoggersAndLog) {
    TConfigured Set;
    Set.Config->Answers = {{u"root.a/Level", 0}, {u"root.a/Additive", false}};
    Set.Config->OnConfigure = [](TQzLogger& ALogger) {
        AddMemory(ALogger);
        const Ref<IQzLogger> Same = Logger().GetLogger("a");
        Same->Info("being configured");
        Logger().GetLogger("a.helper");
        ALogger.ClearAppenders();
        AddMemory(ALogger);
    };
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    Log->Info("x");
    EXPECT_EQ(Appender(*Log, 0).Take(), u"root.a>root.a Info x|");
    EXPECT_FALSE(Log->GetAdditive());
}

TEST(LogAppenderList, KeepsEachAppenderOnce) {
    const TLogTree Tree;
    TQzLogAppenderList& List = *Logger().GetAppenders();
    const Ref<IQzLogAppender> First = List.Add(TQzLogBaseClass::Of<TMemoryAppender>());
    List.Add(First.Get());
    EXPECT_EQ(List.Count(), 1);
    EXPECT_EQ(First->GetName(), u"TMemoryAppender");
    const Ref<IQzLogAppender> Second =
        List.Add(TQzLogBaseClass::Of<TMemoryAppender>(), TQzLogBaseClass::Of<TQzSimpleLayout>());
    EXPECT_NE(nullptr, Appender(Logger(), 1).GetLayout());
    RegisteredAppenders().Add(TQzLogBaseClass::Of<TMemoryAppender>());
    List.Add(UnicodeString(u"TMEMORYAPPENDER"), QzSimpleLayout);
    EXPECT_THROW(List.Add(UnicodeString(u"TMemoryAppender"), UnicodeString(u"TNo")), EListError);
    EXPECT_THROW(List.Add(TQzLogBaseClass::Of<TQzSimpleLayout>()), EAssertionFailed);
    EXPECT_THROW(List.Add(static_cast<IQzLogAppender*>(nullptr)), EAssertionFailed);
    EXPECT_THROW(List.Add(TQzLogBaseClass::Of<TQzLogBase>()), EInvalidOperation);
    EXPECT_EQ(AppenderInstances().Count(), 3);
    List.Remove(First.Get());
    List.Remove(First.Get());
    EXPECT_EQ(List.GetAppender(0), Second);
    EXPECT_THROW(List.GetAppender(2), EArgumentOutOfRangeException);
    List.Clear();
    EXPECT_EQ(AppenderInstances().Count(), 2);
}

TEST(LogAppenderList, AFreedAppenderLeavesAllLists) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    TMemoryAppender* const Freed = TMemoryAppender::Create(nullptr, u"");
    Log->AddAppender(Freed);
    Logger().AddAppender(Freed);
    TMemoryAppender& Left = AddMemory(Logger());
    Freed->Free();
    EXPECT_EQ(Log->GetAppenders()->Count(), 0);
    Log->Info("x");
    EXPECT_EQ(Left.Take(), u"root.a>root Info x|");
}

// An appender that does not derive from TQzLogBase and is not counted.
class TForeign : public TComponent, public IQzLogAppender {
    QZ_CLASS(TForeign, TComponent)

public:
    UnicodeString GetName() const override { return Name(); }
    TComponent* Component() override { return this; }
    void Write(const UnicodeString&, const UnicodeString&, TQzLogLevel, const UnicodeString& AMessage,
               PQzDataRec, TQzLogIndent) override {
        Got += AMessage;
        if (OnWrite)
            OnWrite();
    }
    void Close() override {}
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override {
        return detail::QueryObject(*this, AIid, AObject);
    }
    std::uint32_t _AddRef() override { return 1; }
    std::uint32_t _Release() override { return 1; }
    UnicodeString Got;
    std::function<void()> OnWrite;

protected:
    using TComponent::TComponent;
};

const TClassRec TForeign::ClassRec = DescribeClass<TForeign>(
    u"TForeign", {.Unit = u"Tests", .Interfaces = Interfaces<TForeign, IQzLogAppender>()});

TEST(LogAppenderList, ForeignAndRefusedAppenders) {
    const TLogTree Tree;
    TForeign* Foreign = TForeign::Create(nullptr);
    Logger().AddAppender(Foreign);
    Foreign->OnWrite = [Foreign] {
        Foreign->OnWrite = nullptr;
        Logger().Info("2");
    };
    Logger().Info("1");
    EXPECT_EQ(Foreign->Got, u"12");
    Foreign->Free();
    EXPECT_EQ(Logger().GetAppenders()->Count(), 0);
    // while another reference exists, Free raises, and the appender may be added again
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
TEST(LogAppenderList, AnotherAppenderAtTheSameAddress) {
    const TLogTree Tree;
    TMemoryAppender* Failing = &AddMemory(Logger());
    UnicodeString Got;
    int Same = 0;
    QzSetLogDropHook([&](const TQzLogDrop&) {
        Logger().ClearAppenders();
        for (int I = 0; I < 8; ++I)
            Same += &AddMemory(Logger()) == Failing;
        Logger().Info("of the hook");
        for (int I = 0; I < 8; ++I)
            Got +=
                dynamic_cast<TMemoryAppender&>(*Logger().GetAppenders()->GetAppender(I)->Component()).Take();
    });
    Failing->OnWrite = [](const UnicodeString&) { throw 1; };
    Logger().Info("fails");
    QzSetLogDropHook(nullptr);
    Logger().Info("last");
    for (int I = 0; I < 8; ++I)
        Got += Appender(Logger(), I).Take().Length() > 0 ? u"+" : u"-";
    EXPECT_EQ(Got, u"++++++++") << Same;
}

TEST(LogBaseClassList, FindsClassesInAnyCase) {
    RegisteredAppenders().Add(TQzLogBaseClass::Of<TMemoryAppender>());
    RegisteredAppenders().Add(TQzLogBaseClass::Of<TMemoryAppender>());
    EXPECT_EQ(RegisteredAppenders().GetClass(u"tmemoryAPPENDER"), TQzLogBaseClass::Of<TMemoryAppender>());
    EXPECT_EQ(RegisteredLayouts().GetClass(QzSimpleLayout), TQzLogBaseClass::Of<TQzSimpleLayout>());
    EXPECT_EQ(Message([] { RegisteredAppenders().GetClass(QzLogViewerAppenderClient); }),
              u"Class TQzLogViewerAppenderClient not found!");
}

} // namespace
} // namespace qz
