#include <qz/common/uQzXSTypes/XsTypeRows.h>

namespace qz {

std::span<const TXsTypeRow> XsTypeRows() noexcept {
    static constexpr TXsTypeRow cRows[] = {
        {TypeInfo<TXsBoolean>(), rtkBoolean, varBoolean, xsdBoolean, u"boolean"},
        {TypeInfo<TXsInteger<std::int8_t>>(), rtkShortInt, varShortInt, xsdByte, u"byte"},
        {TypeInfo<TXsInteger<std::int16_t>>(), rtkSmallInt, varSmallint, xsdShort, u"short"},
        {TypeInfo<TXsInteger<std::int32_t>>(), rtkLongInt, varInteger, xsdInt, u"int"},
        {TypeInfo<TXsInteger<std::int64_t>>(), rtkInt64, varInt64, xsdLong, u"long"},
        {TypeInfo<TXsInteger<std::uint8_t>>(), rtkByte, varByte, xsdUnsignedByte, u"unsignedByte"},
        {TypeInfo<TXsInteger<std::uint16_t>>(), rtkWord, varWord, xsdUnsignedShort, u"unsignedShort"},
        {TypeInfo<TXsInteger<std::uint32_t>>(), rtkLongWord, varLongWord, xsdUnsignedInt, u"unsignedInt"},
        {TypeInfo<TXsInteger<std::uint64_t>>(), rtkUInt64, varUInt64, xsdUnsignedLong, u"unsignedLong"},
        {TypeInfo<TXsRational<float>>(), rtkSingle, varDouble, xsdFloat, u"float"},
        {TypeInfo<TXsRational<double>>(), rtkDouble, varDouble, xsdDouble, u"double"},
        {TypeInfo<TXsRational<Extended>>(), rtkExtended, varDouble, xsdDecimal, u"decimal"},
        {TypeInfo<TXsString>(), rtkWString, varOleStr, xsdString, u"string"},
        {TypeInfo<TXsBinaryString<TXsBinaryStringB64Encoding>>(), rtkAString, varString, xsdBase64Binary,
         u"base64Binary"},
        {TypeInfo<TXsBinaryString<TXsBinaryStringHexEncoding>>(), rtkAString, varString, xsdHexBinary,
         u"hexBinary"},
    };
    return cRows;
}

} // namespace qz
