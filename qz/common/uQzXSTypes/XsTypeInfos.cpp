// The descriptions of the value records and of their restrictions.
#include <qz/common/uQzTypes/registry/detail/Population.h>
#include <qz/common/uQzXSTypes/XsBinaryString.h>
#include <qz/common/uQzXSTypes/XsRational.h>
#include <qz/common/uQzXSTypes/XsString.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzXSTypes";

template <class R>
constexpr TFieldInfo cValueFirst[] = {Field<&R::FValue>(u"FValue"), Field<&R::FHasValue>(u"FHasValue")};
template <class R>
constexpr TFieldInfo cRestricted[] = {Field<&R::FValue>(u"FValue"), Field<&R::FHasValue>(u"FHasValue"),
                                      Field<&R::Restrictions>(u"Restrictions")};
template <class R>
constexpr TFieldInfo cMarkerFirst[] = {Field<&R::FHasValue>(u"FHasValue"), Field<&R::FValue>(u"FValue"),
                                       Field<&R::Restrictions>(u"Restrictions")};
template <class R>
constexpr TFieldInfo cIntegerLimits[] = {
    Field<&R::MinExclusive>(u"MinExclusive"), Field<&R::MaxExclusive>(u"MaxExclusive"),
    Field<&R::MinInclusive>(u"MinInclusive"), Field<&R::MaxInclusive>(u"MaxInclusive"),
    Field<&R::Pattern>(u"Pattern")};
template <class R>
constexpr TFieldInfo cRationalLimits[] = {Field<&R::TotalDigits>(u"TotalDigits"),
                                          Field<&R::FractionDigits>(u"FractionDigits"),
                                          Field<&R::MinExclusive>(u"MinExclusive"),
                                          Field<&R::MaxExclusive>(u"MaxExclusive"),
                                          Field<&R::MinInclusive>(u"MinInclusive"),
                                          Field<&R::MaxInclusive>(u"MaxInclusive"),
                                          Field<&R::Pattern>(u"Pattern")};
constexpr TFieldInfo cStringLimits[] = {Field<&TXsStringRestrictions::Length>(u"Length"),
                                        Field<&TXsStringRestrictions::MinLength>(u"MinLength"),
                                        Field<&TXsStringRestrictions::MaxLength>(u"MaxLength"),
                                        Field<&TXsStringRestrictions::Pattern>(u"Pattern")};

template <class R>
consteval TTypeInfo Record(std::u16string_view AName, std::span<const TFieldInfo> AFields) {
    return DescribeRecord<R>(AName, cUnit, AFields);
}

} // namespace

template <class T> using TInfo = TTypeDescription<T>;

constinit const TTypeInfo TInfo<TXsAnySimpleType<std::int8_t>>::Info = Record<TXsAnySimpleType<std::int8_t>>(
    u"TXsAnySimpleType<System.ShortInt>", cValueFirst<TXsAnySimpleType<std::int8_t>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<std::int16_t>>::Info =
    Record<TXsAnySimpleType<std::int16_t>>(u"TXsAnySimpleType<System.SmallInt>",
                                           cValueFirst<TXsAnySimpleType<std::int16_t>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<std::int32_t>>::Info =
    Record<TXsAnySimpleType<std::int32_t>>(u"TXsAnySimpleType<System.Integer>",
                                           cValueFirst<TXsAnySimpleType<std::int32_t>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<std::int64_t>>::Info =
    Record<TXsAnySimpleType<std::int64_t>>(u"TXsAnySimpleType<System.Int64>",
                                           cValueFirst<TXsAnySimpleType<std::int64_t>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<std::uint8_t>>::Info =
    Record<TXsAnySimpleType<std::uint8_t>>(u"TXsAnySimpleType<System.Byte>",
                                           cValueFirst<TXsAnySimpleType<std::uint8_t>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<std::uint16_t>>::Info =
    Record<TXsAnySimpleType<std::uint16_t>>(u"TXsAnySimpleType<System.Word>",
                                            cValueFirst<TXsAnySimpleType<std::uint16_t>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<std::uint32_t>>::Info =
    Record<TXsAnySimpleType<std::uint32_t>>(u"TXsAnySimpleType<System.Cardinal>",
                                            cValueFirst<TXsAnySimpleType<std::uint32_t>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<std::uint64_t>>::Info =
    Record<TXsAnySimpleType<std::uint64_t>>(u"TXsAnySimpleType<System.UInt64>",
                                            cValueFirst<TXsAnySimpleType<std::uint64_t>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<float>>::Info =
    Record<TXsAnySimpleType<float>>(u"TXsAnySimpleType<System.Single>", cValueFirst<TXsAnySimpleType<float>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<double>>::Info = Record<TXsAnySimpleType<double>>(
    u"TXsAnySimpleType<System.Double>", cValueFirst<TXsAnySimpleType<double>>);
constinit const TTypeInfo TInfo<TXsAnySimpleType<Extended>>::Info = Record<TXsAnySimpleType<Extended>>(
    u"TXsAnySimpleType<System.Extended>", cValueFirst<TXsAnySimpleType<Extended>>);

constinit const TTypeInfo TInfo<TXsBoolean>::Info =
    Record<TXsBoolean>(u"TXsBoolean", cValueFirst<TXsBoolean>);
constinit const TTypeInfo TInfo<TXsStringRestrictions>::Info =
    Record<TXsStringRestrictions>(u"TXsStringRestrictions", cStringLimits);
constinit const TTypeInfo TInfo<TXsFacets<TXsStringRestrictions>>::Info =
    Record<TXsFacets<TXsStringRestrictions>>(u"TXsFacets<uQzXSTypes.TXsStringRestrictions>", {});
constinit const TTypeInfo TInfo<TXsString>::Info = Record<TXsString>(u"TXsString", cRestricted<TXsString>);
constinit const TTypeInfo TInfo<TXsBinaryString<TXsBinaryStringB64Encoding>>::Info =
    Record<TXsBinaryString<TXsBinaryStringB64Encoding>>(
        u"TXsBinaryString<uQzXSTypes.TXsBinaryStringB64Encoding>",
        cValueFirst<TXsBinaryString<TXsBinaryStringB64Encoding>>);
constinit const TTypeInfo TInfo<TXsBinaryString<TXsBinaryStringHexEncoding>>::Info =
    Record<TXsBinaryString<TXsBinaryStringHexEncoding>>(
        u"TXsBinaryString<uQzXSTypes.TXsBinaryStringHexEncoding>",
        cValueFirst<TXsBinaryString<TXsBinaryStringHexEncoding>>);

constinit const TTypeInfo TInfo<TXsIntegerRestrictions<std::int8_t>>::Info =
    Record<TXsIntegerRestrictions<std::int8_t>>(u"TXsIntegerRestrictions<System.ShortInt>",
                                                cIntegerLimits<TXsIntegerRestrictions<std::int8_t>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsIntegerRestrictions<std::int8_t>>>::Info =
    Record<TXsFacets<TXsIntegerRestrictions<std::int8_t>>>(
        u"TXsFacets<uQzXSTypes.TXsIntegerRestrictions<System.ShortInt>>", {});
constinit const TTypeInfo TInfo<TXsInteger<std::int8_t>>::Info =
    Record<TXsInteger<std::int8_t>>(u"TXsInteger<System.ShortInt>", cMarkerFirst<TXsInteger<std::int8_t>>);
constinit const TTypeInfo TInfo<TXsIntegerRestrictions<std::int16_t>>::Info =
    Record<TXsIntegerRestrictions<std::int16_t>>(u"TXsIntegerRestrictions<System.SmallInt>",
                                                 cIntegerLimits<TXsIntegerRestrictions<std::int16_t>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsIntegerRestrictions<std::int16_t>>>::Info =
    Record<TXsFacets<TXsIntegerRestrictions<std::int16_t>>>(
        u"TXsFacets<uQzXSTypes.TXsIntegerRestrictions<System.SmallInt>>", {});
constinit const TTypeInfo TInfo<TXsInteger<std::int16_t>>::Info =
    Record<TXsInteger<std::int16_t>>(u"TXsInteger<System.SmallInt>", cMarkerFirst<TXsInteger<std::int16_t>>);
constinit const TTypeInfo TInfo<TXsIntegerRestrictions<std::int32_t>>::Info =
    Record<TXsIntegerRestrictions<std::int32_t>>(u"TXsIntegerRestrictions<System.Integer>",
                                                 cIntegerLimits<TXsIntegerRestrictions<std::int32_t>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsIntegerRestrictions<std::int32_t>>>::Info =
    Record<TXsFacets<TXsIntegerRestrictions<std::int32_t>>>(
        u"TXsFacets<uQzXSTypes.TXsIntegerRestrictions<System.Integer>>", {});
constinit const TTypeInfo TInfo<TXsInteger<std::int32_t>>::Info =
    Record<TXsInteger<std::int32_t>>(u"TXsInteger<System.Integer>", cMarkerFirst<TXsInteger<std::int32_t>>);
constinit const TTypeInfo TInfo<TXsIntegerRestrictions<std::int64_t>>::Info =
    Record<TXsIntegerRestrictions<std::int64_t>>(u"TXsIntegerRestrictions<System.Int64>",
                                                 cIntegerLimits<TXsIntegerRestrictions<std::int64_t>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsIntegerRestrictions<std::int64_t>>>::Info =
    Record<TXsFacets<TXsIntegerRestrictions<std::int64_t>>>(
        u"TXsFacets<uQzXSTypes.TXsIntegerRestrictions<System.Int64>>", {});
constinit const TTypeInfo TInfo<TXsInteger<std::int64_t>>::Info =
    Record<TXsInteger<std::int64_t>>(u"TXsInteger<System.Int64>", cMarkerFirst<TXsInteger<std::int64_t>>);
constinit const TTypeInfo TInfo<TXsIntegerRestrictions<std::uint8_t>>::Info =
    Record<TXsIntegerRestrictions<std::uint8_t>>(u"TXsIntegerRestrictions<System.Byte>",
                                                 cIntegerLimits<TXsIntegerRestrictions<std::uint8_t>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsIntegerRestrictions<std::uint8_t>>>::Info =
    Record<TXsFacets<TXsIntegerRestrictions<std::uint8_t>>>(
        u"TXsFacets<uQzXSTypes.TXsIntegerRestrictions<System.Byte>>", {});
constinit const TTypeInfo TInfo<TXsInteger<std::uint8_t>>::Info =
    Record<TXsInteger<std::uint8_t>>(u"TXsInteger<System.Byte>", cMarkerFirst<TXsInteger<std::uint8_t>>);
constinit const TTypeInfo TInfo<TXsIntegerRestrictions<std::uint16_t>>::Info =
    Record<TXsIntegerRestrictions<std::uint16_t>>(u"TXsIntegerRestrictions<System.Word>",
                                                  cIntegerLimits<TXsIntegerRestrictions<std::uint16_t>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsIntegerRestrictions<std::uint16_t>>>::Info =
    Record<TXsFacets<TXsIntegerRestrictions<std::uint16_t>>>(
        u"TXsFacets<uQzXSTypes.TXsIntegerRestrictions<System.Word>>", {});
constinit const TTypeInfo TInfo<TXsInteger<std::uint16_t>>::Info =
    Record<TXsInteger<std::uint16_t>>(u"TXsInteger<System.Word>", cMarkerFirst<TXsInteger<std::uint16_t>>);
constinit const TTypeInfo TInfo<TXsIntegerRestrictions<std::uint32_t>>::Info =
    Record<TXsIntegerRestrictions<std::uint32_t>>(u"TXsIntegerRestrictions<System.Cardinal>",
                                                  cIntegerLimits<TXsIntegerRestrictions<std::uint32_t>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsIntegerRestrictions<std::uint32_t>>>::Info =
    Record<TXsFacets<TXsIntegerRestrictions<std::uint32_t>>>(
        u"TXsFacets<uQzXSTypes.TXsIntegerRestrictions<System.Cardinal>>", {});
constinit const TTypeInfo TInfo<TXsInteger<std::uint32_t>>::Info = Record<TXsInteger<std::uint32_t>>(
    u"TXsInteger<System.Cardinal>", cMarkerFirst<TXsInteger<std::uint32_t>>);
constinit const TTypeInfo TInfo<TXsIntegerRestrictions<std::uint64_t>>::Info =
    Record<TXsIntegerRestrictions<std::uint64_t>>(u"TXsIntegerRestrictions<System.UInt64>",
                                                  cIntegerLimits<TXsIntegerRestrictions<std::uint64_t>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsIntegerRestrictions<std::uint64_t>>>::Info =
    Record<TXsFacets<TXsIntegerRestrictions<std::uint64_t>>>(
        u"TXsFacets<uQzXSTypes.TXsIntegerRestrictions<System.UInt64>>", {});
constinit const TTypeInfo TInfo<TXsInteger<std::uint64_t>>::Info =
    Record<TXsInteger<std::uint64_t>>(u"TXsInteger<System.UInt64>", cMarkerFirst<TXsInteger<std::uint64_t>>);
constinit const TTypeInfo TInfo<TXsRationalRestrictions<float>>::Info =
    Record<TXsRationalRestrictions<float>>(u"TXsRationalRestrictions<System.Single>",
                                           cRationalLimits<TXsRationalRestrictions<float>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsRationalRestrictions<float>>>::Info =
    Record<TXsFacets<TXsRationalRestrictions<float>>>(
        u"TXsFacets<uQzXSTypes.TXsRationalRestrictions<System.Single>>", {});
constinit const TTypeInfo TInfo<TXsRational<float>>::Info =
    Record<TXsRational<float>>(u"TXsRational<System.Single>", cRestricted<TXsRational<float>>);
constinit const TTypeInfo TInfo<TXsRationalRestrictions<double>>::Info =
    Record<TXsRationalRestrictions<double>>(u"TXsRationalRestrictions<System.Double>",
                                            cRationalLimits<TXsRationalRestrictions<double>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsRationalRestrictions<double>>>::Info =
    Record<TXsFacets<TXsRationalRestrictions<double>>>(
        u"TXsFacets<uQzXSTypes.TXsRationalRestrictions<System.Double>>", {});
constinit const TTypeInfo TInfo<TXsRational<double>>::Info =
    Record<TXsRational<double>>(u"TXsRational<System.Double>", cRestricted<TXsRational<double>>);
constinit const TTypeInfo TInfo<TXsRationalRestrictions<Extended>>::Info =
    Record<TXsRationalRestrictions<Extended>>(u"TXsRationalRestrictions<System.Extended>",
                                              cRationalLimits<TXsRationalRestrictions<Extended>>);
constinit const TTypeInfo TInfo<TXsFacets<TXsRationalRestrictions<Extended>>>::Info =
    Record<TXsFacets<TXsRationalRestrictions<Extended>>>(
        u"TXsFacets<uQzXSTypes.TXsRationalRestrictions<System.Extended>>", {});
constinit const TTypeInfo TInfo<TXsRational<Extended>>::Info =
    Record<TXsRational<Extended>>(u"TXsRational<System.Extended>", cRestricted<TXsRational<Extended>>);

namespace {

// What the registry of types knows of the value records, in the order of registration.
constexpr detail::TPopulationRow cRows[] = {
    {&TypeInfo<TXsBoolean>, rtkBoolean, varBoolean, xsdBoolean, {u"boolean"}},
    {&TypeInfo<TXsInteger<std::int8_t>>, rtkShortInt, varShortInt, xsdByte, {u"byte"}},
    {&TypeInfo<TXsInteger<std::int16_t>>, rtkSmallInt, varSmallint, xsdShort, {u"short"}},
    {&TypeInfo<TXsInteger<std::int32_t>>, rtkLongInt, varInteger, xsdInt, {u"int"}},
    {&TypeInfo<TXsInteger<std::int64_t>>, rtkInt64, varInt64, xsdLong, {u"long"}},
    {&TypeInfo<TXsInteger<std::uint8_t>>, rtkByte, varByte, xsdUnsignedByte, {u"unsignedByte"}},
    {&TypeInfo<TXsInteger<std::uint16_t>>, rtkWord, varWord, xsdUnsignedShort, {u"unsignedShort"}},
    {&TypeInfo<TXsInteger<std::uint32_t>>, rtkLongWord, varLongWord, xsdUnsignedInt, {u"unsignedInt"}},
    {&TypeInfo<TXsInteger<std::uint64_t>>, rtkUInt64, varUInt64, xsdUnsignedLong, {u"unsignedLong"}},
    {&TypeInfo<TXsRational<float>>, rtkSingle, varDouble, xsdFloat, {u"float"}},
    {&TypeInfo<TXsRational<double>>, rtkDouble, varDouble, xsdDouble, {u"double"}},
    {&TypeInfo<TXsRational<Extended>>, rtkExtended, varDouble, xsdDecimal, {u"decimal"}},
    {&TypeInfo<TXsString>, rtkWString, varOleStr, xsdString, {u"string"}},
    {&TypeInfo<TXsBinaryString<TXsBinaryStringB64Encoding>>,
     rtkAString,
     varString,
     xsdBase64Binary,
     {u"base64Binary"}},
    {&TypeInfo<TXsBinaryString<TXsBinaryStringHexEncoding>>,
     rtkAString,
     varString,
     xsdHexBinary,
     {u"hexBinary"}},
};
const detail::TPopulationPart GPart(detail::TPopulationPart::ValueRecords, cRows);

} // namespace

} // namespace qz
