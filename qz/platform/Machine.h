// What instructions the processor has: for code that is compiled once for each kind of machine.
//
//     const bool HasVectors = BestMachine() >= TMachine::Avx2;
//     const bool HasSha = HasShaInstructions();
//
// All functions may run on any number of threads, also during static
// initialisation.
#pragma once

#include <atomic>
#include <cstdint>

#include <qz/platform/Export.h>

namespace qz::platform {

// Each kind has the instructions of those before it. Sse4: SSSE3, SSE4.1 and POPCNT. Avx2: AVX2 and BMI1.
enum class TMachine : std::uint8_t { Portable, Sse4, Avx2 };

QZ_API TMachine BestMachine() noexcept;

// Whether the processor has the SHA extensions and SSE4.1.
QZ_API bool HasShaInstructions() noexcept;

// One of several ways to the same result. It is the portable one until static initialisation has chosen;
// until then the work takes longer.
template <class T> class TChosenPath {
public:
    constexpr explicit TChosenPath(const T& APortable) noexcept : FPath(&APortable) {}
    TChosenPath(const TChosenPath&) = delete;
    TChosenPath& operator=(const TChosenPath&) = delete;

    bool Choose(const T& APath) noexcept {
        FPath.store(&APath, std::memory_order_relaxed); // every path is constant data
        return true;
    }
    const T& operator*() const noexcept { return *FPath.load(std::memory_order_relaxed); }
    const T* operator->() const noexcept { return FPath.load(std::memory_order_relaxed); }

private:
    std::atomic<const T*> FPath;
};

} // namespace qz::platform
