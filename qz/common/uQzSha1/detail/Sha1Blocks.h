// The compression function of SHA-1, one path for each kind of machine.
//
//     for (const detail::TSha1Path* Path : detail::Sha1Paths())     // a test goes through all of them
//         Path->Blocks(State, Bytes, 1);
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include <qz/platform/Machine.h>

namespace qz::detail {

using TSha1State = std::array<std::uint32_t, 5>;

inline constexpr TSha1State cSha1Start = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};

struct TSha1Path {
    const char* Name;
    // Takes ACount blocks of 64 bytes.
    void (*Blocks)(TSha1State& AState, const std::byte* ABytes, std::size_t ACount) noexcept;
};

extern const TSha1Path cSha1PortablePath;
#ifdef __x86_64__
extern const TSha1Path cSha1InstructionsPath; // the processor's SHA extensions
#endif

// The paths that this machine can go, the best one last.
QZ_API std::span<const TSha1Path* const> Sha1Paths() noexcept;

extern platform::TChosenPath<TSha1Path> BestSha1Path;

} // namespace qz::detail
