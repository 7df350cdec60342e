#include <qz/platform/EventLog.h>

#include <string>

#include <gtest/gtest.h>

#include <qz/platform/Accounts.h>
#include <qz/platform/Module.h>
#include <qz/platform/Threads.h>
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

// A source of the test's own in the registry, which goes with it.
class TRegisteredSource {
public:
    explicit TRegisteredSource(std::u16string AName)
        : FPath(u"SYSTEM\\CurrentControlSet\\Services\\Eventlog\\Application\\" + AName) {}
    TRegisteredSource(const TRegisteredSource&) = delete;
    TRegisteredSource& operator=(const TRegisteredSource&) = delete;
    ~TRegisteredSource() {
        using TDelete = int32_t (*)(void*, const char16_t*);
        Function<TDelete>(u"advapi32.dll", "RegDeleteKeyW")(cMachine, FPath.c_str());
    }

    std::u16string Text(const char16_t* AName) const {
        char16_t Value[512] = {};
        uint32_t Size = sizeof Value;
        return Get(AName, cText, Value, Size) ? Value : u"-";
    }
    uint32_t Number(const char16_t* AName) const {
        uint32_t Value = 0;
        uint32_t Size = sizeof Value;
        return Get(AName, cNumber, &Value, Size) ? Value : 0;
    }

private:
    static constexpr uint32_t cText = 2;
    static constexpr uint32_t cNumber = 0x10;
    static inline void* const cMachine = reinterpret_cast<void*>(intptr_t{int32_t(0x80000002)});

    bool Get(const char16_t* AName, uint32_t AKind, void* AValue, uint32_t& ASize) const {
        using TGet = int32_t (*)(void*, const char16_t*, const char16_t*, uint32_t, void*, void*, uint32_t*);
        return Function<TGet>(u"advapi32.dll", "RegGetValueW")(cMachine, FPath.c_str(), AName, AKind, nullptr,
                                                               AValue, &ASize) == 0;
    }

    std::u16string FPath;
};

TEST(EventLogWindows, SourceIsEnteredOnce) {
    if (Elevation() != TElevation::Full)
        GTEST_SKIP() << "only an administrator may enter a source";
    const std::string Number = std::to_string(TickCount64());
    const std::u16string Name = u"qz-test-" + std::u16string(Number.begin(), Number.end());
    const TRegisteredSource Entry(Name);
    EXPECT_EQ(Entry.Text(u"EventMessageFile"), u"-");
    SystemEventLog().EnterSource(Name, u"C:\\first.exe");
    SystemEventLog().EnterSource(Name, u"C:\\second.exe");
    EXPECT_EQ(Entry.Text(u"EventMessageFile"), u"C:\\first.exe");
    EXPECT_EQ(Entry.Number(u"TypesSupported"), 7u);
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
