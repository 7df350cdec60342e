#ifdef __x86_64__

#include <immintrin.h>

#include <cstring>
#include <utility>

#include <qz/common/uQzSha1/detail/Sha1Blocks.h>

namespace qz::detail {
namespace {

#define QZ_TARGET __attribute__((target("sha,ssse3,sse4.1")))
#define QZ_STEP QZ_TARGET __attribute__((always_inline)) inline

// A block on its way: the words a, b, c, d with a the highest, what e comes from, and the last sixteen words
// of the message schedule.
struct TRun {
    __m128i Abcd;
    __m128i Before;
    __m128i Words[4];
};

QZ_STEP __m128i LoadWords(const std::byte* ABytes) noexcept {
    const __m128i Reversed = _mm_set_epi64x(0x0001020304050607, 0x08090A0B0C0D0E0F);
    return _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(ABytes)), Reversed);
}

// Four steps.
template <int cGroup> QZ_STEP void FourSteps(TRun& ARun, const std::byte* ABytes) noexcept {
    __m128i& Words = ARun.Words[cGroup % 4];
    if constexpr (cGroup < 4)
        Words = LoadWords(ABytes + 16 * cGroup);
    else
        Words = _mm_sha1msg2_epu32(_mm_xor_si128(_mm_sha1msg1_epu32(Words, ARun.Words[(cGroup + 1) % 4]),
                                                 ARun.Words[(cGroup + 2) % 4]),
                                   ARun.Words[(cGroup + 3) % 4]);
    const __m128i Added =
        cGroup == 0 ? _mm_add_epi32(ARun.Before, Words) : _mm_sha1nexte_epu32(ARun.Before, Words);
    ARun.Before = ARun.Abcd;
    ARun.Abcd = _mm_sha1rnds4_epu32(ARun.Abcd, Added, cGroup / 5);
}

template <int... cGroups>
QZ_STEP void AllSteps(TRun& ARun, const std::byte* ABytes, std::integer_sequence<int, cGroups...>) noexcept {
    (FourSteps<cGroups>(ARun, ABytes), ...);
}

QZ_TARGET void Blocks(TSha1State& AState, const std::byte* ABytes, std::size_t ACount) noexcept {
    constexpr int cReversed = 0x1B;
    __m128i Abcd =
        _mm_shuffle_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(AState.data())), cReversed);
    __m128i E = _mm_insert_epi32(_mm_setzero_si128(), static_cast<int>(AState[4]), 3);
    for (; ACount > 0; --ACount, ABytes += 64) {
        TRun Run{Abcd, E, {}};
        AllSteps(Run, ABytes, std::make_integer_sequence<int, 20>());
        E = _mm_sha1nexte_epu32(Run.Before, E);
        Abcd = _mm_add_epi32(Run.Abcd, Abcd);
    }
    _mm_storeu_si128(reinterpret_cast<__m128i*>(AState.data()), _mm_shuffle_epi32(Abcd, cReversed));
    AState[4] = static_cast<std::uint32_t>(_mm_extract_epi32(E, 3));
}

} // namespace

constinit const TSha1Path cSha1InstructionsPath = {.Name = "instructions", .Blocks = Blocks};

} // namespace qz::detail

#endif
