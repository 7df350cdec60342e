#include "platform/Debugger.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace qz::platform {
namespace {

TEST(DebuggerWindows, FindsAWindowByClassAndTitle) {
    HWND Window = CreateWindowExW(0, L"STATIC", L"Qz test title", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                  nullptr, nullptr);
    if (Window == nullptr)
        GTEST_SKIP() << "no desktop to open a window on";
    EXPECT_TRUE(HasTopLevelWindow(u"static", u"qz test title"));
    EXPECT_TRUE(HasTopLevelWindow(u"", u"Qz test title"));
    EXPECT_FALSE(HasTopLevelWindow(u"static", u"Qz test"));
    DestroyWindow(Window);
    EXPECT_FALSE(HasTopLevelWindow(u"", u"Qz test title"));
}

} // namespace
} // namespace qz::platform
