// The calling thread, millisecond clocks and waiting. Everything here may be called from any thread.
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

// The system's number of the calling thread, never 0. After a fork() the child sees its own number.
QZ_API std::uint32_t CurrentThreadId() noexcept;

// The system's number of this process; a child of fork() sees its own.
QZ_API std::uint32_t CurrentProcessId() noexcept;

// Milliseconds since the system started, time asleep included. Never steps back; the 32-bit clock starts
// again at 0 after 49.7 days, so compare differences only.
QZ_API std::uint32_t TickCount() noexcept;
QZ_API std::uint64_t TickCount64() noexcept;

// As TickCount64 without the time asleep, cheaper to ask for, and late by up to 16 ms.
QZ_API std::uint64_t CoarseTickCount64() noexcept;

// Names the calling thread for debuggers and process viewers. AName is UTF-8 and ends at its first NUL. Linux
// keeps the first 15 bytes, cut so that no character is torn. Windows raises the debuggers' thread-naming
// notification (exception 0x406D1388, handled in here) and sets the thread's description where there is one.
QZ_API void SetCurrentThreadName(std::string_view AName);

// Gives the rest of the time slice to another thread that is ready.
QZ_API void YieldThread() noexcept;

// Waits for at least AMilliseconds, which no signal cuts short; 0 yields.
QZ_API void SleepMs(std::uint32_t AMilliseconds) noexcept;

// Runs ABody on a thread of its own, which takes no signals and nobody waits for; the system ends it with the process. False
// when the system has no thread to give. ABody raises nothing.
QZ_API bool StartServiceThread(void (*ABody)() noexcept) noexcept;

// How many processors this process may run on, at least 1.
QZ_API std::uint32_t ProcessorCount() noexcept;

} // namespace qz::platform
