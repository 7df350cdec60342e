#include <qz/runtime/values/EnumNames.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include <qz/runtime/base/Set.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

enum class TDay : std::uint8_t { dyMon, dyTue, dySun = 6 };
enum class TSigned : std::int64_t { sgLow = INT64_MIN, sgNone = -1, sgHigh = INT64_MAX };
using TByteSet = TSet<TDay, 8>;
using TWordSet = TSet<TDay, 16>;
using TFullSet = TSet<TDay, 64>;
struct TVastSet {
    std::uint8_t Bytes[4096];
};

} // namespace
} // namespace qz

QZ_TYPE_INFO(qz::TDay);
QZ_TYPE_INFO(qz::TSigned);
QZ_TYPE_INFO(qz::TByteSet);
QZ_TYPE_INFO(qz::TWordSet);
QZ_TYPE_INFO(qz::TFullSet);
QZ_TYPE_INFO(qz::TVastSet);

namespace qz {

template <class T> using TInfo = TTypeDescription<T>;
constexpr TEnumItem cDays[] = {{u"dyMon", 0}, {u"dyTue", 1}, {u"dySun", 6}};
constexpr TEnumItem cSigned[] = {{u"sgLow", INT64_MIN}, {u"sgNone", -1}, {u"sgHigh", INT64_MAX}};
constinit const TTypeInfo TInfo<TDay>::Info = DescribeEnum<TDay>(u"TDay", u"Test", cDays);
constinit const TTypeInfo TInfo<TSigned>::Info = DescribeEnum<TSigned>(u"TSigned", u"Test", cSigned);
constinit const TTypeInfo TInfo<TByteSet>::Info = DescribeOf<TByteSet, TDay>(tkSet, u"TByteSet", u"Test");
constinit const TTypeInfo TInfo<TWordSet>::Info = DescribeOf<TWordSet, TDay>(tkSet, u"TWordSet", u"Test");
constinit const TTypeInfo TInfo<TFullSet>::Info = DescribeOf<TFullSet, TDay>(tkSet, u"TFullSet", u"Test");
constinit const TTypeInfo TInfo<TVastSet>::Info = DescribeOf<TVastSet, TDay>(tkSet, u"TVastSet", u"Test");

namespace {

TEST(EnumNames, NamesAndValuesAreEachOthers) {
    for (const TEnumItem& Item : cSigned) {
        std::int64_t Value = 5;
        EXPECT_EQ(GetEnumName(TypeInfo<TSigned>(), Item.Value), Item.Name);
        EXPECT_TRUE(TryGetEnumValue(TypeInfo<TSigned>(), Item.Name, Value));
        EXPECT_EQ(Value, Item.Value);
    }
    EXPECT_EQ(GetEnumName(TypeInfo<TDay>(), 3), u"3");
    EXPECT_EQ(GetEnumName(TypeInfo<int>(), -7), u"-7");
    EXPECT_EQ(GetEnumName(TypeInfo<bool>(), 1), u"True");
    EXPECT_EQ(GetEnumValue(TypeInfo<TDay>(), "DYSUN"), 6);
    for (const char* Unknown : {"", "dy", "dySun ", "6", "$6"})
        EXPECT_EQ(GetEnumValue(TypeInfo<TDay>(), Unknown), -1) << Unknown;
}

TEST(EnumNames, SetsAreReadAsTheyAreWritten) {
    const struct TRow {
        PTypeInfo Type;
        std::int64_t Bits;
        const char16_t* Text;
    } cRows[] = {
        {TypeInfo<TByteSet>(), 0, u""},
        {TypeInfo<TByteSet>(), 0x43, u"dyMon,dyTue,dySun"},
        {TypeInfo<TByteSet>(), 0x80, u"7"},
        {TypeInfo<TWordSet>(), 0x8001, u"dyMon,15"},
        {TypeInfo<TFullSet>(), INT64_MIN | 0x40, u"dySun,63"},
        {TypeInfo<TVastSet>(), INT64_MIN | 0x40, u"dySun,63"}, // no bit tells of the others
    };
    for (const TRow& Row : cRows) {
        EXPECT_EQ(SetToString(Row.Type, Row.Bits), Row.Text);
        const UnicodeString Bracketed = SetToString(Row.Type, Row.Bits, true);
        EXPECT_EQ(Bracketed, u'[' + UnicodeString(Row.Text) + u']');
        EXPECT_EQ(StringToSet(Row.Type, Row.Text), Row.Bits);
        EXPECT_EQ(StringToSet(Row.Type, Bracketed), Row.Bits);
    }
    EXPECT_EQ(SetToString(TypeInfo<TByteSet>(), 0x140), u"dySun"); // what the set does not hold
    for (const char16_t* Text : {u" [dysun dymon] ", u",dyMon ,, dySun,", u"6\tDYMON\r\n", u"[0,6,0]"})
        EXPECT_EQ(StringToSet(TypeInfo<TByteSet>(), Text), 0x41) << ToUtf8(Text);
}

TEST(EnumNames, WhatIsNoItemIsRefused) {
    for (const char16_t* Text :
         {u"dyWed", u"[dyMon", u"dyMon]", u"[", u"]", u"[[dyMon]]", u"8", u"-1", u"dyMon;dyTue"})
        EXPECT_THROW(StringToSet(TypeInfo<TByteSet>(), Text), EPropertyConvertError) << ToUtf8(Text);
    EXPECT_THROW(StringToSet(TypeInfo<TFullSet>(), u"64"), EPropertyConvertError);
    EXPECT_EQ(Message([] { StringToSet(TypeInfo<TByteSet>(), u"dyMon, dyWed"); }),
              u"Invalid property element: dyWed");
}

} // namespace
} // namespace qz
