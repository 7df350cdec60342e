#include <qz/runtime/values/EnumNames.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/SampleTypes.h"

namespace qz {
namespace {

enum class TSigned : std::int64_t { sgLow = INT64_MIN, sgNone = -1, sgHigh = INT64_MAX };
using TWordSet = TSet<TDay, 16>;
struct TVastSet {
    std::uint8_t Bytes[4096];
};

} // namespace
} // namespace qz

QZ_TYPE_INFO(qz::TSigned);
QZ_TYPE_INFO(qz::TWordSet);
QZ_TYPE_INFO(qz::TVastSet);

namespace qz {

constexpr TEnumItem cSigned[] = {{u"sgLow", INT64_MIN}, {u"sgNone", -1}, {u"sgHigh", INT64_MAX}};
constinit const TTypeInfo TInfo<TSigned>::Info = DescribeEnum<TSigned>(u"TSigned", u"Test", cSigned);
constinit const TTypeInfo TInfo<TWordSet>::Info = DescribeOf<TWordSet, TDay>(tkSet, u"TWordSet", u"Test");
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
        {TypeInfo<TDays>(), 0x43, u"dyMon,dyTue,dySun"},
        {TypeInfo<TWordSet>(), 0x8001, u"dyMon,15"},
        {TypeInfo<TManyDays>(), INT64_MIN | 0x40, u"dySun,63"},
        {TypeInfo<TVastSet>(), INT64_MIN | 0x40, u"dySun,63"}, // no bit tells of the others
    };
    for (const TRow& Row : cRows) {
        EXPECT_EQ(SetToString(Row.Type, Row.Bits), Row.Text);
        const UnicodeString Bracketed = SetToString(Row.Type, Row.Bits, true);
        EXPECT_EQ(Bracketed, u'[' + UnicodeString(Row.Text) + u']');
        EXPECT_EQ(StringToSet(Row.Type, Row.Text), Row.Bits);
        EXPECT_EQ(StringToSet(Row.Type, Bracketed), Row.Bits);
    }
    EXPECT_EQ(SetToString(TypeInfo<TDays>(), 0x140), u"dySun"); // what the set does not hold
    for (const char16_t* Text : {u" [dysun dymon] ", u",dyMon ,, dySun,", u"6\tDYMON\r\n", u"[0,6,0]"})
        EXPECT_EQ(StringToSet(TypeInfo<TDays>(), Text), 0x41) << ToUtf8(Text);
}

TEST(EnumNames, WhatIsNoItemIsRefused) {
    for (const char16_t* Text :
         {u"dyWed", u"[dyMon", u"dyMon]", u"[", u"]", u"[[dyMon]]", u"8", u"-1", u"dyMon;dyTue"})
        EXPECT_THROW(StringToSet(TypeInfo<TDays>(), Text), EPropertyConvertError) << ToUtf8(Text);
    EXPECT_THROW(StringToSet(TypeInfo<TManyDays>(), u"64"), EPropertyConvertError);
}

} // namespace
} // namespace qz
