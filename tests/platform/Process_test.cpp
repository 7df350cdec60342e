#include <atomic>
#include <chrono>
#include <cstdlib>
#include <string_view>
#include <thread>

#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include <qz/platform/Clock.h>
#include <qz/platform/CommandLine.h>
#include <qz/platform/Environment.h>
#include <qz/platform/Files.h>
#include <qz/platform/Module.h>
#include <qz/platform/Mutex.h>
#include <qz/platform/Threads.h>

namespace qz::platform {
namespace {

TEST(Clock, UtcNowIsNow) {
    using TSteps = std::chrono::duration<int64_t, std::ratio<1, 10'000'000>>;
    constexpr TSteps cStart = std::chrono::sys_days{std::chrono::year{1601} / 1 / 1}.time_since_epoch();
    const auto Expected = [=] {
        const auto Now = std::chrono::system_clock::now().time_since_epoch();
        return (std::chrono::duration_cast<TSteps>(Now) - cStart).count();
    };
    constexpr int64_t cTick = 500'000; // the clocks need not have the same steps
    const int64_t Before = Expected();
    const int64_t Now = UtcNow100ns();
    EXPECT_LE(Before - cTick, Now);
    EXPECT_LE(Now, Expected() + cTick);
}

// GoogleTest keeps what main was given.
TEST(CommandLine, ArgumentsAreThoseOfMain) {
    const std::vector<std::string> Expected = testing::internal::GetArgvs();
    const std::vector<std::u16string> Arguments = CommandLineArguments();
    ASSERT_EQ(Arguments.size() + 1, Expected.size());
    for (std::size_t I = 0; I < Arguments.size(); ++I)
        EXPECT_EQ(std::string(Arguments[I].begin(), Arguments[I].end()), Expected[I + 1]);
}

constexpr std::u16string_view cName = u"QZ_TEST_VARIABLE";

TEST(Environment, ValuesComeBack) {
    const std::u16string Values[] = {u"plain", u"", u"Grüße \xD83D\xDE00", u"a=b",
                                     std::u16string(3000, u'ä')};
    for (const std::u16string& Value : Values) {
        ASSERT_TRUE(SetEnvironment(cName, Value));
        EXPECT_EQ(GetEnvironment(cName), Value);
    }
    EXPECT_TRUE(SetEnvironment(cName, std::nullopt));
    EXPECT_EQ(GetEnvironment(cName), std::nullopt);
}

TEST(Environment, RefusesWhatNoVariableCanBe) {
    using namespace std::string_view_literals;
    for (const std::u16string_view Name : {u""sv, u"="sv, u"A=B"sv, u"A\0B"sv}) {
        EXPECT_FALSE(SetEnvironment(Name, u"x"));
        EXPECT_EQ(GetEnvironment(Name), std::nullopt);
    }
    EXPECT_FALSE(SetEnvironment(cName, u"a\0b"sv));
    EXPECT_EQ(GetEnvironment(cName), std::nullopt);
}

constexpr int cFileNotFound = 2; // ENOENT and ERROR_FILE_NOT_FOUND alike

TEST(Error, TextIsOneTidyLine) {
    SetLastError(77);
    for (int Code = 1; Code < 1300; ++Code) {
        const std::u16string Text = ErrorText(Code);
        ASSERT_FALSE(Text.empty()) << Code;
        EXPECT_EQ(Text.find_first_of(u"\r\n"), std::u16string::npos) << Code;
        EXPECT_EQ(std::u16string_view(u". ").find(Text.back()), std::u16string_view::npos) << Code;
    }
    EXPECT_NE(ErrorText(cFileNotFound), ErrorText(cFileNotFound + 1));
    EXPECT_EQ(ErrorText(987654321), u"Unknown error 987654321");
    EXPECT_EQ(LastError(), 77);
}

constexpr bool cOnWindows = QZ_TESTS_ON_WINDOWS != 0;

TEST(Module, ExecutableIsThisOne) {
    const std::u16string Path = ExecutablePath();
    EXPECT_TRUE(FileExists(Path));
    const std::u16string Name = Path.substr(Path.find_last_of(u"/\\") + 1);
    EXPECT_TRUE(Name.starts_with(u"tests_platform")) << std::string(Name.begin(), Name.end());
}

TEST(Module, FindsFunctionsOfLoadedModulesOnly) {
    const std::u16string Loaded = cOnWindows ? u"kernel32.dll" : u"libc.so.6";
    const char* Function = cOnWindows ? "GetTickCount" : "getpid";
    EXPECT_NE(FindModuleFunction(Loaded, Function), nullptr);
    EXPECT_EQ(FindModuleFunction(Loaded, "NoSuchFunction"), nullptr);
    EXPECT_EQ(FindModuleFunction(Loaded + std::u16string(1, u'\0'), Function), nullptr);
    EXPECT_EQ(FindModuleFunction(u"", "NoSuchFunction"), nullptr);
}

TEST(Mutex, ThreadsTakeTurns) {
    constexpr int cRounds = 4000;
    TRecursiveMutex Mutex;
    long Count = 0;
    AtOnce(4, [&](int) {
        for (int Round = 0; Round < cRounds; ++Round) {
            if (Round % 3 != 0 || !Mutex.TryEnter())
                Mutex.Enter();
            const long Seen = Count;
            Mutex.Enter();
            if (Round % 100 == 0)
                SleepMs(0);
            Count = Seen + 1;
            Mutex.Leave();
            Mutex.Leave();
        }
    });
    EXPECT_EQ(Count, 4L * cRounds);
}

TEST(Threads, ClocksRunInMilliseconds) {
    const auto Begin = std::chrono::steady_clock::now();
    const uint64_t Start = TickCount64();
    const uint32_t Start32 = TickCount();
    SleepMs(60);
    const uint64_t Passed = TickCount64() - Start;
    const uint32_t Passed32 = TickCount() - Start32;
    const auto Mixed = static_cast<uint32_t>(TickCount64()) - Start32; // the lower half of the same clock
    const std::chrono::duration<double, std::milli> Most = std::chrono::steady_clock::now() - Begin;
    constexpr unsigned cTick = 16; // Windows counts in such steps
    for (const uint64_t Each : {Passed, uint64_t{Passed32}, uint64_t{Mixed}}) {
        EXPECT_GE(Each, 60 - cTick);
        EXPECT_LE(static_cast<double>(Each), Most.count() + 2 * cTick);
    }
}

} // namespace
} // namespace qz::platform
