#include <qz/platform/Module.h>

#include <gtest/gtest.h>

#include <qz/platform/Files.h>

namespace qz::platform {
namespace {

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
    EXPECT_EQ(FindModuleFunction(u"no-such-module", Function), nullptr);
    EXPECT_EQ(FindModuleFunction(Loaded + std::u16string(1, u'\0'), Function), nullptr);
    EXPECT_EQ(FindModuleFunction(u"", "NoSuchFunction"), nullptr);
}

} // namespace
} // namespace qz::platform
