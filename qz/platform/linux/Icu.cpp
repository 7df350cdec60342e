#include <qz/platform/linux/Icu.h>

#include <array>
#include <atomic>

#include <qz/platform/Fork.h>

namespace qz::platform::detail {
namespace {

// Has no destructor that does anything: threads may ask while the program ends.
constinit std::mutex GIcuLock;

[[maybe_unused]] const bool GIsWatched = HoldAroundFork(TForkRank::Icu, [] { return &GIcuLock; });

const UNormalizer2* AskIcu(int AForm) noexcept {
    UErrorCode Status = U_ZERO_ERROR;
    switch (AForm) {
    case 1: return unorm2_getNFCInstance(&Status);
    case 2: return unorm2_getNFDInstance(&Status);
    case 5: return unorm2_getNFKCInstance(&Status);
    case 6: return unorm2_getNFKDInstance(&Status);
    default: return nullptr;
    }
}

} // namespace

std::mutex& IcuLock() noexcept {
    return GIcuLock;
}

const UNormalizer2* IcuNormalizer(int AForm) noexcept {
    constinit static std::array<std::atomic<const UNormalizer2*>, 7> Known{};
    if (AForm < 1 || AForm > 6)
        return nullptr;
    std::atomic<const UNormalizer2*>& Place = Known[static_cast<std::size_t>(AForm)];
    const UNormalizer2* Result = Place.load(std::memory_order_acquire);
    if (Result == nullptr) {
        const std::lock_guard Hold(GIcuLock);
        Result = AskIcu(AForm);
        Place.store(Result, std::memory_order_release);
    }
    return Result;
}

} // namespace qz::platform::detail
