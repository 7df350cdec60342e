#include "platform/Threads.h"

#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <windows.h>

namespace qz::platform {
namespace {

thread_local std::string GNotified;

LONG CALLBACK Listen(EXCEPTION_POINTERS* APointers) {
    const EXCEPTION_RECORD& Record = *APointers->ExceptionRecord;
    if (Record.ExceptionCode == 0x406D1388 && Record.NumberParameters == 3 &&
        static_cast<DWORD>(Record.ExceptionInformation[0]) == 0x1000 &&
        static_cast<DWORD>(Record.ExceptionInformation[2]) == 0xFFFFFFFF &&
        Record.ExceptionInformation[2] >> 32 == 0)
        GNotified = reinterpret_cast<const char*>(Record.ExceptionInformation[1]);
    return EXCEPTION_CONTINUE_SEARCH;
}

TEST(ThreadsWindows, NamingRaisesTheNotification) {
    std::string Notified;
    std::thread([&Notified] {
        void* Handler = AddVectoredExceptionHandler(1, Listen);
        SetCurrentThreadName("painter \xC3\xA4");
        RemoveVectoredExceptionHandler(Handler);
        Notified = GNotified;
    }).join();
    EXPECT_EQ(Notified, "painter \xC3\xA4");
}

} // namespace
} // namespace qz::platform
