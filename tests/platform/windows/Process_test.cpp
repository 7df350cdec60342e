#include <qz/platform/EventLog.h>

#include <gtest/gtest.h>

#include <qz/platform/Debugger.h>
#include <qz/platform/Module.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {
namespace {

template <class T> T Function(std::u16string_view AModule, const char* AName) {
    return reinterpret_cast<T>(FindModuleFunction(AModule, AName));
}

std::u16string EventText(uint32_t AId, const char16_t* AInsert) {
    using TFormat = uint32_t (*)(uint32_t, void*, uint32_t, uint32_t, char16_t*, uint32_t, const char16_t**);
    constexpr uint32_t cFromModule = 0x800;
    constexpr uint32_t cArgumentArray = 0x2000;
    char16_t Text[128];
    const uint32_t Length = Function<TFormat>(u"kernel32.dll", "FormatMessageW")(
        cFromModule | cArgumentArray, nullptr, AId, 1033, Text, 128, &AInsert);
    return {Text, Length};
}

TEST(EventLogWindows, MessageTableHasTheTexts) {
    for (uint32_t Id = 1; Id <= 4; ++Id)
        EXPECT_EQ(EventText(Id, u"the whole message"), u"the whole message\r\n");
    EXPECT_EQ(EventText(5, u""), u"Here is id5 success message\r\n");
    EXPECT_EQ(EventText(9, u""), u"");
}

TEST(EventLogWindows, EventsAreTaken) {
    IEventLog& Log = SystemEventLog();
    const uintptr_t Source = Log.OpenSource(u"qz-test");
    ASSERT_NE(Source, 0u);
    EXPECT_TRUE(Log.Write(Source, TEventType::Information, 2, u"an event of a test", 0));
    EXPECT_TRUE(Log.Write(Source, TEventType::Error, 4, std::u16string(70'000, u'x'), 0));
    Log.CloseSource(Source);
    EXPECT_FALSE(Log.Write(0, TEventType::Error, 4, u"x", 0));
}

using TCreateWindow = void* (*)(unsigned long AExtendedStyle, const wchar_t* AClass, const wchar_t* ATitle,
                                unsigned long AStyle, int ALeft, int ATop, int AWidth, int AHeight,
                                void* AParent, void* AMenu, void* AInstance, void* AParameter);
using TDestroyWindow = int (*)(void* AWindow);

constexpr unsigned long cPopup = 0x80000000;

TEST(DebuggerWindows, FindsAWindowByClassAndTitle) {
    const auto CreateTestWindow = Function<TCreateWindow>(u"user32.dll", "CreateWindowExW");
    const auto DestroyTestWindow = Function<TDestroyWindow>(u"user32.dll", "DestroyWindow");
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
