#include <qz/common/uQzTypes/NamedTypes.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/EnumItems.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzTypes";

constexpr auto cTypeKinds =
    EnumItems({u"tkUnknown", u"tkInteger",  u"tkChar",    u"tkEnumeration", u"tkFloat",   u"tkString",
               u"tkSet",     u"tkClass",    u"tkMethod",  u"tkWChar",       u"tkLString", u"tkWString",
               u"tkVariant", u"tkArray",    u"tkRecord",  u"tkInterface",   u"tkInt64",   u"tkDynArray",
               u"tkUString", u"tkClassRef", u"tkPointer", u"tkProcedure"});

} // namespace

QZ_REGISTER_TYPES(QzXMLString, QzJSONString, TValArray, TExtendedDynArray, TVariantDynArray,
                  TDateTimeDynArray, TUInt64DynArray, TTypeKind, TTypeKindArray);

template <class T> using TInfo = TTypeDescription<T>;

constinit const TTypeInfo TInfo<QzXMLString>::Info =
    DescribeType<QzXMLString>(tkUString, u"QzXMLString", cUnit);
constinit const TTypeInfo TInfo<QzJSONString>::Info =
    DescribeType<QzJSONString>(tkUString, u"QzJSONString", cUnit);
constinit const TTypeInfo TInfo<TValArray>::Info =
    DescribeOf<TValArray, TValue>(tkDynArray, u"TValArray", cUnit);
constinit const TTypeInfo TInfo<TExtendedDynArray>::Info =
    DescribeOf<TExtendedDynArray, Extended>(tkDynArray, u"TExtendedDynArray", cUnit);
constinit const TTypeInfo TInfo<TVariantDynArray>::Info =
    DescribeOf<TVariantDynArray, Variant>(tkDynArray, u"TVariantDynArray", cUnit);
constinit const TTypeInfo TInfo<TDateTimeDynArray>::Info =
    DescribeOf<TDateTimeDynArray, TDateTime>(tkDynArray, u"TDateTimeDynArray", cUnit);
constinit const TTypeInfo TInfo<TUInt64DynArray>::Info =
    DescribeOf<TUInt64DynArray, std::uint64_t>(tkDynArray, u"TUInt64DynArray", cUnit);

constinit const TTypeInfo TInfo<TTypeKind>::Info =
    DescribeEnum<TTypeKind>(u"TTypeKind", u"System.TypInfo", cTypeKinds);
constinit const TTypeInfo TInfo<TTypeKindArray>::Info =
    DescribeOf<TTypeKindArray, TTypeKind>(tkDynArray, u"TTypeKindArray", cUnit);

} // namespace qz
