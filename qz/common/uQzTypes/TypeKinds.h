// The vocabularies in which a value's type is spoken of, beside the runtime's TTypeKind and its variant
// codes: the fine TQzTypeKind, the coarse TQzMainTypeKind, and those of XML Schema and JSON.
//
//     if (TQzSimpleTypeKind::Contains(Kind)) ...
//     QzSchemaDataType[static_cast<int>(xsdDateTime)];    // u"datetime"
//
// The ordinals are stored and compared; they do not change. QzTypes.h converts from one vocabulary to
// another. Each enumeration is described, so that its values can be shown by name.
#pragma once

#include <qz/runtime/objects/TypeInfo.h>
#include <qz/runtime/values/SubRange.h>

namespace qz {

enum class TQzMainTypeKind : std::uint8_t {
    mtkUnknown,
    mtkInteger,
    mtkFloat,
    mtkString,
    mtkBoolean,
    mtkDateTime,
    mtkArray,
    mtkStructure,
    mtkOther
};
using enum TQzMainTypeKind;

enum class TQzTypeKind : std::uint8_t {
    rtkUnknown,
    rtkByte,
    rtkWord,
    rtkLongWord,
    rtkUInt64,
    rtkShortInt,
    rtkSmallInt,
    rtkLongInt,
    rtkInt64,
    rtkSingle,
    rtkDouble,
    rtkExtended,
    rtkChar,
    rtkAChar,
    rtkWChar,
    rtkString,
    rtkAString,
    rtkWString,
    rtkBoolean,
    rtkEnumeration,
    rtkSet,
    rtkDate,
    rtkTime,
    rtkDatetime,
    rtkVariant,
    rtkArray,
    rtkDynArray,
    rtkRecord,
    rtkClass,
    rtkInterface,
    rtkPointer,
    rtkMethod,
    rtkProcedure,
    rtkException,
    rtkClassRef
};
using enum TQzTypeKind;

using TQzSimpleTypeKind = TSubRange<TQzTypeKind, rtkByte, rtkVariant>;
using TQzCompoundTypeKind = TSubRange<TQzTypeKind, rtkArray, rtkClass>;
using TQzOtherTypeKind = TSubRange<TQzTypeKind, rtkInterface, rtkClassRef>;
using TQzVariantTypeKind = TSubRange<TQzTypeKind, rtkUnknown, rtkInterface>;

enum class TQzSchemaDataType : std::uint8_t {
    xsdComplexType,
    xsdArrayOfSimpleType,
    xsdArrayOfComplexType,
    xsdByte,
    xsdShort,
    xsdInt,
    xsdLong,
    xsdUnsignedByte,
    xsdUnsignedShort,
    xsdUnsignedInt,
    xsdUnsignedLong,
    xsdFloat,
    xsdDouble,
    xsdDecimal,
    xsdString,
    xsdBase64Binary,
    xsdHexBinary,
    xsdBoolean,
    xsdDate,
    xsdTime,
    xsdDateTime,
    xsdDuration
};
using enum TQzSchemaDataType;
using PQzSchemaDataType = TQzSchemaDataType*;

using TQzSchemaComplexType = TSubRange<TQzSchemaDataType, xsdComplexType, xsdArrayOfComplexType>;
using TQzSchemaSimplexType = TSubRange<TQzSchemaDataType, xsdByte, xsdDuration>;
using TQzSchemaIntegerType = TSubRange<TQzSchemaDataType, xsdByte, xsdUnsignedLong>;
using TQzSchemaFloatType = TSubRange<TQzSchemaDataType, xsdFloat, xsdDecimal>;
using TQzSchemaBinaryType = TSubRange<TQzSchemaDataType, xsdBase64Binary, xsdHexBinary>;
using TQzSchemaDateTimeType = TSubRange<TQzSchemaDataType, xsdDate, xsdDateTime>;

// By TQzSchemaDataType; all in lower case, unlike the names that QzTypes.h gives.
inline constexpr std::u16string_view QzSchemaDataType[] = {u"_complexType_",
                                                           u"_arrayofsimpletype_",
                                                           u"_arrayofcomplextype_",
                                                           u"byte",
                                                           u"short",
                                                           u"int",
                                                           u"long",
                                                           u"unsignedbyte",
                                                           u"unsignedshort",
                                                           u"unsignedint",
                                                           u"unsignedlong",
                                                           u"float",
                                                           u"double",
                                                           u"decimal",
                                                           u"string",
                                                           u"base64binary",
                                                           u"hexbinary",
                                                           u"boolean",
                                                           u"date",
                                                           u"time",
                                                           u"datetime",
                                                           u"duration"};

enum class TQzJSONDataType : std::uint8_t { jsNull, jsString, jsNumber, jsBool, jsObject, jsArray };
using enum TQzJSONDataType;
using TQzJSONSimpleDataType = TSubRange<TQzJSONDataType, jsNull, jsBool>;

// By TQzJSONDataType.
inline constexpr std::u16string_view QzJSONValueTypes[] = {u"jsNull", u"jsString", u"jsNumber",
                                                           u"jsBool", u"jsObject", u"jsArray"};

enum class TQzNullableBool : std::uint8_t { nbNull, nbYes, nbNo };
using enum TQzNullableBool;

// The formats in which data can be written and read.
enum class TQzDataSerializationFormatType : std::uint8_t { JSON, XML, MIDAS, CUSTOM1, CUSTOM2 };
using enum TQzDataSerializationFormatType;

// By TQzDataSerializationFormatType.
inline constexpr std::u16string_view QzDataSerializationFormatType[] = {u"JSON", u"XML", u"MIDAS", u"CUSTOM1",
                                                                        u"CUSTOM2"};

// Which of its names a type is looked up by.
enum class TQzTypeNameType : std::uint8_t { tntTypeName, tntQualifiedName, tntSchemaName };
using enum TQzTypeNameType;

// The separator in the schema names of types, and the one that is tried when it is not there.
inline constexpr char16_t cQzQSeperators[] = {u'_', u'-'};

} // namespace qz

QZ_TYPE_INFO(qz::TQzMainTypeKind);
QZ_TYPE_INFO(qz::TQzTypeKind);
QZ_TYPE_INFO(qz::TQzSchemaDataType);
QZ_TYPE_INFO(qz::TQzJSONDataType);
QZ_TYPE_INFO(qz::TQzNullableBool);
QZ_TYPE_INFO(qz::TQzDataSerializationFormatType);
QZ_TYPE_INFO(qz::TQzTypeNameType);
