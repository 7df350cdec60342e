#include <cstring>

#include <qz/runtime/base/detail/UtfPaths.h>
#include <qz/runtime/base/detail/UtfScalar.h>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace qz::detail {
namespace {

#define QZ_TARGET
#define QZ_STEP __attribute__((always_inline)) inline

constexpr std::size_t cWidth = 16;

#include <qz/runtime/base/detail/UtfVectors.inc>

inline TBytes LoadSome(const void* ASource, std::size_t ACount) noexcept {
    TBytes Result = {};
    if (ACount != 0)
        std::memcpy(&Result, ASource, ACount);
    return Result;
}

inline void WidenVector(const char* ASource, char16_t* ADest) noexcept {
    using TEightBytes = std::uint8_t __attribute__((vector_size(8)));
    Store(ADest, __builtin_convertvector(Load<TEightBytes>(ASource), TWords));
    Store(ADest + 8, __builtin_convertvector(Load<TEightBytes>(ASource + 8), TWords));
}

inline void NarrowVector(const char16_t* ASource, char* ADest) noexcept {
    using TEightBytes = std::uint8_t __attribute__((vector_size(8)));
    Store(ADest, __builtin_convertvector(Load<TWords>(ASource), TEightBytes));
    Store(ADest + 8, __builtin_convertvector(Load<TWords>(ASource + 8), TEightBytes));
}

#ifdef __SSE2__

inline bool HasTop(TBytes AVector) noexcept {
    return _mm_movemask_epi8((__m128i)AVector) != 0;
}

inline bool IsZero(TBytes AVector) noexcept {
    return _mm_movemask_epi8(_mm_cmpeq_epi8((__m128i)AVector, _mm_setzero_si128())) == 0xFFFF;
}

inline std::size_t FirstTop(TBytes AVector) noexcept {
    return static_cast<std::size_t>(
        std::countr_zero(static_cast<unsigned>(_mm_movemask_epi8((__m128i)AVector))));
}

inline std::size_t CountTops(TBytes AVector) noexcept {
    const __m128i Sums = _mm_sad_epu8((__m128i)(AVector & 1), _mm_setzero_si128());
    return static_cast<std::size_t>(_mm_cvtsi128_si32(Sums)) +
        static_cast<std::size_t>(_mm_extract_epi16(Sums, 4));
}

#else

using TQuads = std::uint64_t __attribute__((vector_size(cWidth)));

inline bool HasTop(TBytes AVector) noexcept {
    const auto Quads = (TQuads)AVector;
    return ((Quads[0] | Quads[1]) & 0x8080808080808080u) != 0;
}

inline bool IsZero(TBytes AVector) noexcept {
    const auto Quads = (TQuads)AVector;
    return (Quads[0] | Quads[1]) == 0;
}

inline std::size_t FirstTop(TBytes AVector) noexcept {
    std::size_t Index = 0;
    while (AVector[Index] < 0x80)
        ++Index;
    return Index;
}

inline std::size_t CountTops(TBytes AVector) noexcept {
    std::size_t Count = 0;
    for (std::size_t I = 0; I < cWidth; ++I)
        Count += AVector[I] & 1u;
    return Count;
}

#endif

inline std::size_t Total(TWords AVector) noexcept {
    std::size_t Result = 0;
    for (std::size_t I = 0; I < cWords; ++I)
        Result += AVector[I];
    return Result;
}

#include <qz/runtime/base/detail/UtfBlocks.inc>

template <class TStretch> const char* SkipAscii(const char* AHere, const char* AEnd, TStretch AStretch) {
    const std::size_t Count = AsciiBytes({AHere, static_cast<std::size_t>(AEnd - AHere)});
    AStretch(std::string_view(AHere, Count));
    return AHere + Count;
}

// The first of the characters that are not ASCII, or AEnd.
const char* EndOfHigh(const char* AHere, const char* AEnd) noexcept {
    while (AHere != AEnd && static_cast<signed char>(*AHere) < 0)
        ++AHere;
    return AHere;
}

std::size_t Utf8ToUtf16Length(std::string_view AText) noexcept {
    const char* Here = AText.data();
    const char* End = Here + AText.size();
    std::size_t Length = 0;
    while (Here != End) {
        Here = SkipAscii(Here, End, [&](std::string_view ARun) { Length += ARun.size(); });
        Length += ScalarUtf8Length(Here, EndOfHigh(Here, End), End);
    }
    return Length;
}

char16_t* Utf8ToUtf16(std::string_view AText, char16_t* ADest) noexcept {
    const char* Here = AText.data();
    const char* End = Here + AText.size();
    while (Here != End) {
        Here = SkipAscii(Here, End, [&](std::string_view ARun) {
            WidenBytes(ARun, ADest);
            ADest += ARun.size();
        });
        ADest = ScalarUtf8ToUtf16(Here, EndOfHigh(Here, End), End, ADest);
    }
    return ADest;
}

bool IsValidUtf8(std::string_view AText) noexcept {
    const char* Here = AText.data();
    const char* End = Here + AText.size();
    bool IsGood = true;
    while (Here != End && IsGood) {
        Here = SkipAscii(Here, End, [](std::string_view) {});
        while (Here != End && static_cast<signed char>(*Here) < 0 && IsGood)
            DecodeUtf8(Here, End, IsGood);
    }
    return IsGood;
}

char* Utf16ToUtf8(std::u16string_view AText, char* ADest) noexcept {
    const char16_t* Here = AText.data();
    const char16_t* End = Here + AText.size();
    while (Here != End) {
        const std::size_t Count = UnitsBelow<0xFF80>({Here, static_cast<std::size_t>(End - Here)});
        NarrowUnits({Here, Count}, ADest);
        Here += Count;
        ADest += Count;
        while (Here != End && *Here > 0x7F)
            ADest = EncodeUtf8(DecodeUtf16(Here, End), ADest);
    }
    return ADest;
}

std::byte* Utf16ToUtf32(std::u16string_view AText, std::endian AOrder, std::byte* ADest) noexcept {
    return ScalarUtf16ToUtf32(AText.data(), AText.data() + AText.size(), AOrder, ADest);
}

constexpr auto Utf32ToUtf16 = ScalarUtf32ToUtf16;

#include <qz/runtime/base/detail/UtfPath.inc>

} // namespace

const TUtfPath cUtfPortablePath = PathOf("portable");

} // namespace qz::detail
