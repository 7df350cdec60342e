#ifdef __x86_64__

#include <immintrin.h>

#include <array>
#include <bit>
#include <cstring>

#include <qz/runtime/text/detail/BinaryPaths.h>
#include <qz/runtime/text/detail/BinaryScalar.h>
#include <qz/runtime/text/detail/BinaryShuffles.h>

namespace qz::detail {
namespace {

#define QZ_TARGET __attribute__((target("ssse3,sse4.1,popcnt")))
#define QZ_STEP QZ_TARGET __attribute__((always_inline)) inline

constexpr std::size_t cWidth = 16;

#include <qz/runtime/base/detail/UtfVectors.inc>

#include <qz/runtime/base/detail/UtfPieces.inc>

// There are no steps of 32 bytes.
QZ_STEP TEncoded EncodeWide(TEncoded APlace, const std::byte*, const TShuffle&) noexcept {
    return APlace;
}
QZ_STEP TDecoded DecodeWide(TDecoded APlace, const char*) noexcept {
    return APlace;
}
QZ_STEP TEncoded EncodeHexWide(TEncoded APlace, const std::byte*) noexcept {
    return APlace;
}
QZ_STEP TDecoded DecodeHexWide(TDecoded APlace, const char*) noexcept {
    return APlace;
}

#include <qz/runtime/text/detail/BinaryVectors.inc>

} // namespace

const TBinaryPath cBinarySse4Path = PathOf("sse4");

} // namespace qz::detail

#endif
