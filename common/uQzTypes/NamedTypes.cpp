#include "common/uQzTypes/NamedTypes.h"

#include "runtime/reflection/Describe.h"

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzTypes";

constexpr TEnumItem cTypeKinds[] = {
    {u"tkUnknown", 0},  {u"tkInteger", 1},   {u"tkChar", 2},     {u"tkEnumeration", 3},
    {u"tkFloat", 4},    {u"tkString", 5},    {u"tkSet", 6},      {u"tkClass", 7},
    {u"tkMethod", 8},   {u"tkWChar", 9},     {u"tkLString", 10}, {u"tkWString", 11},
    {u"tkVariant", 12}, {u"tkArray", 13},    {u"tkRecord", 14},  {u"tkInterface", 15},
    {u"tkInt64", 16},   {u"tkDynArray", 17}, {u"tkUString", 18}, {u"tkClassRef", 19},
    {u"tkPointer", 20}, {u"tkProcedure", 21}};

} // namespace

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
