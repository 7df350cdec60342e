#include <qz/platform/Machine.h>

#ifdef __x86_64__
#include <cpuid.h>
#endif

namespace qz::platform {

TMachine BestMachine() noexcept {
#ifdef __x86_64__
    __builtin_cpu_init();
    if (!__builtin_cpu_supports("ssse3") || !__builtin_cpu_supports("sse4.1") ||
        !__builtin_cpu_supports("popcnt"))
        return TMachine::Portable;
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") ? TMachine::Avx2 : TMachine::Sse4;
#else
    return TMachine::Portable;
#endif
}

bool HasShaInstructions() noexcept {
#ifdef __x86_64__
    if (BestMachine() == TMachine::Portable)
        return false;
    constexpr unsigned cExtended = 7, cShaBit = 29;
    unsigned Eax = 0, Ebx = 0, Ecx = 0, Edx = 0;
    return __get_cpuid_count(cExtended, 0, &Eax, &Ebx, &Ecx, &Edx) != 0 && (Ebx >> cShaBit & 1) != 0;
#else
    return false;
#endif
}

} // namespace qz::platform
