// Types that bear names of their own: texts of XML and JSON, arrays, and pointers to the value records of XML
// Schema.
//
//     QzXMLString Document = u"<a/>";          // 16-bit text, but another type to reflection and overloads
//     TVariantDynArray Row = {1, u"two"};
#pragma once

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/Extended.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/values/BasicTypes.h>
#include <qz/runtime/values/Value.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

using QzXMLString = TStringKind<struct TXMLStringTag>;
using QzJSONString = TStringKind<struct TJSONStringTag>;
using PQzXMLChar = char16_t*;
using PQzJSONChar = char16_t*;
using PQzIntPtr = std::intptr_t*;
using PQzUIntPtr = std::uintptr_t*;

using PValue = TValue*;
using TValArray = TDynArray<TValue>;
using TExtendedDynArray = TDynArray<Extended>;
using TVariantDynArray = TDynArray<Variant>;
using TDateTimeDynArray = TDynArray<TDateTime>;
using TDateTyimeDynArray = TDynArray<TDateTime>; // another name of the same type
using TUInt64DynArray = TDynArray<std::uint64_t>;
using TTypeKindArray = TDynArray<TTypeKind>; // one byte an element

// The value records of XML Schema.
class TXsBoolean;
class TXsString;
class TXsDateTime;
class TXsDate;
class TXsTime;
class TXsDuration;
template <class T> class TXsInteger;
template <class T> class TXsRational;
template <class TEncodingClass> class TXsBinaryString;
class TXsBinaryStringB64Encoding;
class TXsBinaryStringHexEncoding;

using PXsAnyType = PValue; // a value of any type
using PXsBoolean = TXsBoolean*;
using PXsByte = TXsInteger<std::int8_t>*;
using PXsShort = TXsInteger<std::int16_t>*;
using PXsInt = TXsInteger<std::int32_t>*;
using PXsLong = TXsInteger<std::int64_t>*;
using PXsUnsignedByte = TXsInteger<std::uint8_t>*;
using PXsUnsignedShort = TXsInteger<std::uint16_t>*;
using PXsUnsignedInt = TXsInteger<std::uint32_t>*;
using PXsUnsignedLong = TXsInteger<std::uint64_t>*;
using PXsFloat = TXsRational<float>*;
using PXsDouble = TXsRational<double>*;
using PXsDecimal = TXsRational<Extended>*;
using PXsString = TXsString*;
using PXsBase64Binary = TXsBinaryString<TXsBinaryStringB64Encoding>*;
using PXsHexBinary = TXsBinaryString<TXsBinaryStringHexEncoding>*;
using PXsDateTime = TXsDateTime*;
using PXsDate = TXsDate*;
using PXsTime = TXsTime*;
using PXsDuration = TXsDuration*;

static_assert(sizeof(TTypeKind) == 1);

} // namespace qz

QZ_TYPE_INFO(qz::QzXMLString);
QZ_TYPE_INFO(qz::QzJSONString);
QZ_TYPE_INFO(qz::TValArray);
QZ_TYPE_INFO(qz::TExtendedDynArray);
QZ_TYPE_INFO(qz::TVariantDynArray);
QZ_TYPE_INFO(qz::TDateTimeDynArray);
QZ_TYPE_INFO(qz::TUInt64DynArray);
QZ_TYPE_INFO(qz::TTypeKind);
QZ_TYPE_INFO(qz::TTypeKindArray);
