// The calling thread, millisecond clocks and waiting. Any thread may call these functions.
//
//     SetCurrentThreadName("log writer");
//     const std::uint32_t Start = TickCount();
//     ...
//     if (TickCount() - Start >= 500) ...  // right across the wrap of the clock
#pragma once

#include <cstdint>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

// The system's number of the calling thread, never 0; correct in a child of fork() too.
QZ_API std::uint32_t CurrentThreadId() noexcept;

// The system's number of this process; correct in a child of fork() too.
QZ_API std::uint32_t CurrentProcessId() noexcept;

// Milliseconds since the system started, including sleep. Monotonic; the 32-bit clock wraps after 49.7 days,
// so compare differences only.
QZ_API std::uint32_t TickCount() noexcept;
QZ_API std::uint64_t TickCount64() noexcept;

// As TickCount64 without sleep; cheaper, and up to 16 ms late.
QZ_API std::uint64_t CoarseTickCount64() noexcept;

// Names the calling thread for debuggers and process viewers. AName is UTF-8 and ends at its first NUL. Linux
// keeps at most 15 bytes of whole characters. Windows raises the thread-naming notification for debuggers
// (exception 0x406D1388, handled internally) and sets the thread description where the system has one.
QZ_API void SetCurrentThreadName(std::string_view AName);

// Yields the rest of the time slice.
QZ_API void YieldThread() noexcept;

// Waits at least AMilliseconds; signals do not shorten it. 0 yields.
QZ_API void SleepMs(std::uint32_t AMilliseconds) noexcept;

// Runs ABody, which must not raise, on a new detached thread that receives no signals and ends with the
// process. False if the thread cannot be created.
QZ_API bool StartServiceThread(void (*ABody)() noexcept) noexcept;

// The number of processors this process may use, at least 1.
QZ_API std::uint32_t ProcessorCount() noexcept;

} // namespace qz::platform
