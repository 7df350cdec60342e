// Children of fork(), each with a deadline.
#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <qz/platform/Threads.h>

namespace qz {

// The status of a child when it has ended, which is killed after half a minute.
inline int AwaitChild(pid_t AChild) {
    constexpr int cMostTries = 3000;
    int Status = 0;
    for (int Try = 0; Try < cMostTries; ++Try) {
        if (waitpid(AChild, &Status, WNOHANG) == AChild)
            return Status;
        platform::SleepMs(10);
    }
    kill(AChild, SIGKILL);
    waitpid(AChild, &Status, 0);
    return Status;
}

// Runs ABody in a child, where it must give true.
template <class F> void InChild(F ABody) {
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0)
        _exit(ABody() ? 0 : 1);
    EXPECT_EQ(AwaitChild(Child), 0);
}

} // namespace qz
