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

#define QZ_TARGET __attribute__((target("avx2,bmi,popcnt")))
#define QZ_STEP QZ_TARGET __attribute__((always_inline)) inline

constexpr std::size_t cWidth = 32;

#include <qz/runtime/base/detail/UtfVectors.inc>

#include <qz/runtime/base/detail/UtfPieces.inc>

#include <qz/runtime/text/detail/BinaryWide.inc>

#include <qz/runtime/text/detail/BinaryVectors.inc>

} // namespace

const TBinaryPath cBinaryAvx2Path = PathOf("avx2");

} // namespace qz::detail

#endif
