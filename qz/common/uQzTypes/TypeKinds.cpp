#include <qz/common/uQzTypes/TypeKinds.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/EnumItems.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzTypes";

constexpr auto cMainTypeKinds =
    EnumItems({u"mtkUnknown", u"mtkInteger", u"mtkFloat", u"mtkString", u"mtkBoolean", u"mtkDateTime",
               u"mtkArray", u"mtkStructure", u"mtkOther"});
constexpr auto cTypeKinds = EnumItems(
    {u"rtkUnknown",  u"rtkByte",        u"rtkWord",      u"rtkLongWord",  u"rtkUInt64",  u"rtkShortInt",
     u"rtkSmallInt", u"rtkLongInt",     u"rtkInt64",     u"rtkSingle",    u"rtkDouble",  u"rtkExtended",
     u"rtkChar",     u"rtkAChar",       u"rtkWChar",     u"rtkString",    u"rtkAString", u"rtkWString",
     u"rtkBoolean",  u"rtkEnumeration", u"rtkSet",       u"rtkDate",      u"rtkTime",    u"rtkDatetime",
     u"rtkVariant",  u"rtkArray",       u"rtkDynArray",  u"rtkRecord",    u"rtkClass",   u"rtkInterface",
     u"rtkPointer",  u"rtkMethod",      u"rtkProcedure", u"rtkException", u"rtkClassRef"});
constexpr auto cSchemaDataTypes = EnumItems({u"xsdComplexType",
                                             u"xsdArrayOfSimpleType",
                                             u"xsdArrayOfComplexType",
                                             u"xsdByte",
                                             u"xsdShort",
                                             u"xsdInt",
                                             u"xsdLong",
                                             u"xsdUnsignedByte",
                                             u"xsdUnsignedShort",
                                             u"xsdUnsignedInt",
                                             u"xsdUnsignedLong",
                                             u"xsdFloat",
                                             u"xsdDouble",
                                             u"xsdDecimal",
                                             u"xsdString",
                                             u"xsdBase64Binary",
                                             u"xsdHexBinary",
                                             u"xsdBoolean",
                                             u"xsdDate",
                                             u"xsdTime",
                                             u"xsdDateTime",
                                             u"xsdDuration"});
constexpr auto cJSONDataTypes = EnumItems(QzJSONValueTypes);
constexpr auto cNullableBools = EnumItems({u"nbNull", u"nbYes", u"nbNo"});
constexpr auto cDataSerializationFormatTypes = EnumItems(QzDataSerializationFormatType);
constexpr auto cTypeNameTypes = EnumItems({u"tntTypeName", u"tntQualifiedName", u"tntSchemaName"});

} // namespace

QZ_REGISTER_TYPES(TQzMainTypeKind, TQzTypeKind, TQzSchemaDataType, TQzJSONDataType, TQzNullableBool,
                  TQzDataSerializationFormatType, TQzTypeNameType);

constinit const TTypeInfo TTypeDescription<TQzMainTypeKind>::Info =
    DescribeEnum<TQzMainTypeKind>(u"TQzMainTypeKind", cUnit, cMainTypeKinds);
constinit const TTypeInfo TTypeDescription<TQzTypeKind>::Info =
    DescribeEnum<TQzTypeKind>(u"TQzTypeKind", cUnit, cTypeKinds);
constinit const TTypeInfo TTypeDescription<TQzSchemaDataType>::Info =
    DescribeEnum<TQzSchemaDataType>(u"TQzSchemaDataType", cUnit, cSchemaDataTypes);
constinit const TTypeInfo TTypeDescription<TQzJSONDataType>::Info =
    DescribeEnum<TQzJSONDataType>(u"TQzJSONDataType", cUnit, cJSONDataTypes);
constinit const TTypeInfo TTypeDescription<TQzNullableBool>::Info =
    DescribeEnum<TQzNullableBool>(u"TQzNullableBool", cUnit, cNullableBools);
constinit const TTypeInfo TTypeDescription<TQzDataSerializationFormatType>::Info =
    DescribeEnum<TQzDataSerializationFormatType>(u"TQzDataSerializationFormatType", cUnit,
                                                 cDataSerializationFormatTypes);
constinit const TTypeInfo TTypeDescription<TQzTypeNameType>::Info =
    DescribeEnum<TQzTypeNameType>(u"TQzTypeNameType", cUnit, cTypeNameTypes);

} // namespace qz
