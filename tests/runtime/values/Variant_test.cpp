#include <qz/runtime/values/Variant.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "tests/support/AtOnce.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleVariants.h"
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {
namespace {

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

TEST(VariantArray, NestsDeeply) {
    Variant Nested = 1;
    for (int I = 0; I < 300000; ++I)
        Nested = VarArrayOf({Nested});
    EXPECT_TRUE(VarIsArray(Nested));
}

constexpr double cInf = std::numeric_limits<double>::infinity();

// What a conversion gives, as text: "cast" and "over" for its exceptions.
UnicodeString Outcome(const std::function<UnicodeString()>& AConversion) {
    try {
        return AConversion();
    } catch (const EVariantTypeCastError&) {
        return u"cast";
    } catch (const EVariantOverflowError&) {
        return u"over";
    }
}

// Numbers are read and written in the neutral form.
class VariantConvert : public testing::Test {
protected:
    VariantConvert() { SetDefaultFormatSettings(TFormatSettings::Neutral()); }
    ~VariantConvert() override { SetDefaultFormatSettings(FBefore); }

private:
    TFormatSettings FBefore = DefaultFormatSettings();
};

struct TRow {
    Variant Value;
    TVarType Type;
    const char16_t* Text;
    const char16_t*
        Numbers; // integer, int64, uint64, real, bool, currency, decimal; one for all where they are the same
};

std::vector<TRow> Samples() {
    const TSysDecimal Third(333, true, 3);
    return {
        {{}, varEmpty, u"", u"0"},
        {Variant::Null(), varNull, u"", u"cast"},
        {INT32_MIN, varInteger, u"-2147483648",
         u"-2147483648 -2147483648 over -2147483648 -1 -2147483648 -2147483648"},
        {1.5, varDouble, u"1.5", u"2 2 2 1.5 -1 1.5 1.5"},
        {-1E30, varDouble, u"-1E30", u"over over over -1E30 -1 over over"},
        {std::nan(""), varDouble, u"NAN", u"over over over NAN -1 over over"},
        {9223372036854775808.0, varDouble, u"9.22337203685478E18",
         u"over over 9223372036854775808 9.22337203685478E18 -1 over 9223372036854775808"},
        {Currency(-2.5), varCurrency, u"-2.5", u"-2 -2 over -2.5 -1 -2.5 -2.5000"},
        {TDateTime(1.25), varDate, u"12/31/1899 06:00:00", u"1 1 1 1.25 -1 1.25 1.25"},
        {TDateTime(1E9), varDate, u"cast",
         u"1000000000 1000000000 1000000000 1000000000 -1 1000000000 1000000000"},
        {WideString(u"0"), varOleStr, u"0", u"0"},
        {true, varBoolean, u"True", u"-1 -1 over -1 -1 -1 -1"},
        {Third, varDecimal, u"-0.333", u"0 0 0 -0.333 -1 -0.333 -0.333"},
        {INT64_MIN, varInt64, u"-9223372036854775808",
         u"over -9223372036854775808 over -9.22337203685478E18 -1 over -9223372036854775808"},
        {UINT64_MAX, varUInt64, u"18446744073709551615",
         u"over over 18446744073709551615 1.84467440737096E19 -1 over 18446744073709551615"},
        {AnsiString(" 12"), varString, u" 12", u"12 12 12 12 -1 12 12"},
        {u"$FFFFFFFF", varUString, u"$FFFFFFFF", u"-1 4294967295 4294967295 cast cast cast cast"},
        {u"1e3", varUString, u"1e3", u"1000 1000 1000 1000 -1 1000 1000"},
        {u"True", varUString, u"True", u"cast cast cast cast -1 cast cast"},
        {u"", varUString, u"", u"cast"},
        {Variant::Dispatch(nullptr), varDispatch, u"cast", u"cast"},
        {VarArrayOf({1}), varArray | varVariant, u"cast", u"cast"},
    };
}

TEST_F(VariantConvert, EachTypeToEachValue) {
    for (const TRow& Row : Samples()) {
        const Variant& V = Row.Value;
        SCOPED_TRACE(testing::Message() << VarType(V) << " " << UnicodeString(Row.Text));
        EXPECT_EQ(VarType(V), Row.Type);
        EXPECT_EQ(Outcome([&] { return VarToStr(V); }), Row.Text);
        EXPECT_EQ(Outcome([&] { return VarToLStr(V).ToUnicode(); }), Row.Text);
        const UnicodeString Numbers[] = {Outcome([&] { return IntToStr(VarToInteger(V)); }),
                                         Outcome([&] { return IntToStr(VarToInt64(V)); }),
                                         Outcome([&] { return IntToStr(VarToUInt64(V)); }),
                                         Outcome([&] { return FloatToStr(VarToReal(V)); }),
                                         Outcome([&] { return BoolToStr(VarToBool(V)); }),
                                         Outcome([&] { return CurrToStr(VarToCurrency(V)); }),
                                         Outcome([&] { return DecimalToStr(VarToDecimal(V)); })};
        TStringList Expected;
        Expected.SetDelimiter(u' ');
        Expected.SetDelimitedText(Row.Numbers);
        for (int I = 0; I < 7; ++I)
            EXPECT_EQ(Numbers[I], Expected[Expected.Count() == 1 ? 0 : I]) << "conversion " << I;
    }
}

TEST_F(VariantConvert, AsTypeGivesTheTypeOrRaises) {
    for (const TRow& Row : Samples()) {
        EXPECT_EQ(VarType(VarAsType(Row.Value, Row.Type)), Row.Type);
        EXPECT_EQ(Outcome([&] { return VarToStr(VarAsType(Row.Value, varRecord)); }), u"cast");
    }
    EXPECT_THROW(VarAsType(256, varByte), EVariantOverflowError);
    EXPECT_THROW(VarAsType(-129, varShortInt), EVariantOverflowError);
    EXPECT_THROW(VarAsType(1E39, varSingle), EVariantOverflowError);
    EXPECT_THROW(VarToDateTime(Variant(u"tomorrow")), EVariantTypeCastError);
    EXPECT_EQ(VarToStrDef(Variant::Null(), u"none") + VarToStrDef({}, u"none"), u"none");
    const Variant Bytes = VarAsType(VarArrayOf({1, u"2", 254.5}), varArray | varByte);
    EXPECT_EQ(VarArrayData<std::uint8_t>(Bytes)[2], 254);
    EXPECT_THROW(VarAsType(VarArrayOf({1, -2}), varArray | varByte), EVariantOverflowError);
}

TEST_F(VariantConvert, Order) {
    TInterfacedObject* const Object = TInterfacedObject::Create();
    const Ref<IInterface> Interface = Object;
    const auto Check = [](TVariantRelationship ARelation, const auto&... AValues) {
        const Variant Values[] = {Variant(AValues)...}; // by pairs
        for (std::size_t I = 0; I < std::size(Values); I += 2) {
            SCOPED_TRACE(testing::Message()
                         << "relation " << static_cast<int>(ARelation) << ", pair " << I / 2);
            EXPECT_EQ(VarCompareValue(Values[I], Values[I + 1]), ARelation);
            EXPECT_EQ(Values[I] == Values[I + 1], ARelation == vrEqual);
            EXPECT_EQ(Values[I + 1] > Values[I], ARelation == vrLessThan);
            EXPECT_EQ(Values[I + 1] < Values[I], ARelation == vrGreaterThan);
        }
    };
    Check(vrGreaterThan, 32768, 32767, u"a", u"B", 9007199254740993, u"9007199254740992", TDateTime(2.5),
          2.25);
    Check(vrLessThan, -1, UINT64_MAX, INT64_MIN, 9223372036854775808U, true, 0, Variant(), 1, Variant(), u"a",
          Currency::FromUnits(INT64_MAX), INT64_MAX, TSysDecimal(151, true, 2), TSysDecimal(15, true, 1));
    Check(vrEqual, AnsiString("abc"), WideString(u"abc"), Currency(0.1), u"0.1", Currency(0.1), 0.1,
          TSysDecimal(150, false, 2), TSysDecimal(15, false, 1), TDateTime(2.5), u"01/01/1900 12:00:00",
          Variant::Error(5), Variant::Error(5), Interface, Variant::Dispatch(Interface), Object, Object);
    Check(vrNotEqual, Variant::Null(), 1, std::nan(""), 1, Interface, Ref<IInterface>(), Object, u"text");
    EXPECT_THROW(static_cast<void>(Variant(1) < Variant(u"one")), EVariantTypeCastError);
    EXPECT_THROW(static_cast<void>(VarArrayOf({1}) < Variant(1)), EVariantInvalidOpError);
}

TEST(SysDecimal, TextAndRounding) {
    const TFormatSettings& Neutral = TFormatSettings::Neutral();
    for (const auto& Case :
         Rows(u" -1.50  => -1.50", u"79228162514264337593543950335 => 79228162514264337593543950335",
              u"0.0000000000000000000000000001 => 0.0000000000000000000000000001",
              u"0.00000000000000000000000000005 => 0.0000000000000000000000000000",
              u"0.000000000000000000000000000051 => 0.0000000000000000000000000001",
              u"7.92281625142643375935439503359 => 7.922816251426433759354395034",
              u"7922816251426433759354395033.59 => 7922816251426433759354395034", u".5 => 0.5", u"-0 => 0")) {
        TSysDecimal Value;
        ASSERT_TRUE(TryStrToDecimal(Case[0], Value, Neutral)) << Case[0];
        EXPECT_EQ(DecimalToStr(Value, Neutral), Case[1]);
        EXPECT_EQ(Value.ToDouble(), StrToFloat(Case[1], Neutral));
    }
    for (const char16_t* Bad : {u"79228162514264337593543950336", u".", u"1.2.3", u"1e3", u""}) {
        TSysDecimal Value;
        EXPECT_FALSE(TryStrToDecimal(Bad, Value, Neutral)) << ToUtf8(Bad);
    }
}

TEST(SysDecimal, FromDoublesAndIntoCurrency) {
    const TFormatSettings& Neutral = TFormatSettings::Neutral();
    for (const double Value : {0.1, -1E-10, 123456.789, 1E28, -7.5E27, 4503599627370497.5}) {
        TSysDecimal Decimal;
        ASSERT_TRUE(TSysDecimal::TryFromDouble(Value, Decimal));
        EXPECT_EQ(Decimal.ToDouble(), Value) << DecimalToStr(Decimal, Neutral);
    }
    TSysDecimal Decimal;
    EXPECT_FALSE(TSysDecimal::TryFromDouble(1E29, Decimal) || TSysDecimal::TryFromDouble(cInf, Decimal));
    EXPECT_TRUE(TSysDecimal::TryFromDouble(1E-300, Decimal) && Decimal.IsZero());

    Currency Amount;
    EXPECT_TRUE(TryStrToCurr(u"-922337203685477.58085", Amount, Neutral)) << "half to even";
    EXPECT_EQ(Amount.Units(), INT64_MIN);
    EXPECT_EQ(Currency(0.00005).Units() + Currency(-2.00015).Units(), -20002);
    EXPECT_THROW(Currency::FromUnits(INT64_MAX) + Currency::FromUnits(1), ERangeError);
}

// Amounts beyond the 53 bits of a float, and numbers that a float would not tell from their neighbours.
TEST_F(VariantConvert, LosesNoDigitsOnTheWay) {
    EXPECT_EQ(Currency(771918137005152.0).Units(), 7719181370051520000);
    EXPECT_THROW(Currency(922337203685477.6), ERangeError);
    EXPECT_EQ(VarToInt64(u"$FFFFFFFFFFFFFFFF"), -1);
    EXPECT_EQ(VarToInt64(u"9223372036854775807.0"), std::numeric_limits<std::int64_t>::max());
}

} // namespace
} // namespace qz
