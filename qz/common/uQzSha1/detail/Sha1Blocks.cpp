#include <qz/common/uQzSha1/detail/Sha1Blocks.h>

#include <bit>
#include <utility>

namespace qz::detail {
namespace {

// The number of 32 bits at the place, highest byte first.
std::uint32_t WordAt(const std::byte* ABytes) noexcept {
    return std::to_integer<std::uint32_t>(ABytes[0]) << 24 | std::to_integer<std::uint32_t>(ABytes[1]) << 16 |
        std::to_integer<std::uint32_t>(ABytes[2]) << 8 | std::to_integer<std::uint32_t>(ABytes[3]);
}

// The functions and constants of FIPS 180-4, sections 4.1.1 and 4.2.1, for each twenty steps.
template <int cPart> std::uint32_t Mixed(std::uint32_t AX, std::uint32_t AY, std::uint32_t AZ) noexcept {
    if constexpr (cPart == 0)
        return (AZ ^ (AX & (AY ^ AZ))) + 0x5A827999;
    else if constexpr (cPart == 1)
        return (AX ^ AY ^ AZ) + 0x6ED9EBA1;
    else if constexpr (cPart == 2)
        return ((AX & AY) | (AZ & (AX | AY))) + 0x8F1BBCDC;
    else
        return (AX ^ AY ^ AZ) + 0xCA62C1D6;
}

// Takes a word of the message schedule, of which the last sixteen are kept.
template <int cStep>
[[gnu::always_inline]] inline void Step(std::uint32_t AA, std::uint32_t& AB, std::uint32_t AC,
                                        std::uint32_t AD, std::uint32_t& AE, std::uint32_t* AWords) noexcept {
    std::uint32_t& Word = AWords[cStep % 16];
    if constexpr (cStep >= 16)
        Word = std::rotl(
            AWords[(cStep - 3) % 16] ^ AWords[(cStep - 8) % 16] ^ AWords[(cStep - 14) % 16] ^ Word, 1);
    AE += std::rotl(AA, 5) + Mixed<cStep / 20>(AB, AC, AD) + Word;
    AB = std::rotl(AB, 30);
}

// Five steps bring each word of the state back to its place.
template <int... cFives>
[[gnu::always_inline]] inline void AllSteps(TSha1State& AState, std::uint32_t* AWords,
                                            std::integer_sequence<int, cFives...>) noexcept {
    std::uint32_t A = AState[0], B = AState[1], C = AState[2], D = AState[3], E = AState[4];
    const auto FiveSteps = [&]<int cFirst>() __attribute__((always_inline)) {
        Step<cFirst>(A, B, C, D, E, AWords);
        Step<cFirst + 1>(E, A, B, C, D, AWords);
        Step<cFirst + 2>(D, E, A, B, C, AWords);
        Step<cFirst + 3>(C, D, E, A, B, AWords);
        Step<cFirst + 4>(B, C, D, E, A, AWords);
    };
    (FiveSteps.template operator()<5 * cFives>(), ...);
    AState = {AState[0] + A, AState[1] + B, AState[2] + C, AState[3] + D, AState[4] + E};
}

void Blocks(TSha1State& AState, const std::byte* ABytes, std::size_t ACount) noexcept {
    for (; ACount > 0; --ACount, ABytes += 64) {
        std::uint32_t Words[16];
        for (int I = 0; I < 16; ++I)
            Words[I] = WordAt(ABytes + 4 * I);
        AllSteps(AState, Words, std::make_integer_sequence<int, 16>());
    }
}

const TSha1Path* const cPaths[] = {
    &cSha1PortablePath,
#ifdef __x86_64__
    &cSha1InstructionsPath,
#endif
};

[[maybe_unused]] const bool cIsChosen = BestSha1Path.Choose(*Sha1Paths().back());

} // namespace

constinit const TSha1Path cSha1PortablePath = {.Name = "portable", .Blocks = Blocks};

constinit platform::TChosenPath<TSha1Path> BestSha1Path(cSha1PortablePath);

std::span<const TSha1Path* const> Sha1Paths() noexcept {
    return {cPaths, platform::HasShaInstructions() ? std::size(cPaths) : 1};
}

} // namespace qz::detail
