#ifdef __x86_64__

#include <immintrin.h>

#include <array>
#include <cstring>

#include <qz/runtime/base/detail/UtfPaths.h>
#include <qz/runtime/base/detail/UtfScalar.h>
#include <qz/runtime/base/detail/UtfTable.h>

namespace qz::detail {
namespace {

#define QZ_TARGET __attribute__((target("avx2,bmi,popcnt")))
#define QZ_STEP QZ_TARGET __attribute__((always_inline)) inline

constexpr std::size_t cWidth = 32;
constexpr int cParts = 4;
constexpr std::uint32_t cAllBits = 0xFFFFFFFF;

#include <qz/runtime/base/detail/UtfVectors.inc>

#include <qz/runtime/base/detail/UtfPieces.inc>

struct TPair {
    TBytes First;
    TBytes Second;
};

QZ_STEP std::size_t Total(TWords AVector) noexcept {
    const __m256i Pairs = _mm256_madd_epi16((__m256i)AVector, _mm256_set1_epi16(1));
    __m128i Sums = _mm_add_epi32(_mm256_castsi256_si128(Pairs), _mm256_extracti128_si256(Pairs, 1));
    Sums = _mm_add_epi32(Sums, _mm_unpackhi_epi64(Sums, Sums));
    return static_cast<std::size_t>(_mm_cvtsi128_si32(Sums)) +
        static_cast<std::size_t>(_mm_extract_epi32(Sums, 1));
}

QZ_STEP TBytes Packed(TWords ALower, TWords AUpper) noexcept {
    return (TBytes)_mm256_permute4x64_epi64(_mm256_packus_epi16((__m256i)ALower, (__m256i)AUpper), 0xD8);
}

QZ_STEP bool IsZero(TBytes AVector) noexcept {
    return _mm256_testz_si256((__m256i)AVector, (__m256i)AVector) != 0;
}

QZ_STEP TBytes LoadSome(const void* ASource, std::size_t ACount) noexcept {
    if (ACount < 16)
        return (TBytes)_mm256_zextsi128_si256(LoadUnderSixteen(ASource, ACount));
    // The last 16 bytes, moved down over those that are in the lower half.
    static constexpr std::uint8_t cMoves[32] = {
        0,    1,    2,    3,    4,    5,    6,    7,    8,    9,    10,   11,   12,   13,   14,   15,
        0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80};
    const char* Source = static_cast<const char*>(ASource);
    const __m128i Upper =
        _mm_shuffle_epi8(Load<__m128i>(Source + ACount - 16), Load<__m128i>(cMoves + 32 - ACount));
    return (TBytes)_mm256_set_m128i(Upper, Load<__m128i>(Source));
}

QZ_STEP void WidenVector(const char* ASource, char16_t* ADest) noexcept {
    Store(ADest, _mm256_cvtepu8_epi16(Load<__m128i>(ASource)));
    Store(ADest + cWords, _mm256_cvtepu8_epi16(Load<__m128i>(ASource + cWords)));
}

QZ_STEP void NarrowVector(const char16_t* ASource, char* ADest) noexcept {
    const __m256i Mask = _mm256_set1_epi16(0xFF);
    const auto Lower = (TWords)_mm256_and_si256(Load<__m256i>(ASource), Mask);
    const auto Upper = (TWords)_mm256_and_si256(Load<__m256i>(ASource + cWords), Mask);
    Store(ADest, Packed(Lower, Upper));
}

QZ_STEP std::uint32_t TopBits(TBytes AVector) noexcept {
    return static_cast<std::uint32_t>(_mm256_movemask_epi8((__m256i)AVector));
}

QZ_STEP bool HasTop(TBytes AVector) noexcept {
    return TopBits(AVector) != 0;
}

QZ_STEP std::size_t FirstTop(TBytes AVector) noexcept {
    return static_cast<std::size_t>(__builtin_ctz(TopBits(AVector)));
}

QZ_STEP std::size_t CountTops(TBytes AVector) noexcept {
    return static_cast<std::size_t>(__builtin_popcount(TopBits(AVector)));
}

// One bit for each unit, eight in each sixteen bits.
QZ_STEP std::uint32_t UnitTops(TWords AMask) noexcept {
    return TopBits((TBytes)_mm256_packs_epi16((__m256i)AMask, (__m256i)AMask));
}

// One bit for each unit.
QZ_STEP std::uint32_t UnitBitsInOrder(TWords AMask) noexcept {
    const std::uint32_t Bits = UnitTops(AMask);
    return (Bits & 0xFF) | ((Bits >> 8) & 0xFF00);
}

// One bit for each value.
QZ_STEP std::uint32_t ValueTops(TLongs AMask) noexcept {
    return static_cast<std::uint32_t>(_mm256_movemask_ps((__m256)AMask));
}

QZ_STEP TBytes Lookup(TBytes ATable, TBytes AIndex) noexcept {
    return (TBytes)_mm256_shuffle_epi8((__m256i)ATable, (__m256i)AIndex);
}

template <int cCount> QZ_STEP TBytes Shifted(TBytes ANow, TBytes ALast) noexcept {
    const __m256i Middle = _mm256_permute2x128_si256((__m256i)ALast, (__m256i)ANow, 0x21);
    return (TBytes)_mm256_alignr_epi8((__m256i)ANow, Middle, 16 - cCount);
}

QZ_STEP TWords MovedDown(TWords AUnits) noexcept {
    const __m256i Middle = _mm256_permute2x128_si256((__m256i)AUnits, (__m256i)AUnits, 0x81);
    return (TWords)_mm256_alignr_epi8(Middle, (__m256i)AUnits, 2);
}

QZ_STEP TBytes LessOrZero(TBytes AVector, TBytes ALess) noexcept {
    return (TBytes)_mm256_subs_epu8((__m256i)AVector, (__m256i)ALess);
}

QZ_STEP TPair Interleaved(TBytes ALower, TBytes AUpper) noexcept {
    return {(TBytes)_mm256_unpacklo_epi8((__m256i)ALower, (__m256i)AUpper),
            (TBytes)_mm256_unpackhi_epi8((__m256i)ALower, (__m256i)AUpper)};
}

QZ_STEP TPair InterleavedUnits(TWords ALower, TWords AUpper) noexcept {
    return {(TBytes)_mm256_unpacklo_epi16((__m256i)ALower, (__m256i)AUpper),
            (TBytes)_mm256_unpackhi_epi16((__m256i)ALower, (__m256i)AUpper)};
}

QZ_STEP TWords WeightedPairs(TBytes ABytes, TBytes AWeights) noexcept {
    return (TWords)_mm256_maddubs_epi16((__m256i)ABytes, (__m256i)AWeights);
}

template <int I> QZ_STEP __m128i Half(TWords AVector) noexcept {
    return _mm256_extracti128_si256((__m256i)AVector, I);
}

template <int I> QZ_STEP __m128i Part(TWords ALow, TWords AHigh) noexcept {
    return Half<I / 2>(I % 2 == 0 ? ALow : AHigh);
}

QZ_STEP __m128i Compacted(__m128i ABytes, const TShuffle& AShuffle) noexcept {
    return _mm_shuffle_epi8(ABytes, _mm_load_si128(reinterpret_cast<const __m128i*>(AShuffle.data())));
}

#include <qz/runtime/base/detail/UtfBlocks.inc>
#include <qz/runtime/base/detail/UtfFromUtf16.inc>
#include <qz/runtime/base/detail/UtfFromUtf32.inc>
#include <qz/runtime/base/detail/UtfFromUtf8.inc>
#include <qz/runtime/base/detail/UtfPath.inc>

} // namespace

const TUtfPath cUtfAvx2Path = PathOf("avx2");

} // namespace qz::detail

#endif
