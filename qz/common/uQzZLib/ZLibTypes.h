// The vocabulary of uQzZLib: levels, strategies, kinds of flush, and the exceptions with the codes of zlib.
//
//     try {
//         Import();
//     } catch (const EQzZLibDecompressionError& E) {
//         if (E.ErrorCode() == -5)                  // "Buffer error": the data ends too early
//             Alarm(E.Message());
//     }
#pragma once

#include <qz/runtime/objects/Exceptions.h>

namespace qz {

// clLevel1 to clLevel9 compress as clDefault does.
enum class TQzZLibCompressionLevel : std::uint8_t {
    clNone,
    clFastest,
    clDefault,
    clMax,
    clLevel1,
    clLevel2,
    clLevel3,
    clLevel4,
    clLevel5,
    clLevel6,
    clLevel7,
    clLevel8,
    clLevel9
};
using enum TQzZLibCompressionLevel;

// For callers that use zlib itself; no function of the unit takes these two.
enum class TQzZLibStrategy : std::uint8_t { zsDefault, zsFiltered, zsHuffman, zsRLE, zsFixed };
using enum TQzZLibStrategy;
enum class TQzZLibFlush : std::uint8_t {
    zfNoFlush,
    zfPartialFlush,
    zfSyncFlush,
    zfFullFlush,
    zfFinish,
    zfBlock,
    zfTrees
};
using enum TQzZLibFlush;

// A failure with the code of zlib, 2 to -6, and its text: "Data error" for -3. Any other code gives the text
// "Error" and the number.
class QZ_API EQzZLibException : public Exception {
    QZ_EXCEPTION(EQzZLibException, Exception)
public:
    explicit EQzZLibException(std::int32_t ACode);
    std::int32_t ErrorCode() const noexcept { return FErrorCode; }

private:
    std::int32_t FErrorCode;
};
QZ_PLAIN_EXCEPTION(EQzZLibCompressionError, EQzZLibException);
QZ_PLAIN_EXCEPTION(EQzZLibDecompressionError, EQzZLibException);

} // namespace qz
