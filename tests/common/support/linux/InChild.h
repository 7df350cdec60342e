// Children of fork(), each with a deadline.
#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <qz/platform/Threads.h>

#if defined(__SANITIZE_ADDRESS__)
#define QZ_TESTS_CHECK_ADDRESSES 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QZ_TESTS_CHECK_ADDRESSES 1
#endif
#endif

namespace qz {

// Whether a child can allocate after a fork among threads that allocate. The allocator of AddressSanitizer
// does not take its locks around a fork, so that a child may wait for one for ever, with or without this
// library.
#if defined(QZ_TESTS_CHECK_ADDRESSES)
inline constexpr bool cChildrenCanAllocate = false;
#else
inline constexpr bool cChildrenCanAllocate = true;
#endif

// The status of a child when it has ended, which is killed after two minutes.
inline int AwaitChild(pid_t AChild) {
    constexpr int cMostTries = 12000;
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
