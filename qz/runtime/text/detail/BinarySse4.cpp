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
template <class... T> QZ_STEP void EncodeWide(T&&...) noexcept {}
template <class... T> QZ_STEP void DecodeWide(T&&...) noexcept {}
template <class... T> QZ_STEP void EncodeHexWide(T&&...) noexcept {}
template <class... T> QZ_STEP void DecodeHexWide(T&&...) noexcept {}

#include <qz/runtime/text/detail/BinaryVectors.inc>

} // namespace

const TBinaryPath cBinarySse4Path = PathOf("sse4");

} // namespace qz::detail

#endif
