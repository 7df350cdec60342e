#include <qz/platform/Clock.h>

#include <windows.h>

#include <qz/platform/Module.h>

namespace qz::platform {

namespace {

std::int64_t Joined(const FILETIME& ATime) {
    return static_cast<std::int64_t>((std::uint64_t{ATime.dwHighDateTime} << 32) | ATime.dwLowDateTime);
}

using TAskTime = void(WINAPI*)(FILETIME*);

// The fine clock came with Windows 8.
TAskTime FindClock() {
    auto* Precise =
        reinterpret_cast<TAskTime>(FindModuleFunction(u"kernel32.dll", "GetSystemTimePreciseAsFileTime"));
    return Precise != nullptr ? Precise : GetSystemTimeAsFileTime;
}

} // namespace

std::int64_t UtcNow100ns() noexcept {
    static const TAskTime AskTime = FindClock();
    FILETIME Now;
    AskTime(&Now);
    return Joined(Now);
}

std::int64_t UtcNowSeconds() noexcept {
    FILETIME Now;
    GetSystemTimeAsFileTime(&Now);
    return Joined(Now) / 10'000'000;
}

} // namespace qz::platform
