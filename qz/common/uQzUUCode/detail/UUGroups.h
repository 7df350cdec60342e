// Groups of three bytes as four characters of uuencoded text, two groups at a time in one register.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace qz::detail {

inline constexpr std::size_t cUULineBytes = 45;
// Bytes that the functions below may read and write beyond the end of their data.
inline constexpr std::size_t cUUSlack = 8;

constexpr std::size_t UUGroupCount(std::size_t ABytes) noexcept {
    return (ABytes + 2) / 3;
}

// The first of eight bytes in memory is the highest.
inline std::uint64_t LoadHighFirst(const void* ASource) noexcept {
    std::uint64_t Value;
    std::memcpy(&Value, ASource, sizeof Value);
    return std::endian::native == std::endian::little ? __builtin_bswap64(Value) : Value;
}
inline void StoreHighFirst(void* ATarget, std::uint64_t AValue) noexcept {
    if (std::endian::native == std::endian::little)
        AValue = __builtin_bswap64(AValue);
    std::memcpy(ATarget, &AValue, sizeof AValue);
}

// Writes the groups of ACount bytes. What stands up to two bytes after them takes part in the last group.
inline void EncodeUUGroups(const std::uint8_t* ASource, std::size_t ACount, char* ATarget) noexcept {
    for (std::size_t Done = 0; Done < ACount; Done += 6, ATarget += 8) {
        std::uint64_t Bits = LoadHighFirst(ASource + Done) >> 16;
        Bits = (Bits << 8 & 0x00FFFFFF00000000) | (Bits & 0x0000000000FFFFFF);
        Bits = (Bits << 4 & 0x0FFF00000FFF0000) | (Bits & 0x00000FFF00000FFF);
        Bits = (Bits << 2 & 0x3F003F003F003F00) | (Bits & 0x003F003F003F003F);
        StoreHighFirst(ATarget, Bits + 0x2020202020202020);
    }
}

// Writes ACount bytes from their groups.
inline void DecodeUUGroups(const char* ASource, std::size_t ACount, std::uint8_t* ATarget) noexcept {
    for (std::size_t Done = 0; Done < ACount; Done += 6, ASource += 8) {
        // Taking 32 away modulo 64 changes one bit.
        std::uint64_t Bits = (LoadHighFirst(ASource) & 0x3F3F3F3F3F3F3F3F) ^ 0x2020202020202020;
        Bits = (Bits >> 2 & 0x0FC00FC00FC00FC0) | (Bits & 0x003F003F003F003F);
        Bits = (Bits >> 4 & 0x00FFF00000FFF000) | (Bits & 0x00000FFF00000FFF);
        Bits = (Bits >> 8 & 0x0000FFFFFF000000) | (Bits & 0x0000000000FFFFFF);
        StoreHighFirst(ATarget + Done, Bits << 16);
    }
}

} // namespace qz::detail
