#include <qz/runtime/values/ArrayTypes.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Object.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/WordBool.h>

namespace qz {
namespace {

constexpr std::u16string_view cSystem = u"System";

constexpr TEnumItem cWordBooleans[] = {{u"True", -1}, {u"False", 0}};

constexpr TTypeInfo DescribeWordBool() noexcept {
    TTypeInfo Info = DescribeType<WordBool>(tkEnumeration, u"WordBool", cSystem);
    Info.IsSigned = true;
    Info.Items = cWordBooleans;
    return Info;
}

template <class T> constexpr TTypeInfo DescribeArray(std::u16string_view AName) noexcept {
    return DescribeOf<T, typename T::value_type>(tkDynArray, AName, cSystem);
}

QZ_REGISTER_TYPES(WordBool, TShortIntDynArray, TSmallIntDynArray, TWordDynArray, TIntegerDynArray,
                  TCardinalDynArray, TInt64DynArray, TSingleDynArray, TDoubleDynArray, TBooleanDynArray,
                  TStringDynArray, TWideStringDynArray, TObjectDynArray);

} // namespace

template <class T> using TInfo = TTypeDescription<T>;

constinit const TTypeInfo TInfo<WordBool>::Info = DescribeWordBool();
constinit const TTypeInfo TInfo<TShortIntDynArray>::Info =
    DescribeArray<TShortIntDynArray>(u"TShortIntDynArray");
constinit const TTypeInfo TInfo<TSmallIntDynArray>::Info =
    DescribeArray<TSmallIntDynArray>(u"TSmallIntDynArray");
constinit const TTypeInfo TInfo<TWordDynArray>::Info = DescribeArray<TWordDynArray>(u"TWordDynArray");
constinit const TTypeInfo TInfo<TIntegerDynArray>::Info =
    DescribeArray<TIntegerDynArray>(u"TIntegerDynArray");
constinit const TTypeInfo TInfo<TCardinalDynArray>::Info =
    DescribeArray<TCardinalDynArray>(u"TCardinalDynArray");
constinit const TTypeInfo TInfo<TInt64DynArray>::Info = DescribeArray<TInt64DynArray>(u"TInt64DynArray");
constinit const TTypeInfo TInfo<TSingleDynArray>::Info = DescribeArray<TSingleDynArray>(u"TSingleDynArray");
constinit const TTypeInfo TInfo<TDoubleDynArray>::Info = DescribeArray<TDoubleDynArray>(u"TDoubleDynArray");
constinit const TTypeInfo TInfo<TBooleanDynArray>::Info =
    DescribeArray<TBooleanDynArray>(u"TBooleanDynArray");
constinit const TTypeInfo TInfo<TStringDynArray>::Info = DescribeArray<TStringDynArray>(u"TStringDynArray");
constinit const TTypeInfo TInfo<TWideStringDynArray>::Info =
    DescribeArray<TWideStringDynArray>(u"TWideStringDynArray");
constinit const TTypeInfo TInfo<TObjectDynArray>::Info =
    DescribeArray<TObjectDynArray>(u"TArray<System.TObject>");

} // namespace qz
