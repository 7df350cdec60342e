#include "common/uQzTypes/TypeKinds.h"

#include <array>

#include "runtime/reflection/Describe.h"

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzTypes";

// The names of an enumeration that counts from 0.
template <std::size_t Count>
constexpr std::array<TEnumItem, Count> Items(const std::u16string_view (&ANames)[Count]) noexcept {
    std::array<TEnumItem, Count> Result;
    for (std::size_t I = 0; I < Count; ++I)
        Result[I] = {ANames[I], static_cast<std::int64_t>(I)};
    return Result;
}

constexpr auto cMainTypeKinds = Items({u"mtkUnknown", u"mtkInteger", u"mtkFloat", u"mtkString", u"mtkBoolean",
                                       u"mtkDateTime", u"mtkArray", u"mtkStructure", u"mtkOther"});
constexpr auto cTypeKinds = Items(
    {u"rtkUnknown",  u"rtkByte",        u"rtkWord",      u"rtkLongWord",  u"rtkUInt64",  u"rtkShortInt",
     u"rtkSmallInt", u"rtkLongInt",     u"rtkInt64",     u"rtkSingle",    u"rtkDouble",  u"rtkExtended",
     u"rtkChar",     u"rtkAChar",       u"rtkWChar",     u"rtkString",    u"rtkAString", u"rtkWString",
     u"rtkBoolean",  u"rtkEnumeration", u"rtkSet",       u"rtkDate",      u"rtkTime",    u"rtkDatetime",
     u"rtkVariant",  u"rtkArray",       u"rtkDynArray",  u"rtkRecord",    u"rtkClass",   u"rtkInterface",
     u"rtkPointer",  u"rtkMethod",      u"rtkProcedure", u"rtkException", u"rtkClassRef"});
constexpr auto cSchemaDataTypes = Items({u"xsdComplexType",
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
constexpr auto cJSONDataTypes = Items(QzJSONValueTypes);
constexpr auto cNullableBools = Items({u"nbNull", u"nbYes", u"nbNo"});
constexpr auto cDataSerializationFormatTypes = Items(QzDataSerializationFormatType);
constexpr auto cTypeNameTypes = Items({u"tntTypeName", u"tntQualifiedName", u"tntSchemaName"});

} // namespace

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
