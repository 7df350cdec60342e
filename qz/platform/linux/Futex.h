// Waiting in the kernel on a 32-bit word that this process's threads share.
#pragma once

#include <climits>
#include <cstdint>

namespace qz::platform::detail {

// Groups of waiters on one word; a wake reaches those who share a bit with it.
constexpr std::uint32_t cFutexAll = 0xFFFFFFFF;
constexpr int cFutexEveryone = INT_MAX;

// Sleeps while *AWord holds AExpected. Comes back on a wake, on a signal, and at once when the value differs,
// so the caller looks again. errno keeps its value.
void FutexWait(const void* AWord, std::uint32_t AExpected, std::uint32_t AGroups = cFutexAll) noexcept;

// Wakes up to ACount of those who sleep on AWord in one of AGroups, and gives their number. Reads nothing at
// AWord, which may be gone already. errno keeps its value.
int FutexWake(const void* AWord, int ACount, std::uint32_t AGroups = cFutexAll) noexcept;

// Tells the processor that this is a short wait for another one.
inline void SpinPause() noexcept {
#if defined(__x86_64__) || defined(__i386__)
    __builtin_ia32_pause();
#elif defined(__aarch64__)
    asm volatile("isb");
#endif
}

} // namespace qz::platform::detail
