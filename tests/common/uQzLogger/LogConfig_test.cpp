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
        u"root.a/Level:1 root.a/Additive:4 root.a/Appenders:6 One/class:3 One/Layout:3 None/class:3 Two/class:3 "
        u"Two/Layout:3 ",
        Set.Config->Asked);
    EXPECT_EQ(llInfo, Log->GetLevel());
    EXPECT_TRUE(Log->GetAdditive());
    EXPECT_FALSE(Log->GetParentLevel());
    ASSERT_EQ(2, Log->GetAppenders()->Count());
    EXPECT_EQ(u"One", Log->GetAppenders()->GetAppender(0)->GetName());
    EXPECT_NE(nullptr, Appender(*Log, 0).GetLayout());
    EXPECT_EQ(nullptr, Appender(*Log, 1).GetLayout());
    // Nobody answers for this one.
    EXPECT_EQ(llDoNotLog, Logger().GetLogger("b")->GetLevel());
    EXPECT_EQ(llDoNotLog, Logger().GetLevel());
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
    EXPECT_EQ(1, AppenderInstances().Count());
    Log->Info("x");
    EXPECT_EQ(u"root.a.b>root.a.b Info x|root.a.b>root.a Info x|", Appender(*Log, 0).Take());
    EXPECT_EQ(0, Logger().GetLogger("c")->GetAppenders()->Count());
}

TEST(LogConfig, FailuresLeaveWhatWasDone) {
    TConfigured Set;
    Set.Config->Answers = {{u"root.a/Level", 5},
                           {u"root.a/Appenders", VarArrayOf({u"One", u"Two", u"Three"})},
                           {u"One/class", u"TMemoryAppender"},
                           {u"Two/class", u"TNothing"}};
    EXPECT_EQ(u"Class TNothing not found!", Message([] { Logger().GetLogger("a"); }));
    EXPECT_EQ(0, AppenderInstances().Count());
    EXPECT_EQ(0, Logger().GetChildLoggers()->Count());
    Set.Config->Answers = {{u"root/Level", 5},
                           {u"root/Appenders", VarArrayOf({u"One", u"Two"})},
                           {u"One/class", u"TMemoryAppender"},
                           {u"Two/class", u"TQzSimpleLayout"}};
    EXPECT_THROW(Logger().SetConfig(Set.Config.Get()), EListError);
    EXPECT_EQ(llError, Logger().GetLevel());
    EXPECT_EQ(1, Logger().GetAppenders()->Count());
    Set.Config->Answers = {{u"root/Level", 8}};
    EXPECT_EQ(u"8 is not a log level", Message([&] { Logger().SetConfig(Set.Config.Get()); }));
    Set.Config->Answers = {{u"root/Level", u"many"}};
    EXPECT_THROW(Logger().SetConfig(Set.Config.Get()), EConvertError);
    Set.Config->Answers = {
        {u"root/Level", 1}, {u"root/Appenders", VarArrayOf({u"1st"})}, {u"1st/class", u"TMemoryAppender"}};
    Logger().SetConfig(Set.Config.Get());
    EXPECT_EQ(u"", Logger().GetAppenders()->GetAppender(1)->GetName());
}

TEST(LogConfig, NullTakesTheConfiguratorFromTheWholeTree) {
    TConfigured Set;
    Set.Config->Answers = {{u"root.a/Level", 4}, {u"root.a.b/Level", 2}};
    const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
    EXPECT_LT(3, Set.Config->RefCount());
    Logger().SetConfig(nullptr);
    EXPECT_EQ(1, Set.Config->RefCount());
    EXPECT_EQ(llDebug, Log->GetLevel());
    EXPECT_EQ(llWarn, Log->GetParentLogger()->GetLevel());
}

// The tree lets go of what it was given, and its appenders of the tree.
TEST(LogConfig, AClosedTreeHoldsNothing) {
    const Ref<TConfiguration> Config = TConfiguration::Create();
    Ref<TMemoryAppender> Left;
    {
        const TLogTree Tree;
        Logger().SetConfig(Config.Get());
        Logger().GetLogger("a");
        Left = TMemoryAppender::Create(&Logger(), u"left");
    }
    EXPECT_EQ(1, Config->RefCount());
    Config->Asked.Clear();
    Left->SetLayout(QzSimpleLayout);
    EXPECT_EQ(u"", Config->Asked);
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
    EXPECT_EQ(u"root.a>root.a Info x|", Appender(*Log, 0).Take());
    EXPECT_FALSE(Log->GetAdditive());
}

TEST(LogAppenderList, KeepsEachAppenderOnce) {
    const TLogTree Tree;
    TQzLogAppenderList& List = *Logger().GetAppenders();
    const Ref<IQzLogAppender> First = List.Add(TQzLogBaseClass::Of<TMemoryAppender>());
    List.Add(First.Get());
    EXPECT_EQ(1, List.Count());
    EXPECT_EQ(u"TMemoryAppender", First->GetName());
    const Ref<IQzLogAppender> Second =
        List.Add(TQzLogBaseClass::Of<TMemoryAppender>(), TQzLogBaseClass::Of<TQzSimpleLayout>());
    EXPECT_NE(nullptr, Appender(Logger(), 1).GetLayout());
    RegisteredAppenders().Add(TQzLogBaseClass::Of<TMemoryAppender>());
    List.Add(UnicodeString(u"TMEMORYAPPENDER"), QzSimpleLayout);
    EXPECT_THROW(List.Add(UnicodeString(u"TMemoryAppender"), UnicodeString(u"TNo")), EListError);
    EXPECT_THROW(List.Add(TQzLogBaseClass::Of<TQzSimpleLayout>()), EAssertionFailed);
    EXPECT_THROW(List.Add(static_cast<IQzLogAppender*>(nullptr)), EAssertionFailed);
    EXPECT_THROW(List.Add(TQzLogBaseClass::Of<TQzLogBase>()), EInvalidOperation);
    EXPECT_EQ(3, AppenderInstances().Count());
    List.Remove(First.Get());
    List.Remove(First.Get());
    EXPECT_EQ(Second, List.GetAppender(0));
    EXPECT_THROW(List.GetAppender(2), EArgumentOutOfRangeException);
    List.Clear();
    EXPECT_EQ(2, AppenderInstances().Count());
}

TEST(LogAppenderList, AFreedAppenderLeavesAllLists) {
    const TLogTree Tree;
    const Ref<IQzLogger> Log = Logger().GetLogger("a");
    TMemoryAppender* const Freed = TMemoryAppender::Create(nullptr, u"");
    Log->AddAppender(Freed);
    Logger().AddAppender(Freed);
    TMemoryAppender& Left = AddMemory(Logger());
    Freed->Free();
    EXPECT_EQ(0, Log->GetAppenders()->Count());
    Log->Info("x");
    EXPECT_EQ(u"root.a>root Info x|", Left.Take());
}

// An appender that is a component of another kind, and counts nothing.
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
    EXPECT_EQ(0, Logger().GetAppenders()->Count());
    // while another reference exists, Free raises, and the appender may be added again
    TMemoryAppender* const Refused = TMemoryAppender::Create(nullptr, u"");
    const Ref<TMemoryAppender> Hold(Refused);
    Logger().AddAppender(Refused);
    EXPECT_THROW(Refused->Free(), Exception);
    Logger().Info("3");
    Logger().AddAppender(Refused);
    Logger().Info("4");
    EXPECT_EQ(u"root>root Info 4|", Refused->Take());
    EXPECT_THROW(Logger().UnLockAppenders(), EAssertionFailed);
}

// A message for an appender that has the address of one that failed.
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
    EXPECT_EQ(u"++++++++", Got) << Same;
}

TEST(LogBaseClassList, FindsClassesInAnyCase) {
    RegisteredAppenders().Add(TQzLogBaseClass::Of<TMemoryAppender>());
    RegisteredAppenders().Add(TQzLogBaseClass::Of<TMemoryAppender>());
    EXPECT_EQ(TQzLogBaseClass::Of<TMemoryAppender>(), RegisteredAppenders().GetClass(u"tmemoryAPPENDER"));
    EXPECT_EQ(TQzLogBaseClass::Of<TQzSimpleLayout>(), RegisteredLayouts().GetClass(QzSimpleLayout));
    EXPECT_EQ(u"Class TQzLogViewerAppenderClient not found!",
              Message([] { RegisteredAppenders().GetClass(QzLogViewerAppenderClient); }));
}

} // namespace
} // namespace qz
