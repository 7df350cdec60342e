#include <qz/platform/EventLog.h>

#include <gtest/gtest.h>

#include <qz/platform/Module.h>

namespace qz::platform {
namespace {

std::u16string EventText(uint32_t AId, const char16_t* AInsert) {
    using TFormat = uint32_t (*)(uint32_t, void*, uint32_t, uint32_t, char16_t*, uint32_t, const char16_t**);
    constexpr uint32_t cFromModule = 0x800;
    constexpr uint32_t cArgumentArray = 0x2000;
    char16_t Text[128];
    const auto Format = reinterpret_cast<TFormat>(FindModuleFunction(u"kernel32.dll", "FormatMessageW"));
    const uint32_t Length = Format(cFromModule | cArgumentArray, nullptr, AId, 1033, Text, 128, &AInsert);
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

} // namespace
} // namespace qz::platform
