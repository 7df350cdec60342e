#include <qz/runtime/values/Variant.h>

#include <bit>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include "tests/support/SampleVariants.h"
#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {
namespace {

TEST(Variant, KeepsFloatsBitByBit) {
    constexpr std::uint64_t cBits[] = {0x8000000000000000, 0x7FF0000000000123, 1, 0xFFF0000000000000};
    for (const std::uint64_t Bits : cBits) {
        const auto Value = std::bit_cast<double>(Bits);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(VarToReal(Variant(Value))), Bits);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(VarToDateTime(Variant(TDateTime(Value))).Value), Bits);
    }
}

TEST(Variant, SharesAndCountsWhatItHolds) {
    const UnicodeString Long(1 << 19, u'x');
    const AnsiString Bytes("bytes");
    TInterfacedObject* const Object = TInterfacedObject::Create();
    const Ref<IInterface> Guard = Object;
    {
        const Variant Values[] = {Long, Bytes, Guard, Variant::Dispatch(Guard), Object};
        Variant Copies[std::size(Values)];
        for (std::size_t I = 0; I < std::size(Values); ++I)
            Copies[I] = Values[I];
        EXPECT_EQ(Long.RefCount() * 10 + Bytes.RefCount(), 33);
        EXPECT_EQ(Object->RefCount(), 5);
        EXPECT_EQ(VarToObject(Copies[4]), Object);
        Copies[0] = std::move(Copies[2]);
        Variant& Same = Copies[3];
        Copies[3] = std::move(Same);
        EXPECT_TRUE(VarIsEmpty(Copies[2]));
        EXPECT_EQ(Long.RefCount() * 10 + Object->RefCount(), 25);
        EXPECT_EQ(VarToInterface(Copies[0]), Guard);
    }
    EXPECT_EQ(Long.RefCount() + Bytes.RefCount() + Object->RefCount(), 3);
}

TEST(Variant, ThreadsShareOneText) {
    const Variant Text = UnicodeString(1000, u'y');
    const Variant Array = VarArrayOf({Text, 1, VarArrayOf({Text})});
    AtOnce(4, [&](int I) {
        for (int Round = 0; Round < 2000; ++Round) {
            Variant Own = Text;
            Variant List = Array;
            VarArrayPut(List, I, 1);
            Own = VarArrayGet(List, 0);
            EXPECT_TRUE(Own == Text && VarArrayGet(List, 1) == Variant(I));
        }
    });
    EXPECT_EQ(VarToInteger(VarArrayGet(Array, 1)), 1);
}

TEST(VariantArray, IsAValueWithBounds) {
    Variant First = VarArrayCreate({-2, 1});
    Variant Second = First;
    VarArrayPut(First, First, -2);
    VarArrayPut(First, u"x", 1);
    EXPECT_EQ(VarType(VarArrayGet(Second, 1)), varEmpty) << "a copy of its own";
    EXPECT_EQ(VarType(VarArrayGet(First, -2)), varArray | varVariant);
    EXPECT_EQ(VarToStr(VarArrayGet(First, 1)), u"x");
    EXPECT_EQ(VarArrayLowBound(First) * 10 + VarArrayHighBound(First), -19);
    for (const int Index : {2, -3, INT32_MIN, INT32_MAX})
        EXPECT_THROW(VarArrayGet(First, Index), EVariantBadIndexError);
    EXPECT_THROW(VarArrayGet(First, {0, 0}), EVariantBadIndexError);
    EXPECT_THROW(VarArrayLowBound(Variant(1)), EVariantInvalidOpError);
}

TEST(VariantArray, RefusesBoundsWithoutTakingMemory) {
    const std::initializer_list<int> cBad[] = {
        {1, -1}, {INT32_MIN, INT32_MAX}, {0, INT32_MAX, 0, 0}, {0, 65535, 0, 65535, 0, 65535}, {0},
        {},      {0, INT32_MAX - 1}};
    for (const std::initializer_list<int>& Bounds : cBad)
        EXPECT_THROW(VarArrayCreate(Bounds, varSmallint), EVariantArrayCreateError);
    for (const TVarType Type :
         {varEmpty, varNull, varRecord, varAny, varStrArg, TVarType{15}, TVarType{varArray | 3}})
        EXPECT_THROW(VarArrayCreate({0, 1}, Type), EVariantArrayCreateError) << Type;
    Variant Array = VarArrayCreate({INT32_MAX - 1, INT32_MAX, INT32_MIN, INT32_MIN}, varString);
    VarArrayPut(Array, u"end", {INT32_MAX, INT32_MIN});
    EXPECT_THROW(VarArrayRedim(Array, INT32_MAX), EVariantArrayCreateError);
    EXPECT_EQ(VarToStr(VarArrayGet(Array, {INT32_MAX, INT32_MIN})), u"end") << "unchanged";
    EXPECT_EQ(VarArrayHighBound(VarArrayCreate({1, 0, 5, 7}, varByte), 1), 0);
}

TEST(VariantArray, PacksElementsOfEachType) {
    const auto Check = [](const Variant& Value, TVarType Type) {
        Variant Array = VarArrayCreate({1, 2, 1, 3}, Type);
        VarArrayPut(Array, Value, {2, 3});
        const Variant Copy = Array;
        VarArrayPut(Array, VarArrayGet(Array, {1, 1}), {2, 3});
        EXPECT_EQ(VarType(Array), varArray | Type);
        EXPECT_EQ(VarType(VarArrayGet(Copy, {2, 3})), Type);
        EXPECT_TRUE(VarArrayGet(Copy, {2, 3}) == Value) << Type;
        EXPECT_TRUE(VarArrayGet(Array, {2, 3}) == VarAsType({}, Type)) << Type;
    };
    for (const Variant& Value : SampleVariants())
        Check(Value, VarType(Value));
    Variant Grid = VarArrayCreate({0, 2, 10, 12}, varByte);
    VarArrayPut(Grid, 7, {1, 11});
    EXPECT_EQ(VarArrayData<std::uint8_t>(Grid).size(), 9U);
    EXPECT_EQ(VarArrayData<std::uint8_t>(Grid)[4], 7) << "the first index counts fastest";
    VarArrayRedim(Grid, 11);
    VarArrayRedim(Grid, 13);
    EXPECT_EQ(VarToInteger(VarArrayGet(Grid, {1, 11})) + VarToInteger(VarArrayGet(Grid, {1, 12})), 7);
    const Variant Before = Grid;
    VarArrayData<std::uint8_t>(Grid)[0] = 9;
    EXPECT_EQ(VarToInteger(VarArrayGet(Before, {0, 10})), 0);
    EXPECT_THROW(VarArrayPut(Grid, 256, {0, 10}), EVariantOverflowError);
    EXPECT_THROW(VarArrayData<std::int8_t>(Grid), EVariantTypeCastError);
    EXPECT_EQ(VarToInteger(VarArrayGet(Grid, {0, 10})), 9) << "unchanged";
}

TEST(VariantArray, CountsInterfacesAndDeepNests) {
    TInterfacedObject* const Object = TInterfacedObject::Create();
    const Ref<IInterface> Guard = Object;
    {
        Variant Array = VarArrayCreate({0, 9}, varUnknown);
        for (int I = 0; I < 10; ++I)
            VarArrayPut(Array, Guard, I);
        Variant Copy = Array;
        VarArrayRedim(Copy, 4);
        VarArrayPut(Array, Variant(), 0);
        EXPECT_EQ(Object->RefCount(), 15);
        EXPECT_THROW(VarArrayPut(Array, 1, 1), EVariantTypeCastError);
        EXPECT_THROW(VarAsType(Guard, varDispatch), EVariantTypeCastError);
    }
    EXPECT_EQ(Object->RefCount(), 1);
    Variant Nested = 1;
    for (int I = 0; I < 300000; ++I)
        Nested = VarArrayOf({Nested});
    EXPECT_TRUE(VarIsArray(Nested));
}

} // namespace
} // namespace qz
