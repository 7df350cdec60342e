#include <atomic>
#include <string>
#include <thread>

#include <pthread.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include "tests/support/Child.h"
#include <qz/platform/Environment.h>
#include <qz/platform/Threads.h>

namespace qz::platform {
namespace {

TEST(EnvironmentLinux, ChildOfForkCanAsk) {
    std::atomic<bool> Stop{false};
    std::thread Asks([&] {
        while (!Stop)
            GetEnvironment(u"PATH");
    });
    for (int Round = 0; Round < 100; ++Round)
        EXPECT_EQ(InChild([] { return GetEnvironment(u"PATH") ? 0 : 1; }), 0);
    Stop = true;
    Asks.join();
}

TEST(ThreadsLinux, ChildOfForkHasItsOwnId) {
    // The second thread makes sure that it is the forking thread's id which the child forgets.
    AtOnce(1, [](int) {
        const uint32_t Parent = CurrentThreadId();
        EXPECT_EQ(Parent, static_cast<uint32_t>(gettid()));
        EXPECT_EQ(InChild([] { return CurrentThreadId() == static_cast<uint32_t>(getpid()) ? 0 : 1; }), 0);
        EXPECT_EQ(CurrentThreadId(), Parent);
    });
}

TEST(ThreadsLinux, NameIsCutBetweenCharacters) {
    struct TCase {
        std::string Name, Kept;
    };
    const TCase Cases[] = {
        {"123456789012345", "123456789012345"},
        {"1234567890123456", "123456789012345"},
        {"1234567890123\xC3\xA4", "1234567890123\xC3\xA4"},
        {"123456789012\xF0\x9F\x98\x80", "123456789012"},
        {std::string("a\0b", 3), "a"},
        {std::string(40, '\x80'), ""}, // nothing but torn characters
    };
    std::thread([&Cases] {
        for (const TCase& Case : Cases) {
            SetCurrentThreadName(Case.Name);
            char Name[16] = {};
            pthread_getname_np(pthread_self(), Name, sizeof Name);
            EXPECT_EQ(Name, Case.Kept) << Case.Name;
        }
    }).join();
}

} // namespace
} // namespace qz::platform
