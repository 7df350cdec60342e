#include <qz/platform/Threads.h>

#include <string>
#include <thread>

#include <gtest/gtest.h>

#include <qz/platform/Module.h>

namespace qz::platform {
namespace {

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
    const auto AddHandler =
        reinterpret_cast<TAddHandler>(FindModuleFunction(u"kernel32.dll", "AddVectoredExceptionHandler"));
    const auto RemoveHandler = reinterpret_cast<TRemoveHandler>(
        FindModuleFunction(u"kernel32.dll", "RemoveVectoredExceptionHandler"));
    ASSERT_TRUE(AddHandler != nullptr && RemoveHandler != nullptr);
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
