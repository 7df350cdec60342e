#ifdef __x86_64__

#include <immintrin.h>

#include <array>
#include <cstring>

#include <qz/runtime/base/detail/UtfPaths.h>
#include <qz/runtime/base/detail/UtfScalar.h>
#include <qz/runtime/base/detail/UtfTable.h>

namespace qz::detail {
namespace {

#define QZ_TARGET __attribute__((target("ssse3,sse4.1,popcnt")))
#define QZ_STEP QZ_TARGET __attribute__((always_inline)) inline

constexpr std::size_t cWidth = 16;
constexpr int cParts = 2;
constexpr std::uint32_t cAllBits = 0xFFFF;

#include <qz/runtime/base/detail/UtfVectors.inc>

#include <qz/runtime/base/detail/UtfPieces.inc>

struct TPair {
    TBytes First;
    TBytes Second;
};

QZ_STEP std::size_t Total(TWords AVector) noexcept {
    __m128i Sums = _mm_madd_epi16((__m128i)AVector, _mm_set1_epi16(1));
    Sums = _mm_add_epi32(Sums, _mm_unpackhi_epi64(Sums, Sums));
    return static_cast<std::size_t>(_mm_cvtsi128_si32(Sums)) +
        static_cast<std::size_t>(_mm_extract_epi32(Sums, 1));
}

QZ_STEP TBytes Packed(TWords ALower, TWords AUpper) noexcept {
    return (TBytes)_mm_packus_epi16((__m128i)ALower, (__m128i)AUpper);
}

QZ_STEP bool IsZero(TBytes AVector) noexcept {
    return _mm_testz_si128((__m128i)AVector, (__m128i)AVector) != 0;
}

QZ_STEP TBytes LoadSome(const void* ASource, std::size_t ACount) noexcept {
    return (TBytes)LoadUnderSixteen(ASource, ACount);
}

QZ_STEP void WidenVector(const char* ASource, char16_t* ADest) noexcept {
    const auto Now = Load<__m128i>(ASource);
    Store(ADest, _mm_cvtepu8_epi16(Now));
    Store(ADest + cWords, _mm_unpackhi_epi8(Now, _mm_setzero_si128()));
}

QZ_STEP void NarrowVector(const char16_t* ASource, char* ADest) noexcept {
    const __m128i Mask = _mm_set1_epi16(0xFF);
    Store(ADest,
          _mm_packus_epi16(_mm_and_si128(Load<__m128i>(ASource), Mask),
                           _mm_and_si128(Load<__m128i>(ASource + cWords), Mask)));
}

QZ_STEP std::uint32_t TopBits(TBytes AVector) noexcept {
    return static_cast<std::uint32_t>(_mm_movemask_epi8((__m128i)AVector));
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
    return TopBits((TBytes)_mm_packs_epi16((__m128i)AMask, (__m128i)AMask));
}

// One bit for each unit.
QZ_STEP std::uint32_t UnitBitsInOrder(TWords AMask) noexcept {
    return UnitTops(AMask);
}

// One bit for each value.
QZ_STEP std::uint32_t ValueTops(TLongs AMask) noexcept {
    return static_cast<std::uint32_t>(_mm_movemask_ps((__m128)AMask));
}

QZ_STEP TBytes Lookup(TBytes ATable, TBytes AIndex) noexcept {
    return (TBytes)_mm_shuffle_epi8((__m128i)ATable, (__m128i)AIndex);
}

template <int cCount> QZ_STEP TBytes Shifted(TBytes ANow, TBytes ALast) noexcept {
    return (TBytes)_mm_alignr_epi8((__m128i)ANow, (__m128i)ALast, 16 - cCount);
}

QZ_STEP TWords MovedDown(TWords AUnits) noexcept {
    return (TWords)_mm_srli_si128((__m128i)AUnits, 2);
}

QZ_STEP TBytes LessOrZero(TBytes AVector, TBytes ALess) noexcept {
    return (TBytes)_mm_subs_epu8((__m128i)AVector, (__m128i)ALess);
}

QZ_STEP TPair Interleaved(TBytes ALower, TBytes AUpper) noexcept {
    return {(TBytes)_mm_unpacklo_epi8((__m128i)ALower, (__m128i)AUpper),
            (TBytes)_mm_unpackhi_epi8((__m128i)ALower, (__m128i)AUpper)};
}

QZ_STEP TPair InterleavedUnits(TWords ALower, TWords AUpper) noexcept {
    return {(TBytes)_mm_unpacklo_epi16((__m128i)ALower, (__m128i)AUpper),
            (TBytes)_mm_unpackhi_epi16((__m128i)ALower, (__m128i)AUpper)};
}

QZ_STEP TWords WeightedPairs(TBytes ABytes, TBytes AWeights) noexcept {
    return (TWords)_mm_maddubs_epi16((__m128i)ABytes, (__m128i)AWeights);
}

template <int I> QZ_STEP __m128i Half(TWords AVector) noexcept {
    return (__m128i)AVector;
}

template <int I> QZ_STEP __m128i Part(TWords ALow, TWords AHigh) noexcept {
    return Half<0>(I == 0 ? ALow : AHigh);
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

const TUtfPath cUtfSse4Path = PathOf("sse4");

} // namespace qz::detail

#endif
