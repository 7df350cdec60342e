#include <qz/common/uQzSha1/detail/Sha1Blocks.h>

#include <bit>

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

template <int cPart>
void Step(std::uint32_t AA, std::uint32_t& AB, std::uint32_t AC, std::uint32_t AD, std::uint32_t& AE,
          std::uint32_t AWord) noexcept {
    AE += std::rotl(AA, 5) + Mixed<cPart>(AB, AC, AD) + AWord;
    AB = std::rotl(AB, 30);
}

// Five steps bring each word of the state back to its place.
template <int cPart> void TwentySteps(TSha1State& AState, const std::uint32_t* AWords) noexcept {
    auto& [A, B, C, D, E] = AState;
    for (const std::uint32_t* Word = AWords + 20 * cPart; Word != AWords + 20 * (cPart + 1); Word += 5) {
        Step<cPart>(A, B, C, D, E, Word[0]);
        Step<cPart>(E, A, B, C, D, Word[1]);
        Step<cPart>(D, E, A, B, C, Word[2]);
        Step<cPart>(C, D, E, A, B, Word[3]);
        Step<cPart>(B, C, D, E, A, Word[4]);
    }
}

void Blocks(TSha1State& AState, const std::byte* ABytes, std::size_t ACount) noexcept {
    for (; ACount > 0; --ACount, ABytes += 64) {
        std::uint32_t Words[80];
        for (int I = 0; I < 16; ++I)
            Words[I] = WordAt(ABytes + 4 * I);
        for (int I = 16; I < 80; ++I)
            Words[I] = std::rotl(Words[I - 3] ^ Words[I - 8] ^ Words[I - 14] ^ Words[I - 16], 1);
        TSha1State State = AState;
        TwentySteps<0>(State, Words);
        TwentySteps<1>(State, Words);
        TwentySteps<2>(State, Words);
        TwentySteps<3>(State, Words);
        for (std::size_t I = 0; I < State.size(); ++I)
            AState[I] += State[I];
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
