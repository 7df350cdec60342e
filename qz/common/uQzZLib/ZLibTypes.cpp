#include <qz/common/uQzZLib/ZLibTypes.h>

#include <array>

#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

UnicodeString TextOf(std::int32_t ACode) {
    static constexpr std::array<std::u16string_view, 9> cTexts{
        u"Need dictionary", u"Stream end",          u"OK",           u"File error",          u"Stream error",
        u"Data error",      u"Insufficient memory", u"Buffer error", u"Incompatible version"};
    constexpr std::int32_t cFirst = 2;
    if (ACode > cFirst || ACode <= cFirst - static_cast<std::int32_t>(cTexts.size()))
        return u"Error " + IntToStr(ACode);
    return cTexts[static_cast<std::size_t>(cFirst - ACode)];
}

} // namespace

const TClassRec EQzZLibException::ClassRec =
    DescribeException<EQzZLibException>(u"EQzZLibException", u"uQzZLib");
const TClassRec EQzZLibCompressionError::ClassRec =
    DescribeException<EQzZLibCompressionError>(u"EQzZLibCompressionError", u"uQzZLib");
const TClassRec EQzZLibDecompressionError::ClassRec =
    DescribeException<EQzZLibDecompressionError>(u"EQzZLibDecompressionError", u"uQzZLib");

EQzZLibException::EQzZLibException(std::int32_t ACode) : Exception(TextOf(ACode)), FErrorCode(ACode) {}

} // namespace qz
