#include <qz/platform/Threads.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <iterator>
#include <string>

#include <windows.h>

#include <qz/platform/Module.h>

namespace qz::platform {

namespace {

// The notification as debuggers know it, and its record.
constexpr DWORD cThreadNaming = 0x406D1388;

struct TThreadNaming {
    DWORD Kind;
    const char* Name;
    DWORD ThreadId;
    DWORD Flags;
};

constexpr DWORD cNamingKind = 0x1000;
constexpr auto cCallingThread = static_cast<DWORD>(-1);

LONG CALLBACK SkipThreadNaming(EXCEPTION_POINTERS* APointers) {
    return APointers->ExceptionRecord->ExceptionCode == cThreadNaming ? EXCEPTION_CONTINUE_EXECUTION
                                                                      : EXCEPTION_CONTINUE_SEARCH;
}

void NotifyDebugger(const char* AName) {
    // A debugger sees the exception before any handler does, and other handlers of this kind before this one.
    void* Handler = AddVectoredExceptionHandler(0, SkipThreadNaming);
    if (Handler == nullptr)
        return;
    const TThreadNaming Naming = {cNamingKind, AName, cCallingThread, 0};
    ULONG_PTR Arguments[sizeof Naming / sizeof(ULONG_PTR)];
    static_assert(sizeof Arguments == sizeof Naming);
    std::memcpy(Arguments, &Naming, sizeof Naming);
    RaiseException(cThreadNaming, 0, static_cast<DWORD>(std::size(Arguments)), Arguments);
    RemoveVectoredExceptionHandler(Handler);
}

void Describe(const std::string& AName) {
    using TSetThreadDescription = HRESULT(WINAPI*)(HANDLE, PCWSTR);
    static const auto SetDescription =
        reinterpret_cast<TSetThreadDescription>(FindModuleFunction(u"kernel32.dll", "SetThreadDescription"));
    if (SetDescription == nullptr)
        return;
    const auto Size = static_cast<int>(std::min<std::size_t>(AName.size() + 1, 1 << 16));
    std::wstring Text(static_cast<std::size_t>(Size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, AName.c_str(), Size, Text.data(), Size);
    SetDescription(GetCurrentThread(), Text.c_str());
}

} // namespace

std::uint32_t CurrentThreadId() noexcept {
    return GetCurrentThreadId();
}

std::uint32_t CurrentProcessId() noexcept {
    return GetCurrentProcessId();
}

std::uint32_t TickCount() noexcept {
    return static_cast<std::uint32_t>(GetTickCount64());
}

std::uint64_t TickCount64() noexcept {
    return GetTickCount64();
}

std::uint64_t CoarseTickCount64() noexcept {
    return GetTickCount64();
}

void SetCurrentThreadName(std::string_view AName) {
    const std::string Name(AName.substr(0, AName.find('\0')));
    NotifyDebugger(Name.c_str());
    Describe(Name);
}

void YieldThread() noexcept {
    SwitchToThread();
}

void SleepMs(std::uint32_t AMilliseconds) noexcept {
    // The greatest number would mean for ever.
    Sleep(std::min<DWORD>(AMilliseconds, INFINITE - 1));
}

bool StartServiceThread(void (*ABody)() noexcept) noexcept {
    const auto Body = [](void* AParameter) -> DWORD {
        reinterpret_cast<void (*)() noexcept>(AParameter)();
        return 0;
    };
    HMODULE Module; // the thread outlives whoever unloads this library
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<LPCWSTR>(ABody), &Module);
    HANDLE Thread = CreateThread(nullptr, 0, Body, reinterpret_cast<void*>(ABody), 0, nullptr);
    return Thread != nullptr && CloseHandle(Thread) != 0;
}

std::uint32_t ProcessorCount() noexcept {
    DWORD_PTR Process = 0;
    DWORD_PTR System = 0;
    // 0 when the process runs in several groups of processors.
    if (GetProcessAffinityMask(GetCurrentProcess(), &Process, &System) != 0 && Process != 0)
        return static_cast<std::uint32_t>(std::popcount(Process));
    return std::max<DWORD>(GetActiveProcessorCount(ALL_PROCESSOR_GROUPS), 1);
}

} // namespace qz::platform
