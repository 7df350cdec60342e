#include <qz/platform/linux/Futex.h>

#include <cerrno>

#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace qz::platform::detail {

void FutexWait(const void* AWord, std::uint32_t AExpected, std::uint32_t AGroups) noexcept {
    const int Kept = errno;
    syscall(SYS_futex, AWord, FUTEX_WAIT_BITSET | FUTEX_PRIVATE_FLAG, AExpected, nullptr, nullptr, AGroups);
    errno = Kept;
}

int FutexWake(const void* AWord, int ACount, std::uint32_t AGroups) noexcept {
    const int Kept = errno;
    const long Woken =
        syscall(SYS_futex, AWord, FUTEX_WAKE_BITSET | FUTEX_PRIVATE_FLAG, ACount, nullptr, nullptr, AGroups);
    errno = Kept;
    return Woken > 0 ? static_cast<int>(Woken) : 0;
}

} // namespace qz::platform::detail
