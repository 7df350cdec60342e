#include <qz/platform/SystemVariants.h>

#include <cerrno>

namespace qz::platform {

bool ReadSystemVariant(const void*, TSystemVariant&, TError& AError) {
    AError.Code = ENOTSUP;
    return false;
}

bool WriteSystemVariant(void*, const TSystemVariant&, TError& AError) {
    AError.Code = ENOTSUP;
    return false;
}

bool ClearSystemVariant(void*, TError& AError) {
    AError.Code = ENOTSUP;
    return false;
}

void* NewSystemText(std::span<const std::byte>) noexcept {
    return nullptr;
}

std::span<const std::byte> SystemTextBytes(const void*) noexcept {
    return {};
}

bool LockSystemArray(void*, std::uint16_t, TSystemArray&, TError& AError) {
    AError.Code = ENOTSUP;
    return false;
}

void UnlockSystemArray(void*) noexcept {}

void* NewSystemArray(std::uint16_t, std::span<const TSystemBound>, TError& AError) {
    AError.Code = ENOTSUP;
    return nullptr;
}

void FreeSystemArray(void*) noexcept {}

} // namespace qz::platform
