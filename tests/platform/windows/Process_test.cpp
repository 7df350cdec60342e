#include <qz/platform/EventLog.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include <qz/platform/Accounts.h>
#include <qz/platform/Debugger.h>
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

// The system's exception record and the pair of pointers that handlers get, as far as they are of use here.
struct TExceptionRecord {
    uint32_t Code;
    uint32_t Flags;
    void* Inner;
    void* Address;
    uint32_t ParameterCount;
    uintptr_t Parameters[15];
};

struct TExceptionPointers {
    TExceptionRecord* Record;
    void* Context;
};

using THandler = long (*)(TExceptionPointers*);
using TAddHandler = void* (*)(unsigned long AFirst, THandler AHandler);
using TRemoveHandler = unsigned long (*)(void* AHandle);

constexpr long cContinueSearch = 0;

thread_local std::string GNotified;

long Listen(TExceptionPointers* APointers) {
    struct TNaming {
        uint32_t Kind;
        const char* Name;
        uint32_t ThreadId;
        uint32_t Flags;
    };
    const TExceptionRecord& Record = *APointers->Record;
    if (Record.Code == 0x406D1388 && Record.ParameterCount * sizeof(uintptr_t) == sizeof(TNaming)) {
        const auto& Naming = reinterpret_cast<const TNaming&>(Record.Parameters);
        if (Naming.Kind == 0x1000 && Naming.ThreadId == 0xFFFFFFFF && Naming.Flags == 0)
            GNotified = Naming.Name;
    }
    return cContinueSearch;
}

TEST(ThreadsWindows, NamingRaisesTheNotification) {
    const auto AddHandler = Function<TAddHandler>(u"kernel32.dll", "AddVectoredExceptionHandler");
    const auto RemoveHandler = Function<TRemoveHandler>(u"kernel32.dll", "RemoveVectoredExceptionHandler");
    std::string Notified;
    std::thread([&] {
        void* Handle = AddHandler(1, Listen);
        SetCurrentThreadName("painter \xC3\xA4");
        RemoveHandler(Handle);
        Notified = GNotified;
    }).join();
    EXPECT_EQ(Notified, "painter \xC3\xA4");
}

} // namespace
} // namespace qz::platform
