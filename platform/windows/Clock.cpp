#include "platform/Clock.h"

#include <windows.h>

#include "platform/Module.h"

namespace qz::platform {

namespace {

int64_t Joined(const FILETIME& ATime) {
    return static_cast<int64_t>((uint64_t{ATime.dwHighDateTime} << 32) | ATime.dwLowDateTime);
}

FILETIME Split(int64_t ATime) {
    return {static_cast<DWORD>(ATime), static_cast<DWORD>(ATime >> 32)};
}

using TAskTime = void(WINAPI*)(FILETIME*);

// The fine clock came with Windows 8.
TAskTime FindClock() {
    auto* Precise =
        reinterpret_cast<TAskTime>(FindModuleFunction(u"kernel32.dll", "GetSystemTimePreciseAsFileTime"));
    return Precise != nullptr ? Precise : GetSystemTimeAsFileTime;
}

constexpr int64_t cMinute = 60 * int64_t{10'000'000};

} // namespace

int64_t UtcNow100ns() noexcept {
    static const TAskTime AskTime = FindClock();
    FILETIME Now;
    AskTime(&Now);
    return Joined(Now);
}

int64_t UtcNowSeconds() noexcept {
    FILETIME Now;
    GetSystemTimeAsFileTime(&Now);
    return Joined(Now) / 10'000'000;
}

TLocalTime LocalNow() noexcept {
    const FILETIME Utc = Split(UtcNow100ns());
    // This applies what holds now to any time, which for now itself is right.
    FILETIME Moved = Utc;
    FileTimeToLocalFileTime(&Utc, &Moved);
    SYSTEMTIME Local{};
    FileTimeToSystemTime(&Moved, &Local);
    return {
        .Year = Local.wYear,
        .Month = static_cast<uint8_t>(Local.wMonth),
        .Day = static_cast<uint8_t>(Local.wDay),
        .Hour = static_cast<uint8_t>(Local.wHour),
        .Minute = static_cast<uint8_t>(Local.wMinute),
        .Second = static_cast<uint8_t>(Local.wSecond),
        .DayOfWeek = static_cast<uint8_t>(Local.wDayOfWeek),
        .Millisecond = Local.wMilliseconds,
        .OffsetMinutes = static_cast<int16_t>((Joined(Moved) - Joined(Utc)) / cMinute),
    };
}

} // namespace qz::platform
