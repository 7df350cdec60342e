// A part of a test in a child process, whose limits, rights and environment it may change.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace qz {

// The result of ATest, which runs in a child made by fork(); -1 if the child does not end within a minute.
template <class TTest> int InChild(const TTest& ATest) {
    const pid_t Child = fork();
    if (Child == 0) {
        alarm(60);
        _exit(ATest());
    }
    int Status = -1;
    EXPECT_EQ(waitpid(Child, &Status, 0), Child);
    return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
}

} // namespace qz
