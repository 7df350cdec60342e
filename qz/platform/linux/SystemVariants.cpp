#include <qz/platform/SystemVariants.h>

#include <cerrno>

namespace qz::platform {

TResult<TSystemVariant> ReadSystemVariant(const void*) {
    return TError(ENOTSUP);
}

TResult<> WriteSystemVariant(void*, const TSystemVariant&) {
    return TError(ENOTSUP);
}

TResult<> ClearSystemVariant(void*) {
    return TError(ENOTSUP);
}

void* NewSystemText(std::span<const std::byte>) noexcept {
    return nullptr;
}

std::span<const std::byte> SystemTextBytes(const void*) noexcept {
    return {};
}

TResult<TSystemArray> LockSystemArray(void*, std::uint16_t) {
    return TError(ENOTSUP);
}

void UnlockSystemArray(void*) noexcept {}

TResult<void*> NewSystemArray(std::uint16_t, std::span<const TSystemBound>) {
    return TError(ENOTSUP);
}

void FreeSystemArray(void*) noexcept {}

} // namespace qz::platform
