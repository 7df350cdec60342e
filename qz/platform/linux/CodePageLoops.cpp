#include <qz/platform/linux/CodePageLoops.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstring>

#include <qz/platform/linux/Icu.h>

namespace qz::platform::detail {

namespace {

// Sixteen units at a time, by the vector types of the compilers.
constexpr std::size_t cBlock = 16;
using TBytes [[gnu::vector_size(cBlock)]] = std::uint8_t;
using THalf [[gnu::vector_size(cBlock)]] = std::uint16_t;

// In two vectors of the size that every machine has: of larger ones the compilers make poor code.
struct TUnits {
    THalf Low;
    THalf High;
};

template <class TBlock> bool IsClear(const TBlock& AMask) noexcept {
    std::array<std::uint64_t, sizeof(TBlock) / sizeof(std::uint64_t)> Words;
    std::memcpy(Words.data(), &AMask, sizeof(AMask));
    std::uint64_t All = 0;
    for (const std::uint64_t Word : Words)
        All |= Word;
    return All == 0;
}

// Whether the units are in place in every page that has ASCII or, with cLatin, Latin-1 but for 80 to 9F.
template <bool cLatin> bool IsInPlace(const TBytes& AUnits) noexcept {
    if constexpr (cLatin)
        return IsClear((AUnits & std::uint8_t{0xE0}) == std::uint8_t{0x80});
    else
        return IsClear(AUnits & std::uint8_t{0x80});
}

template <bool cLatin> bool IsInPlace(const TUnits& AUnits) noexcept {
    const THalf All = AUnits.Low | AUnits.High;
    if constexpr (cLatin) {
        const auto Controls = ((AUnits.Low & std::uint16_t{0xE0}) == std::uint16_t{0x80}) |
            ((AUnits.High & std::uint16_t{0xE0}) == std::uint16_t{0x80});
        return IsClear((All & std::uint16_t{0xFF00}) | std::bit_cast<THalf>(Controls));
    } else {
        return IsClear(All & std::uint16_t{0xFF80});
    }
}

void Store(const TBytes& AUnits, char16_t* ATarget) noexcept {
    using TWide [[gnu::vector_size(cBlock * 2)]] = std::uint16_t;
    const auto Wide = __builtin_convertvector(AUnits, TWide);
    std::memcpy(ATarget, &Wide, sizeof(Wide));
}

// The compilers make one packing instruction of this, which they do not of __builtin_convertvector.
template <class TByte> void Store(const TUnits& AUnits, TByte* ATarget) noexcept {
    constexpr int At = std::endian::native == std::endian::little ? 0 : 1;
    const auto Low = std::bit_cast<TBytes>(AUnits.Low);
    const auto High = std::bit_cast<TBytes>(AUnits.High);
    const TBytes Narrow =
        __builtin_shufflevector(Low, High, At, At + 2, At + 4, At + 6, At + 8, At + 10, At + 12, At + 14,
                                At + 16, At + 18, At + 20, At + 22, At + 24, At + 26, At + 28, At + 30);
    std::memcpy(ATarget, &Narrow, sizeof(Narrow));
}

// Blocks of units that mean themselves, however many there are from ASource on. Gives the units converted.
template <bool cLatin, class TBlock, class TIn, class TOut>
std::size_t ConvertInPlace(const TIn* ASource, std::size_t ALength, TOut* ATarget) noexcept {
    std::size_t Done = 0;
    for (; ALength - Done >= cBlock; Done += cBlock) {
        TBlock Units;
        std::memcpy(&Units, ASource + Done, sizeof(Units));
        if (!IsInPlace<cLatin>(Units))
            break;
        Store(Units, ATarget + Done);
    }
    return Done;
}

// Unit by unit by ATable, but blocks that are in place at once. Where there are few of them they are looked
// for less often.
template <bool cLatin, class TBlock, class TIn, class TOut>
void ConvertBlocks(const TIn* ASource, std::size_t ALength, TOut* ATarget, const TOut* ATable) noexcept {
    std::size_t Done = 0;
    for (std::size_t Stretch = cBlock; ALength - Done >= cBlock;) {
        const std::size_t InPlace =
            ConvertInPlace<cLatin, TBlock>(ASource + Done, ALength - Done, ATarget + Done);
        Stretch = InPlace != 0 ? cBlock : std::min(Stretch * 2, 8 * cBlock);
        Done += InPlace;
        for (const std::size_t End = Done + std::min(Stretch, ALength - Done); Done < End; ++Done)
            ATarget[Done] = ATable[ASource[Done]];
    }
    for (; Done < ALength; ++Done)
        ATarget[Done] = ATable[ASource[Done]];
}

// The same for any page; one that does not have ASCII in place goes by the table alone.
template <class TBlock, class TIn, class TOut>
void ConvertSingle(const TCodePage& APage, const TIn* ASource, std::size_t ALength, TOut* ATarget,
                   const TOut* ATable) noexcept {
    if (APage.HasLatin)
        return ConvertBlocks<true, TBlock>(ASource, ALength, ATarget, ATable);
    if (APage.HasAscii)
        return ConvertBlocks<false, TBlock>(ASource, ALength, ATarget, ATable);
    for (std::size_t I = 0; I < ALength; ++I)
        ATarget[I] = ATable[ASource[I]];
}

// Whether ALength units go into a target of ARoom units, where 0 means that the length is only measured.
bool HasRoom(std::size_t ALength, std::size_t ARoom) noexcept {
    return ARoom == 0 || ALength <= ARoom;
}

bool HasRefused(const TCodePage& APage, const std::uint8_t* ASource, std::size_t ALength) noexcept {
    return APage.Refuses &&
        std::any_of(ASource, ASource + ALength, [&](std::uint8_t A) { return APage.Refused[A] != 0; });
}

TResult<std::size_t> DecodeSingle(const TCodePage& APage, std::span<const std::uint8_t> ASource,
                                  std::span<char16_t> ATarget, TDecoding ADecoding) noexcept {
    if (ADecoding == TDecoding::Strict && HasRefused(APage, ASource.data(), ASource.size()))
        return ErrorOfInvalidText();
    if (!HasRoom(ASource.size(), ATarget.size()))
        return ErrorOfSmallTarget();
    if (!ATarget.empty())
        ConvertSingle<TBytes>(APage, ASource.data(), ASource.size(), ATarget.data(), APage.Single.data());
    return ASource.size();
}

// A character of a double-byte page, and how it was found.
struct TDecoded {
    char16_t Char;
    std::uint8_t Length;
    bool IsKnown;
};

// The character at ASource, of which there are ALeft bytes. A lead byte without a trail byte or before a zero
// is one that means nothing; the zero stays. Otherwise the trail byte goes with its lead, whatever it is.
TDecoded DecodeOne(const TCodePage& APage, const std::uint8_t* ASource, std::size_t ALeft) noexcept {
    const std::uint8_t Byte = *ASource;
    const std::uint8_t Lead = APage.Leads[Byte];
    if (Lead == 0)
        return {APage.Single[Byte], 1, APage.Refused[Byte] == 0};
    if (ALeft < 2 || ASource[1] == 0)
        return {APage.UnicodeDefault, 1, false};
    const char16_t Char = APage.Pairs[Lead - 1u][ASource[1]];
    // The default is a character of the page, too, with a code of its own.
    const bool IsKnown = Char != APage.UnicodeDefault || APage.Codes[Char] == Byte * 256 + ASource[1];
    return {Char, 2, IsKnown};
}

// Fails for what means nothing if ADecoding is strict. Writes if there is a target.
TResult<std::size_t> DecodeDouble(const TCodePage& APage, std::span<const std::uint8_t> ASource,
                                  char16_t* ATarget, TDecoding ADecoding) noexcept {
    std::size_t Length = 0;
    for (std::size_t At = 0; At < ASource.size();) {
        if (ATarget != nullptr && APage.HasAscii && ASource[At] < 0x80) {
            const std::size_t Done =
                ConvertInPlace<false, TBytes>(&ASource[At], ASource.size() - At, ATarget + Length);
            At += Done;
            Length += Done;
            if (At == ASource.size())
                break;
        }
        const TDecoded Next = DecodeOne(APage, &ASource[At], ASource.size() - At);
        if (!Next.IsKnown && ADecoding == TDecoding::Strict)
            return ErrorOfInvalidText();
        if (ATarget != nullptr)
            ATarget[Length] = Next.Char;
        ++Length;
        At += Next.Length;
    }
    return Length;
}

// A letter and a mark after it as one character, 0 when there is none. Korean syllables are not made.
char16_t Compose(char16_t AFirst, char16_t ASecond) noexcept {
    if (AFirst >= 0x1100 && ASecond >= 0x1161 && ASecond <= 0x11C2)
        return 0;
    const UNormalizer2* const Normalizer = IcuNormalizer(1);
    const UChar32 Result = Normalizer != nullptr ? unorm2_composePair(Normalizer, AFirst, ASecond) : 0;
    return Result > 0 && Result <= 0xFFFF ? static_cast<char16_t>(Result) : char16_t{0};
}

// Whether some character may be composed with this one after it: a rough answer that is quick.
bool MayCompose(char16_t AUnit) noexcept {
    return (AUnit >= 0x300 && AUnit <= 0x345) || (AUnit >= 0x653 && AUnit <= 0x1B35) || AUnit == 0x3099 ||
        AUnit == 0x309A;
}

bool MayCompose(std::u16string_view AText) noexcept {
    return std::ranges::any_of(AText, [](char16_t A) { return MayCompose(A); });
}

// Calls AEmit with the code of each character.
template <bool cComposes, class TSink, class TTable>
void ForEachCode(const TTable& ATable, std::u16string_view ASource, const TSink& AEmit) noexcept {
    for (std::size_t At = 0; At < ASource.size(); ++At) {
        char16_t Char = ASource[At];
        if constexpr (cComposes) {
            if (At + 1 < ASource.size() && MayCompose(ASource[At + 1])) {
                if (const char16_t Composed = Compose(Char, ASource[At + 1]); Composed != 0) {
                    Char = Composed;
                    ++At;
                }
            }
        }
        AEmit(ATable[Char]);
    }
}

// Bytes that the codes take; with a target they are written.
template <bool cComposes, class TTable>
std::size_t EncodeEach(const TTable& ATable, std::u16string_view ASource, char* ATarget) noexcept {
    std::size_t Length = 0;
    if (ATarget == nullptr) {
        ForEachCode<cComposes>(ATable, ASource, [&](unsigned ACode) { Length += ACode < 0x100 ? 1u : 2u; });
        return Length;
    }
    ForEachCode<cComposes>(ATable, ASource, [&](unsigned ACode) {
        if (ACode >= 0x100)
            ATarget[Length++] = static_cast<char>(ACode >> 8);
        ATarget[Length++] = static_cast<char>(ACode);
    });
    return Length;
}

// Writes one or two bytes without a branch, though two bytes of the target are always touched.
std::size_t PutCode(unsigned ACode, char* ATarget) noexcept {
    const bool IsPair = ACode >= 0x100;
    ATarget[0] = static_cast<char>(IsPair ? ACode >> 8 : ACode);
    ATarget[1] = static_cast<char>(ACode);
    return IsPair ? 2 : 1;
}

// The same for text without anything to compose, with blocks of ASCII at once.
std::size_t EncodeDouble(const TCodePage& APage, std::u16string_view ASource, char* ATarget) noexcept {
    const std::uint16_t* Codes = APage.Codes.data();
    if (ATarget == nullptr || ASource.empty())
        return EncodeEach<false>(Codes, ASource, ATarget);
    std::size_t Length = 0;
    // After each character but the last there is room for one more byte at least.
    const std::size_t Last = ASource.size() - 1;
    for (std::size_t At = 0; At < Last;) {
        if (APage.HasAscii && ASource[At] < 0x80) {
            const std::size_t Done = ConvertInPlace<false, TUnits>(&ASource[At], Last - At, ATarget + Length);
            At += Done;
            Length += Done;
        }
        for (const std::size_t End = std::min(Last, At + cBlock); At < End; ++At)
            Length += PutCode(Codes[ASource[At]], ATarget + Length);
    }
    return Length + EncodeEach<false>(Codes, ASource.substr(Last), ATarget + Length);
}

std::size_t Encode(const TCodePage& APage, std::u16string_view ASource, char* ATarget,
                   bool AComposes) noexcept {
    if (!AComposes)
        return EncodeDouble(APage, ASource, ATarget);
    return APage.IsDouble() ? EncodeEach<true>(APage.Codes.data(), ASource, ATarget)
                            : EncodeEach<true>(APage.Bytes.data(), ASource, ATarget);
}

} // namespace

TResult<std::size_t> TablesToUtf16(const TCodePage& APage, std::span<const std::byte> ASource,
                                   std::span<char16_t> ATarget, TDecoding ADecoding) noexcept {
    const std::span Source(reinterpret_cast<const std::uint8_t*>(ASource.data()), ASource.size());
    if (!APage.IsDouble())
        return DecodeSingle(APage, Source, ATarget, ADecoding);
    // A target as long as the source has room for anything, so that only a shorter one is measured first.
    if (ATarget.size() < Source.size()) {
        const TResult<std::size_t> Length = DecodeDouble(APage, Source, nullptr, ADecoding);
        if (!Length || ATarget.empty())
            return Length;
        if (!HasRoom(*Length, ATarget.size()))
            return ErrorOfSmallTarget();
    }
    return DecodeDouble(APage, Source, ATarget.data(), ADecoding);
}

TResult<std::size_t> TablesFromUtf16(const TCodePage& APage, std::u16string_view ASource,
                                     std::span<char> ATarget, TComposing AComposing) noexcept {
    const bool Composes = AComposing == TComposing::Composite && MayCompose(ASource);
    const std::size_t MaxSize = APage.IsDouble() ? 2 : 1;
    if (!APage.IsDouble() && !Composes) {
        if (!HasRoom(ASource.size(), ATarget.size()))
            return ErrorOfSmallTarget();
        if (!ATarget.empty())
            ConvertSingle<TUnits>(APage, ASource.data(), ASource.size(),
                                  reinterpret_cast<std::uint8_t*>(ATarget.data()), APage.Bytes.data());
        return ASource.size();
    }
    if (ATarget.size() < ASource.size() * MaxSize) {
        const std::size_t Length = Encode(APage, ASource, nullptr, Composes);
        if (ATarget.empty())
            return Length;
        if (!HasRoom(Length, ATarget.size()))
            return ErrorOfSmallTarget();
    }
    return Encode(APage, ASource, ATarget.data(), Composes);
}

} // namespace qz::platform::detail
