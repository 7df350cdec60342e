#include <qz/platform/Threads.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <memory>

#include <csignal>
#include <pthread.h>
#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace qz::platform {

namespace {

constexpr std::size_t cNameLimit = 15;

constinit thread_local std::uint32_t GThreadId = 0;

std::uint64_t Milliseconds(clockid_t AClock) noexcept {
    timespec Now;
    clock_gettime(AClock, &Now);
    return static_cast<std::uint64_t>(Now.tv_sec) * 1000 +
        static_cast<std::uint64_t>(Now.tv_nsec) / 1'000'000;
}

// Runs in the child of a fork(), on its only thread.
void ForgetThreadId() {
    GThreadId = 0;
}

std::uint32_t AskThreadId() noexcept {
    static const int Registered = pthread_atfork(nullptr, nullptr, ForgetThreadId);
    const auto Id = static_cast<std::uint32_t>(syscall(SYS_gettid));
    if (Registered == 0)
        GThreadId = Id;
    return Id;
}

} // namespace

std::uint32_t CurrentThreadId() noexcept {
    const std::uint32_t Id = GThreadId;
    return Id != 0 ? Id : AskThreadId();
}

std::uint32_t CurrentProcessId() noexcept {
    return static_cast<std::uint32_t>(getpid());
}

std::uint32_t TickCount() noexcept {
    return static_cast<std::uint32_t>(TickCount64());
}

std::uint64_t TickCount64() noexcept {
    return Milliseconds(CLOCK_BOOTTIME);
}

std::uint64_t CoarseTickCount64() noexcept {
    return Milliseconds(CLOCK_MONOTONIC_COARSE);
}

void SetCurrentThreadName(std::string_view AName) {
    AName = AName.substr(0, AName.find('\0'));
    std::size_t Length = std::min(AName.size(), cNameLimit);
    if (Length < AName.size()) {
        // A continuation byte behind the cut means that the cut tears a character.
        while (Length > 0 && (static_cast<unsigned char>(AName[Length]) & 0xC0) == 0x80)
            --Length;
    }
    char Name[cNameLimit + 1] = {};
    std::copy_n(AName.data(), Length, Name);
    pthread_setname_np(pthread_self(), Name);
}

void YieldThread() noexcept {
    sched_yield();
}

void SleepMs(std::uint32_t AMilliseconds) noexcept {
    if (AMilliseconds == 0) {
        sched_yield();
        return;
    }
    timespec Until;
    clock_gettime(CLOCK_MONOTONIC, &Until);
    Until.tv_sec += AMilliseconds / 1000;
    Until.tv_nsec += static_cast<long>(AMilliseconds % 1000) * 1'000'000;
    if (Until.tv_nsec >= 1'000'000'000) {
        Until.tv_nsec -= 1'000'000'000;
        ++Until.tv_sec;
    }
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &Until, nullptr) == EINTR) {}
}

bool StartServiceThread(void (*ABody)() noexcept) noexcept {
    const auto Body = [](void* AParameter) -> void* {
        reinterpret_cast<void (*)() noexcept>(AParameter)();
        return nullptr;
    };
    sigset_t All, Old;
    sigfillset(&All);
    pthread_sigmask(SIG_SETMASK, &All, &Old);
    pthread_t Thread;
    const bool Ok = pthread_create(&Thread, nullptr, Body, reinterpret_cast<void*>(ABody)) == 0;
    pthread_sigmask(SIG_SETMASK, &Old, nullptr);
    return Ok && pthread_detach(Thread) == 0;
}

std::uint32_t ProcessorCount() noexcept {
    // The kernel refuses a set that is smaller than its own.
    for (int Limit = 1024; Limit <= 1024 * 1024; Limit *= 4) {
        const std::unique_ptr<cpu_set_t, void (*)(cpu_set_t*)> Set(CPU_ALLOC(static_cast<std::size_t>(Limit)),
                                                                   [](cpu_set_t* ASet) { CPU_FREE(ASet); });
        const std::size_t Size = CPU_ALLOC_SIZE(static_cast<std::size_t>(Limit));
        if (Set && sched_getaffinity(0, Size, Set.get()) == 0)
            return std::max(static_cast<std::uint32_t>(CPU_COUNT_S(Size, Set.get())), 1u);
    }
    return static_cast<std::uint32_t>(std::max(sysconf(_SC_NPROCESSORS_ONLN), 1L));
}

} // namespace qz::platform
