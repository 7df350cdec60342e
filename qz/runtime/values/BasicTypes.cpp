#include <qz/runtime/values/BasicTypes.h>

#include <qz/runtime/base/Set.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

constexpr std::u16string_view cSystem = u"System";

constexpr TEnumItem cBooleans[] = {{u"False", 0}, {u"True", 1}};

constexpr TTypeInfo DescribeBoolean() noexcept {
    TTypeInfo Info = DescribeType<bool>(tkEnumeration, u"Boolean", cSystem);
    Info.IsSigned = false;
    Info.Items = cBooleans;
    return Info;
}

constexpr TTypeInfo DescribeChar() noexcept {
    TTypeInfo Info = DescribeType<char>(tkChar, u"AnsiChar", cSystem);
    Info.IsSigned = false;
    return Info;
}

constexpr TFieldInfo cGuidFields[] = {Field<&TGUID::D1>(u"D1"), Field<&TGUID::D2>(u"D2"),
                                      Field<&TGUID::D3>(u"D3"), Field<&TGUID::D4>(u"D4")};

} // namespace

QZ_REGISTER_TYPES(std::int8_t, std::uint8_t, std::int16_t, std::uint16_t, std::int32_t, std::uint32_t,
                  std::int64_t, std::uint64_t, float, double, Extended, bool, char, char16_t, UnicodeString,
                  WideString, AnsiString, UTF8String, RawByteString, TBytes, decltype(TGUID::D4), TGUID,
                  TCharSet, void*, TClass, IInterface);

template <class T> using TInfo = TTypeDescription<T>;

constinit const TTypeInfo TInfo<std::int8_t>::Info =
    DescribeType<std::int8_t>(tkInteger, u"ShortInt", cSystem);
constinit const TTypeInfo TInfo<std::uint8_t>::Info = DescribeType<std::uint8_t>(tkInteger, u"Byte", cSystem);
constinit const TTypeInfo TInfo<std::int16_t>::Info =
    DescribeType<std::int16_t>(tkInteger, u"SmallInt", cSystem);
constinit const TTypeInfo TInfo<std::uint16_t>::Info =
    DescribeType<std::uint16_t>(tkInteger, u"Word", cSystem);
constinit const TTypeInfo TInfo<std::int32_t>::Info =
    DescribeType<std::int32_t>(tkInteger, u"Integer", cSystem);
constinit const TTypeInfo TInfo<std::uint32_t>::Info =
    DescribeType<std::uint32_t>(tkInteger, u"Cardinal", cSystem);
constinit const TTypeInfo TInfo<std::int64_t>::Info = DescribeType<std::int64_t>(tkInt64, u"Int64", cSystem);
constinit const TTypeInfo TInfo<std::uint64_t>::Info =
    DescribeType<std::uint64_t>(tkInt64, u"UInt64", cSystem);
constinit const TTypeInfo TInfo<float>::Info = DescribeType<float>(tkFloat, u"Single", cSystem);
constinit const TTypeInfo TInfo<double>::Info = DescribeType<double>(tkFloat, u"Double", cSystem);
constinit const TTypeInfo TInfo<Extended>::Info = DescribeType<Extended>(tkFloat, u"Extended", cSystem);
constinit const TTypeInfo TInfo<bool>::Info = DescribeBoolean();
constinit const TTypeInfo TInfo<char>::Info = DescribeChar();
constinit const TTypeInfo TInfo<char16_t>::Info = DescribeType<char16_t>(tkWChar, u"Char", cSystem);
constinit const TTypeInfo TInfo<UnicodeString>::Info =
    DescribeType<UnicodeString>(tkUString, u"string", cSystem);
constinit const TTypeInfo TInfo<WideString>::Info =
    DescribeType<WideString>(tkWString, u"WideString", cSystem);
constinit const TTypeInfo TInfo<AnsiString>::Info =
    DescribeType<AnsiString>(tkLString, u"AnsiString", cSystem);
constinit const TTypeInfo TInfo<UTF8String>::Info =
    DescribeType<UTF8String>(tkLString, u"UTF8String", cSystem);
constinit const TTypeInfo TInfo<RawByteString>::Info =
    DescribeType<RawByteString>(tkLString, u"RawByteString", cSystem);
constinit const TTypeInfo TInfo<TBytes>::Info =
    DescribeOf<TBytes, std::uint8_t>(tkDynArray, u"TBytes", u"System");
constinit const TTypeInfo TInfo<decltype(TGUID::D4)>::Info =
    DescribeOf<decltype(TGUID::D4), std::uint8_t>(tkArray, u"TGUIDTail", cSystem);
constinit const TTypeInfo TInfo<TGUID>::Info = DescribeRecord<TGUID>(u"TGUID", cSystem, cGuidFields);
constinit const TTypeInfo TInfo<TCharSet>::Info =
    DescribeOf<TCharSet, char>(tkSet, u"TSysCharSet", u"System");
constinit const TTypeInfo TInfo<void*>::Info = DescribeType<void*>(tkPointer, u"Pointer", cSystem);
constinit const TTypeInfo TInfo<TClass>::Info = DescribeType<TClass>(tkClassRef, u"TClass", cSystem);
constinit const TTypeInfo TInfo<IInterface>::Info = DescribeInterface<IInterface>(u"IInterface", cSystem);

} // namespace qz
