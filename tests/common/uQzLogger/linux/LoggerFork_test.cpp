#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

#include "tests/common/support/MemoryAppender.h"
#include <qz/common/uQzLogger.h>

namespace qz {
namespace {

// The child ends with 0 when it could log, get a logger and change a list; the alarm ends one that waits for ever.
TEST(LoggerFork, TheChildCanLog) {
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
                Logger().RemoveAppender(static_cast<IQzLogAppender*>(&Brief));
            }
        });
    for (int I = 0; I < 10; ++I) {
        const pid_t Child = fork();
        ASSERT_GE(Child, 0);
        if (Child == 0) {
            alarm(20);
            Logger().GetLogger("of.child")->Info("x");
            Logger().ClearAppenders();
            TMemoryAppender& Own = AddMemory(Logger());
            Logger().Info("y");
            _exit(Own.Lines.size() == 1 ? 0 : 1);
        }
        int Status = 0;
        waitpid(Child, &Status, 0);
        EXPECT_EQ(0, Status);
    }
    Stop = true;
    for (std::thread& Thread : Threads)
        Thread.join();
}

} // namespace
} // namespace qz
