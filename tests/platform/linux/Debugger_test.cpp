#include <qz/platform/Debugger.h>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

TEST(DebuggerLinux, TracedProcessNoticesIt) {
    constexpr int cCannotTrace = 9;
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0) {
        if (IsDebuggerPresent())
            _exit(1);
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(cCannotTrace);
        _exit(IsDebuggerPresent() ? 0 : 2);
    }
    int Status = -1;
    ASSERT_EQ(waitpid(Child, &Status, 0), Child);
    ASSERT_TRUE(WIFEXITED(Status));
    if (WEXITSTATUS(Status) == cCannotTrace)
        GTEST_SKIP() << "this system forbids tracing";
    EXPECT_EQ(WEXITSTATUS(Status), 0);
}

} // namespace
} // namespace qz::platform
