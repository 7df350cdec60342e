#include <qz/common/uQzMD5.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <span>
#include <utility>

#include <qz/runtime/base/Memory.h>
#include <qz/runtime/text/BinaryText.h>
#include <qz/runtime/text/Utf8Form.h>

namespace qz {
namespace {

constexpr TMD5State cStart = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};

// RFC 1321, section 3.4: what is added, how far is rotated, and which word of the block is taken in each
// step.
constexpr std::uint32_t cAdded[] = {
    0xD76AA478, 0xE8C7B756, 0x242070DB, 0xC1BDCEEE, 0xF57C0FAF, 0x4787C62A, 0xA8304613, 0xFD469501,
    0x698098D8, 0x8B44F7AF, 0xFFFF5BB1, 0x895CD7BE, 0x6B901122, 0xFD987193, 0xA679438E, 0x49B40821,
    0xF61E2562, 0xC040B340, 0x265E5A51, 0xE9B6C7AA, 0xD62F105D, 0x02441453, 0xD8A1E681, 0xE7D3FBC8,
    0x21E1CDE6, 0xC33707D6, 0xF4D50D87, 0x455A14ED, 0xA9E3E905, 0xFCEFA3F8, 0x676F02D9, 0x8D2A4C8A,
    0xFFFA3942, 0x8771F681, 0x6D9D6122, 0xFDE5380C, 0xA4BEEA44, 0x4BDECFA9, 0xF6BB4B60, 0xBEBFBC70,
    0x289B7EC6, 0xEAA127FA, 0xD4EF3085, 0x04881D05, 0xD9D4D039, 0xE6DB99E5, 0x1FA27CF8, 0xC4AC5665,
    0xF4292244, 0x432AFF97, 0xAB9423A7, 0xFC93A039, 0x655B59C3, 0x8F0CCC92, 0xFFEFF47D, 0x85845DD1,
    0x6FA87E4F, 0xFE2CE6E0, 0xA3014314, 0x4E0811A1, 0xF7537E82, 0xBD3AF235, 0x2AD7D2BB, 0xEB86D391};
constexpr int cRotations[4][4] = {{7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};
constexpr std::size_t cFactors[4][2] = {{1, 0}, {5, 1}, {3, 5}, {7, 0}};

// B comes last from the step before, so that the sums leave it to the end.
template <int cStep>
[[gnu::always_inline]] inline void Step(std::uint32_t& AA, std::uint32_t AB, std::uint32_t AC,
                                        std::uint32_t AD, const TMD5Block& ABlock) noexcept {
    constexpr int cRound = cStep / 16;
    AA += ABlock[(cFactors[cRound][0] * cStep + cFactors[cRound][1]) % 16] + cAdded[cStep];
    if constexpr (cRound == 0)
        AA += AD ^ (AB & (AC ^ AD));
    else if constexpr (cRound == 1)
        AA = AA + (AC & ~AD) + (AB & AD); // no bit is in both
    else if constexpr (cRound == 2)
        AA += AB ^ (AC ^ AD);
    else
        AA += AC ^ (AB | ~AD);
    AA = AB + std::rotl(AA, cRotations[cRound][cStep % 4]);
}

template <int... cFours>
[[gnu::always_inline]] inline void AllSteps(TMD5State& AState, const TMD5Block& ABlock,
                                            std::integer_sequence<int, cFours...>) noexcept {
    std::uint32_t A = AState[0], B = AState[1], C = AState[2], D = AState[3];
    const auto FourSteps = [&]<int cFirst>() __attribute__((always_inline)) {
        Step<cFirst>(A, B, C, D, ABlock);
        Step<cFirst + 1>(D, A, B, C, ABlock);
        Step<cFirst + 2>(C, D, A, B, ABlock);
        Step<cFirst + 3>(B, C, D, A, ABlock);
    };
    (FourSteps.template operator()<4 * cFours>(), ...);
    AState = {AState[0] + A, AState[1] + B, AState[2] + C, AState[3] + D};
}

std::uint32_t LittleEndian(std::uint32_t AValue) noexcept {
    return std::endian::native == std::endian::little ? AValue : __builtin_bswap32(AValue);
}

void Blocks(TMD5State& AState, const std::uint8_t* ABytes, std::size_t ACount) noexcept {
    TMD5State State = AState;
    for (; ACount > 0; --ACount, ABytes += sizeof(TMD5Block)) {
        TMD5Block Block;
        std::memcpy(Block.data(), ABytes, sizeof Block);
        if constexpr (std::endian::native != std::endian::little)
            for (std::uint32_t& Word : Block)
                Word = LittleEndian(Word);
        AllSteps(State, Block, std::make_integer_sequence<int, 16>());
    }
    AState = State;
}

// Takes the bytes after the last full block, and the padding, which make cCount blocks.
template <std::size_t cCount>
TMD5Digest FinishIn(TMD5State& AState, const std::uint8_t* ARest, std::size_t ACount,
                    std::uint64_t ABits) noexcept {
    std::array<std::uint8_t, cCount * sizeof(TMD5Buffer)> Tail{};
    if (ACount != 0)
        std::memcpy(Tail.data(), ARest, ACount);
    Tail[ACount] = 0x80;
    const std::uint32_t Bits[] = {LittleEndian(static_cast<std::uint32_t>(ABits)),
                                  LittleEndian(static_cast<std::uint32_t>(ABits >> 32))};
    std::memcpy(&Tail[Tail.size() - sizeof Bits], Bits, sizeof Bits);
    Blocks(AState, Tail.data(), cCount);
    TMD5Digest Result;
    for (std::size_t I = 0; I < AState.size(); ++I) {
        const std::uint32_t Word = LittleEndian(AState[I]);
        std::memcpy(&Result[4 * I], &Word, sizeof Word);
    }
    return Result;
}

TMD5Digest Finish(TMD5State& AState, const std::uint8_t* ARest, std::size_t ACount,
                  std::uint64_t ABits) noexcept {
    return ACount + 9 <= sizeof(TMD5Buffer) ? FinishIn<1>(AState, ARest, ACount, ABits)
                                            : FinishIn<2>(AState, ARest, ACount, ABits);
}

TMD5Digest DigestOf(const void* AData, std::size_t ASize) noexcept {
    const auto* Bytes = static_cast<const std::uint8_t*>(AData);
    TMD5State State = cStart;
    const std::size_t Full = ASize / sizeof(TMD5Buffer);
    Blocks(State, Bytes, Full);
    return Finish(State, Bytes + Full * sizeof(TMD5Buffer), ASize % sizeof(TMD5Buffer),
                  std::uint64_t{ASize} << 3);
}

UnicodeString HashText(std::string_view AText) {
    const TMD5Digest Digest = DigestOf(AText.data(), AText.size());
    return HexText(std::as_bytes(std::span(Digest)));
}

std::uint64_t BitsOf(const TMD5Context& AContext) noexcept {
    return std::uint64_t{AContext.Count[1]} << 32 | AContext.Count[0];
}

std::size_t UsedOf(const TMD5Context& AContext) noexcept {
    return BitsOf(AContext) / 8 % sizeof(TMD5Buffer);
}

} // namespace

void MD5Init(TMD5Context& AContext) noexcept {
    AContext = {cStart, {}, {}};
}

void MD5Update(TMD5Context& AContext, const void* AInput, std::size_t ALength) noexcept {
    const auto* Input = static_cast<const std::uint8_t*>(AInput);
    std::size_t Length = ALength;
    const std::size_t Used = UsedOf(AContext);
    const std::uint64_t Bits = BitsOf(AContext) + (std::uint64_t{ALength} << 3);
    AContext.Count = {static_cast<std::uint32_t>(Bits), static_cast<std::uint32_t>(Bits >> 32)};
    std::uint8_t* Target = AContext.Buffer.data() + Used;
    if (Used != 0) {
        const std::size_t Taken = std::min(Length, sizeof(TMD5Buffer) - Used);
        if (Taken != 0)
            std::memcpy(Target, Input, Taken);
        Input += Taken;
        Length -= Taken;
        if (Used + Taken < sizeof(TMD5Buffer))
            return;
        Blocks(AContext.State, AContext.Buffer.data(), 1);
        Target = AContext.Buffer.data();
    }
    Blocks(AContext.State, Input, Length / sizeof(TMD5Buffer));
    if (const std::size_t Rest = Length % sizeof(TMD5Buffer); Rest != 0)
        std::memcpy(Target, Input + Length - Rest, Rest);
}

void MD5Final(TMD5Context& AContext, TMD5Digest& ADigest) noexcept {
    ADigest = Finish(AContext.State, AContext.Buffer.data(), UsedOf(AContext), BitsOf(AContext));
    WipeValue(AContext);
}

TMD5Digest MD5Hash(const void* ABuffer, std::int64_t ASize) noexcept {
    return DigestOf(ABuffer, static_cast<std::size_t>(std::max<std::int64_t>(ASize, 0)));
}

UnicodeString MD5Hash(const TByteText& AText) {
    return HashText(AText.View());
}

UnicodeString MD5Hash(const TStringArg& AText) {
    return HashText(TUtf8Form(AText).View());
}

} // namespace qz
