#include <qz/platform/Debugger.h>

#include <gtest/gtest.h>

#include <qz/platform/Module.h>

namespace qz::platform {
namespace {

using TCreateWindow = void* (*)(unsigned long AExtendedStyle, const wchar_t* AClass, const wchar_t* ATitle,
                                unsigned long AStyle, int ALeft, int ATop, int AWidth, int AHeight,
                                void* AParent, void* AMenu, void* AInstance, void* AParameter);
using TDestroyWindow = int (*)(void* AWindow);

constexpr unsigned long cPopup = 0x80000000;

TEST(DebuggerWindows, FindsAWindowByClassAndTitle) {
    const auto CreateTestWindow =
        reinterpret_cast<TCreateWindow>(FindModuleFunction(u"user32.dll", "CreateWindowExW"));
    const auto DestroyTestWindow =
        reinterpret_cast<TDestroyWindow>(FindModuleFunction(u"user32.dll", "DestroyWindow"));
    ASSERT_TRUE(CreateTestWindow != nullptr && DestroyTestWindow != nullptr);
    void* Window = CreateTestWindow(0, L"STATIC", L"Qz test title", cPopup, 0, 0, 10, 10, nullptr, nullptr,
                                    nullptr, nullptr);
    if (Window == nullptr)
        GTEST_SKIP() << "no desktop to open a window on";
    EXPECT_TRUE(HasTopLevelWindow(u"static", u"qz test title"));
    EXPECT_TRUE(HasTopLevelWindow(u"", u"Qz test title"));
    EXPECT_FALSE(HasTopLevelWindow(u"static", u"Qz test"));
    DestroyTestWindow(Window);
    EXPECT_FALSE(HasTopLevelWindow(u"", u"Qz test title"));
}

} // namespace
} // namespace qz::platform
