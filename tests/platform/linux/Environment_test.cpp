#include <qz/platform/Environment.h>

#include <atomic>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

// The alarm ends a child that waits for ever.
TEST(EnvironmentLinux, ChildOfForkCanAsk) {
    std::atomic<bool> Stop{false};
    std::thread Asks([&] {
        while (!Stop)
            GetEnvironment(u"PATH");
    });
    int Status = 0;
    for (int Round = 0; Round < 100 && Status == 0; ++Round) {
        const pid_t Child = fork();
        ASSERT_GE(Child, 0);
        if (Child == 0) {
            alarm(20);
            GetEnvironment(u"PATH");
            _exit(0);
        }
        waitpid(Child, &Status, 0);
    }
    EXPECT_EQ(0, Status);
    Stop = true;
    Asks.join();
}

} // namespace
} // namespace qz::platform
