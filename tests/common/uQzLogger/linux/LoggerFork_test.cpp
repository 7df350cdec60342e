#include <gtest/gtest.h>

#include <future>
#include <thread>

#include "tests/common/support/MemoryAppender.h"
#include "tests/common/support/linux/InChild.h"
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>

namespace qz {
namespace {

// Other threads write, change lists and get loggers at the moment of the fork. The child gets a logger,
// changes a list, and its message arrives.
TEST(LoggerFork, TheChildCanLog) {
    if constexpr (cChildrenCanAllocate) {
        const TLogTree Tree;
        AddMemory(Logger()).OnWrite = [](const UnicodeString&) {
            const Ref<IQzLogger> Other = Logger().GetLogger("other.one");
            Other->SetLevel(llInfo);
        };
        std::atomic<bool> Stop{false};
        std::vector<std::thread> Threads;
        for (int I = 0; I < 4; ++I)
            Threads.emplace_back([&Stop] {
                while (!Stop) {
                    Logger().GetLogger("a.b")->Info("x");
                    TMemoryAppender& Brief = AddMemory(Logger());
                    Brief.SetLayout(QzSimpleLayout);
                    Logger().RemoveAppender(static_cast<IQzLogAppender*>(&Brief));
                }
            });
        for (int I = 0; I < 10; ++I)
            InChild([] {
                Logger().GetLogger("of.child")->Info("x");
                Logger().ClearAppenders();
                TMemoryAppender& Own = AddMemory(Logger());
                Logger().Info("y");
                return Own.Lines.size() == 1;
            });
        Stop = true;
        for (std::thread& Thread : Threads)
            Thread.join();
    }
}

// Another thread holds the locks for the whole time. Those of the list and of the tree are free in the child;
// the appender whose lock is held is in none of its lists.
TEST(LoggerFork, LocksThatAnotherThreadKeeps) {
    const TLogTree Tree;
    TMemoryAppender& Out = AddMemory(Logger());
    TMemoryAppender& Kept = AddMemory(Logger());
    std::promise<void> AreHeld, End;
    std::thread Holder([&] {
        Logger().Lock(u"", true);
        Logger().LockAppenders();
        Kept.Lock();
        AreHeld.set_value();
        End.get_future().wait();
        Kept.Unlock();
        Logger().UnLockAppenders();
        Logger().Unlock();
    });
    AreHeld.get_future().wait();
    InChild([&] {
        Logger().GetLogger("of.child")->Info("x");
        return Out.Take() == u"root.of.child>root Info x|" && Logger().GetAppenders()->Count() == 1;
    });
    End.set_value();
    Holder.join();
    EXPECT_EQ(Logger().GetAppenders()->Count(), 2);
}

} // namespace
} // namespace qz
