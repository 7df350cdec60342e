// Changes while eight threads log; run under the sanitizers too.
#include <gtest/gtest.h>

#include <set>
#include <thread>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/MemoryAppender.h"

namespace qz {
namespace {

constexpr int cThreads = 8;

// Threads that log numbered messages until the destructor.
class TLoggingThreads {
public:
    explicit TLoggingThreads(const char* APath = "a.b") {
        for (int I = 0; I < cThreads; ++I)
            FThreads.emplace_back([this, I, APath] {
                for (int Number = 0; !FStop; ++Number) {
                    const Ref<IQzLogger> Log = Logger().GetLogger(APath);
                    Log->Debug("%d:%d", {I, Number});
                    Log->Info("text");
                }
            });
    }
    ~TLoggingThreads() {
        FStop = true;
        for (std::thread& Thread : FThreads)
            Thread.join();
    }

private:
    std::atomic<bool> FStop{false};
    std::vector<std::thread> FThreads;
};

TEST(LoggerThreads, LevelsAndListsChangeWhileOthersLog) {
    const TLogTree Tree;
    const Ref<IQzLogger> Parent = Logger().GetLogger("a");
    TQzLoggerList& List = *Logger().GetChildLoggers();
    const TLoggingThreads Threads;
    for (int I = 0; I < 200; ++I) {
        const Ref<IQzLogger> Log = Logger().GetLogger("a.b");
        TMemoryAppender& One = AddMemory(*Parent, u"One");
        const Ref<IQzLogAppender> Two = Logger().AddAppender(TQzLogBaseClass::Of<TMemoryAppender>());
        Log->SetLevel(I % 2 == 0 ? llDoNotLog : llAll);
        Parent->SetAdditive(I % 3 == 0);
        Parent->SetParentLevel(I % 5 == 0);
        List.Lock(u"walk", true);
        for (int Child = 0; Child < List.Count(); ++Child)
            EXPECT_EQ(List.GetLogger(Child)->GetFullName(), u"root.a");
        List.Unlock();
        Logger().LockAppenders()->Count();
        Logger().UnLockAppenders();
        if (I % 2 == 0)
            One.Free();
        else
            Parent->RemoveAppender(static_cast<IQzLogAppender*>(&One));
        Logger().ClearAppenders();
        EXPECT_EQ(Parent->GetAppenders()->Count(), 0);
    }
}

TEST(LoggerThreads, NothingComesBehindARemoval) {
    const TLogTree Tree;
    const TLoggingThreads Threads("a");
    for (int I = 0; I < 200; ++I) {
        std::atomic<bool> IsRemoved{false};
        TMemoryAppender& Out = *TMemoryAppender::Create(nullptr, u"");
        const Ref<IQzLogAppender> Hold(static_cast<IQzLogAppender*>(&Out));
        Out.OnWrite = [&IsRemoved](const UnicodeString&) { EXPECT_FALSE(IsRemoved.load()); };
        Logger().AddAppender(Hold.Get());
        std::this_thread::yield();
        Logger().RemoveAppender(Hold.Get());
        IsRemoved = true;
        Out.OnWrite = nullptr; // races with a message that comes too late
    }
}

// The configurator logs under the tree lock while the appender gets a logger under the gate.
TEST(LoggerThreads, ConfiguratorsAndAppendersDoNotWaitForEachOther) {
    const TLogTree Tree;
    const Ref<TConfiguration> Configuration = TConfiguration::Create();
    Configuration->OnConfigure = [](TQzLogger& ALogger) {
        ALogger.SetLevel(llAll);
        Logger().Info(u"configures " + ALogger.GetFullName());
    };
    AddMemory(Logger()).OnWrite = [](const UnicodeString&) { Logger().GetLogger("of.appender"); };
    Logger().SetConfig(Configuration.Get());
    const TLoggingThreads Threads;
    for (int I = 0; I < 200; ++I)
        Logger().GetLogger("main")->Info("x");
    Logger().SetConfig(nullptr);
}

// Loggers stay usable while their tree is closed.
TEST(LoggerThreads, TheTreeEndsWhileOthersLog) {
    for (int Round = 0; Round < 30; ++Round) {
        const TLogTree Tree;
        std::vector<Ref<IQzLogger>> Logs;
        for (int I = 0; I < cThreads; ++I)
            Logs.push_back(Logger().GetLogger("a.b"));
        AddMemory(Logger());
        AddMemory(*Logs[0]->GetParentLogger());
        std::atomic<bool> Stop{false};
        std::vector<std::thread> Threads;
        for (Ref<IQzLogger>& Log : Logs)
            Threads.emplace_back([&Stop, Mine = std::exchange(Log, nullptr)]() mutable {
                while (!Stop) {
                    Mine->Info("x");
                    Mine->GetLogger("c.d")->Info("y");
                }
                Mine.Clear();
            });
        std::this_thread::yield();
        CloseRootLogger();
        Stop = true;
        for (std::thread& Thread : Threads)
            Thread.join();
    }
    EXPECT_EQ(AppenderInstances().Count(), 0);
}

} // namespace
} // namespace qz
