#include <gtest/gtest.h>

#include <future>
#include <thread>

#include "tests/common/support/MemoryAppender.h"
#include "tests/common/support/linux/InChild.h"
#include <qz/common/uQzLogger.h>

namespace qz {
namespace {

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
