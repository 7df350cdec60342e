#include <qz/runtime/base/detail/UtfPaths.h>

#include <atomic>

namespace qz::detail {
namespace {

const TUtfPath* const cPaths[] = {
    &cUtfPortablePath,
#ifdef __x86_64__
    &cUtfSse4Path,
    &cUtfAvx2Path,
#endif
};

std::size_t CountPaths() noexcept {
    std::size_t Count = 1;
#ifdef __x86_64__
    __builtin_cpu_init();
    if (__builtin_cpu_supports("ssse3") && __builtin_cpu_supports("sse4.1") &&
        __builtin_cpu_supports("popcnt"))
        ++Count;
    if (Count == 2 && __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi"))
        ++Count;
#endif
    return Count;
}

// Every path gives the same answers, so that no other data has to be ordered with the choice; until the
// initialiser below has run, conversions are merely slower.
constinit std::atomic<const TUtfPath*> Best{&cUtfPortablePath};

[[maybe_unused]] const bool cIsChosen = [] {
    Best.store(UtfPaths().back(), std::memory_order_relaxed);
    return true;
}();

} // namespace

std::span<const TUtfPath* const> UtfPaths() noexcept {
    return {cPaths, CountPaths()};
}

const TUtfPath& BestUtfPath() noexcept {
    return *Best.load(std::memory_order_relaxed);
}

} // namespace qz::detail
