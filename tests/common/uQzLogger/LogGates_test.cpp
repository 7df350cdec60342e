// Messages of threads that hold a list, run the drop hook, or log about objects.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/common/support/MemoryAppender.h"
#include <qz/common/uQzLogger.h>
#include <qz/common/uQzLogger/DataRec.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/platform/Threads.h>

namespace qz {
namespace {

// Keeps both texts of the values.
class TShowingAppender : public TMemoryAppender {
    QZ_CLASS(TShowingAppender, TMemoryAppender)

public:
    void Write(const UnicodeString&, const UnicodeString&, TQzLogLevel, const UnicodeString&,
               PQzDataRec AValue, TQzLogIndent) override {
        Lines.push_back(AValue->ToString() + QzDataRecToString(AValue));
    }

protected:
    using TMemoryAppender::TMemoryAppender;
};
constinit const TClassRec TShowingAppender::ClassRec =
    DescribeLogBase<TShowingAppender>(u"TShowingAppender", {.Unit = u"tests"});

// Each thread holds the list of its logger, whose appender logs to the other one.
TEST(LogGates, TwoListsHeldCrosswise) {
    const TLogTree Tree;
    const Ref<IQzLogger> Loggers[] = {Logger().GetLogger("left"), Logger().GetLogger("right")};
    std::atomic<int> Crossed{0}, Ready{0};
    for (int I = 0; I < 2; ++I) {
        AddMemory(*Loggers[I]).OnWrite = [&, I](const UnicodeString& AMessage) {
            if (AMessage == u"x")
                Loggers[1 - I]->Info("crossed");
            else
                ++Crossed;
        };
    }
    const auto Run = [&](int AIndex) {
        Loggers[AIndex]->LockAppenders();
        for (++Ready; Ready < 2;)
            std::this_thread::yield();
        Loggers[AIndex]->Info("x");
        Loggers[AIndex]->UnLockAppenders();
    };
    std::thread Other(Run, 1);
    Run(0);
    Other.join();
    EXPECT_EQ(Crossed, 2);
}

// However many messages a thread sends that holds a list, and though the appender logs too.
TEST(LogGates, NothingIsLostWhileAListIsHeld) {
    const TLogTree Tree;
    const Ref<IQzLogger> Held = Logger().GetLogger("held");
    TMemoryAppender& Out = AddMemory(Logger());
    Out.OnWrite = [](const UnicodeString& AMessage) {
        if (AMessage == u"x")
            Logger().Info("again");
    };
    Held->LockAppenders();
    AddMemory(*Held);
    for (int I = 0; I < 1500; ++I)
        Logger().Info("x");
    EXPECT_EQ(Out.Lines.size(), 3000u);
    Held->UnLockAppenders();
}

TEST(LogGates, RemovalInsideTheHookWaits) {
    const TLogTree Tree;
    const Ref<IQzLogger> Raising = Logger().GetLogger("raising"), Busy = Logger().GetLogger("busy");
    Raising->SetAdditive(false);
    AddMemory(*Raising).OnWrite = [](const UnicodeString&) { throw Exception(u"no"); };
    TMemoryAppender& Slow = AddMemory(*Busy);
    const Ref<IQzLogAppender> Keep(&static_cast<IQzLogAppenderEx&>(Slow));
    std::atomic<bool> IsWriting{false}, IsDone{false}, WasDone{false};
    Slow.OnWrite = [&](const UnicodeString&) {
        IsWriting = true;
        platform::SleepMs(50);
        IsDone = true;
    };
    QzSetLogDropHook([&](const TQzLogDrop&) {
        Busy->RemoveAppender(Keep.Get());
        WasDone = IsDone.load();
    });
    std::thread Writer([&] { Busy->Info("x"); });
    while (!IsWriting)
        std::this_thread::yield();
    Raising->Info("x");
    Writer.join();
    QzSetLogDropHook(nullptr);
    EXPECT_TRUE(WasDone);
}

// A queued message gives layouts the same two texts of an object as one that is written at once.
TEST(LogGates, TextsOfObjectsDoNotDependOnTheQueue) {
    const TLogTree Tree;
    const TObject Shown;
    const Ref<TShowingAppender> Appender(TShowingAppender::Create(nullptr, u""));
    Logger().AddAppender(Appender.Get());
    Logger().Debug("direct", &Shown);
    Appender->Lock();
    Logger().Debug("queued", &Shown);
    Appender->Unlock();
    ASSERT_EQ(Appender->Lines.size(), 2u);
    EXPECT_EQ(Appender->Lines[1], Appender->Lines[0]);
}

} // namespace
} // namespace qz
