#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <set>

#include "tests/support/Message.h"
#include "tests/support/SystemPage.h"
#include <qz/common/uQzTypes.h>
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {
namespace {

// One variant of each type. Values are their codes modulo 100, so that a result tells by itself what it came from.
std::vector<Variant> Samples() {
    std::vector<Variant> Result;
    const auto Add = [&Result](const auto&... AValues) { (Result.emplace_back(AValues), ...); };
    Add(Variant(), Variant::Null(), std::int16_t(2), 3, 4.0F, 5.0, Currency(6), TDateTime(7),
        WideString(u"8"), Variant::Dispatch(nullptr), Variant::Error(10), true, Ref<IInterface>(),
        VarAsType(14, varDecimal), std::int8_t(16), std::uint8_t(17), std::uint16_t(18), std::uint32_t(19),
        std::int64_t(20), std::uint64_t(21), static_cast<TObject*>(nullptr), AnsiString("56"), u"58",
        VarArrayOf({92}));
    return Result;
}

UnicodeString Show(std::integral auto AValue) {
    return IntToStr(AValue);
}
UnicodeString Show(bool AValue) {
    return BoolToStr(AValue, true);
}
UnicodeString Show(double AValue) {
    return FloatToStr(AValue);
}
// What a function makes of each type: a default for those of no kind, the number for those listed, the text of Others
// where it is another, its message for all the rest.
struct TRow {
    const char* Name;
    std::function<UnicodeString(const Variant&, bool ARaise)> Call;
    std::set<int> Takes;
    UnicodeString Message;
    std::map<int, UnicodeString> Others{};
};

template <class T, class TDefault> auto Strict(T (*AFunction)(const Variant&, TDefault), TDefault ADefault) {
    return [=](const Variant& AValue, bool) { return Show(AFunction(AValue, ADefault)); };
}
template <class T, class TDefault>
auto Tolerant(T (*AFunction)(const Variant&, TDefault, bool), TDefault ADefault) {
    return [=](const Variant& AValue, bool ARaise) { return Show(AFunction(AValue, ADefault, ARaise)); };
}

std::set<int> With(std::set<int> AMore) {
    AMore.insert({2, 3, 16, 17, 18, 19});
    return AMore;
}

// What the two functions for Booleans make of the samples: of texts the first character counts.
const std::map<int, UnicodeString> cTruths = {{0, u"True"},   {2, u"True"},  {3, u"True"},  {8, u"False"},
                                              {11, u"True"},  {16, u"True"}, {17, u"True"}, {18, u"True"},
                                              {19, u"True"},  {20, u"True"}, {21, u"True"}, {256, u"False"},
                                              {258, u"False"}};

void CheckSample(const TRow& ARow, const Variant& ASample, bool AIsStrict) {
    const bool HasBools = ARow.Others.contains(0);
    const int Code = VarType(ASample);
    const bool IsUnknown = std::set<int>{0, 1, 10, 73}.contains(Code);
    const UnicodeString Default = HasBools ? u"True" : u"99";
    const auto Other = ARow.Others.find(Code);
    const bool Raises = !IsUnknown && Other == ARow.Others.end() && !ARow.Takes.contains(Code);
    const UnicodeString Expected = IsUnknown ? Default
        : Other != ARow.Others.end()         ? Other->second
        : Raises                             ? UnicodeString()
                                             : IntToStr(Code % 100);
    UnicodeString Actual;
    const UnicodeString Raised = Message([&] { Actual = ARow.Call(ASample, true); });
    EXPECT_EQ(Raises ? u"The given value is not a valid " + ARow.Message + u" value!" : u"", Raised)
        << ARow.Name << " of type " << Code;
    EXPECT_EQ(Actual, Expected) << ARow.Name << " of type " << Code;
    if (!AIsStrict) {
        EXPECT_EQ(Raises ? Default : Expected, ARow.Call(ASample, false)) << ARow.Name << " of type " << Code;
    }
}

void CheckRow(const TRow& ARow, bool AIsStrict) {
    for (const Variant& Sample : Samples())
        CheckSample(ARow, Sample, AIsStrict);
}

TEST(VarStrict, TakesWhatFitsAndNothingElse) {
    const TRow Rows[] = {
        {"Shortint", Strict(QzVarShortint, 99), {16, 17}, u"shortint"},
        {"Byte", Strict(QzVarByte, 99), {16, 17}, u"byte"},
        {"Smallint", Strict(QzVarSmallint, 99), {2, 3, 16, 17, 18}, u"smallint"},
        {"Word", Strict(QzVarWord, 99), {2, 16, 17, 18}, u"word"},
        {"Int", Strict(QzVarInt, 99), With({}), u"longword"},
        {"Longword", Strict(QzVarLongword, 99), With({}), u"longword"},
        {"Int64", Strict(QzVarInt64, 99), With({20}), u"int64"},
        {"Single", Strict(QzVarSingle, 99.0F), With({4}), u"single"},
        {"Double", Strict(QzVarDouble, 99.0), With({4, 5, 14}), u"double"},
        {"Extended", Strict(QzVarExtended, Extended(99)), With({4, 5, 6, 14}), u"extended"},
        {"Date", Strict(QzVarDate, TDateTime(99)), With({4, 5, 7, 14}), u"datetime"},
        {"Str", [](const Variant& V, bool) { return QzVarStr(V, u"99"); }, {8, 256, 258}, u"string"},
        {"Bool", Strict(QzVarBool, true), {}, u"boolean", cTruths},
    };
    for (const TRow& Row : Rows)
        CheckRow(Row, true);
}

TEST(VarTolerant, ConvertsWhatCanBeConverted) {
    const std::set<int> Integers = With({8, 20, 21, 256, 258});
    const std::set<int> Floats = With({4, 5, 6, 8, 14, 20, 21, 256, 258});
    std::set<int> Dates = Floats;
    Dates.insert(7);
    const std::map<int, UnicodeString> Truth = {{11, u"1"}};
    const UnicodeString Day = DateTimeToStr(7);
    const TRow Rows[] = {
        {"Shortint", Tolerant(QzVarToShortint, 99), Integers, u"shortint", Truth},
        {"Smallint", Tolerant(QzVarToSmallint, 99), Integers, u"smalling", Truth},
        {"Int", Tolerant(QzVarToInt, 99), Integers, u"LongInt", Truth},
        {"Int64", Tolerant(QzVarToInt64, 99), Integers, u"Int64", Truth},
        {"Byte", Tolerant(QzVarToByte, 99), Integers, u"Byte", Truth},
        {"Word", Tolerant(QzVarToWord, 99), Integers, u"Word", Truth},
        {"Longword", Tolerant(QzVarToLongword, 99), Integers, u"LongWord", Truth},
        {"Single", Tolerant(QzVarToSingle, 99.0F), Floats, u"Single"},
        {"Double", Tolerant(QzVarToDouble, 99.0), Dates, u"Double"},
        {"Extended", Tolerant(QzVarToExtended, Extended(99)), Dates, u"Extended"},
        {"Str",
         [](const Variant& V, bool R) { return QzVarToStr(V, u"99", R); },
         Floats,
         u"String",
         {{7, Day}, {11, u"True"}, {8192 + 12, u"92\r\n"}}},
        {"Bool", Tolerant(QzVarToBool, true), {}, u"Boolean", cTruths},
    };
    for (const TRow& Row : Rows)
        CheckRow(Row, false);
}

TEST(VarStrict, CutsNumbersAndBoundsSmallintAboveAlone) {
    EXPECT_EQ(QzVarSmallint(-40000, 0), 25536);
    EXPECT_EQ(QzVarSmallint(std::uint16_t{40000}, 0), -25536);
    EXPECT_THROW(QzVarSmallint(32768, 0), EConvertError);
    EXPECT_EQ(QzVarByte(std::int8_t{-1}, 0), 255);
    EXPECT_EQ(QzVarByte({}, 260), 4);
    EXPECT_THROW(QzVarInt(4294967295U, 0), EVariantOverflowError);
    EXPECT_TRUE(QzVarBool(256, false));
    EXPECT_TRUE(QzVarBool(AnsiString("1"), false));
    EXPECT_FALSE(QzVarBool(u"", true));
}

TEST(VarTolerant, CutsNumbersAndReadsTexts) {
    EXPECT_EQ(QzVarToShortint(std::int16_t{999}, 0, true), -25);
    EXPECT_EQ(QzVarToSmallint(u"$FFFF", 0, true), -1);
    EXPECT_EQ(QzVarToLongword(u"4294967295", 7, false), 7U);
    EXPECT_FALSE(QzVarToBool(256, true, true));
    EXPECT_TRUE(QzVarToBool(511, false, true));
    EXPECT_TRUE(QzVarToBool(4294967297, true, false)); // the default: it has no 32 bits
    EXPECT_FALSE(QzVarToBool(4294967297, false, false));
    EXPECT_THROW(QzVarToInt(5000000000, 7, true), EVariantOverflowError);
    EXPECT_TRUE(std::isinf(QzVarToSingle(1e300, 0, true)));
    EXPECT_EQ(QzVarToSingle(u"1,5", 0, true), 1.5F);
    EXPECT_EQ(QzVarToDouble(AnsiString("1,5"), 0, true), 1.5);
    EXPECT_EQ(QzVarToExtended(u"1,5", 7, false), 7.0);
    EXPECT_EQ(Message([] { QzVarToLongInt(u"abc", 7, true); }), u"'abc' is not a valid integer value");
    EXPECT_EQ(Message([] { QzVarToDate(u"tomorrow", 7, true); }), u"'tomorrow' is not a valid date and time");
}

class Settings : public testing::Test {
protected:
    ~Settings() override { SetDefaultFormatSettings(Before); }
    const TFormatSettings Before = DefaultFormatSettings();
    TFormatSettings Other = Before;
};

TEST_F(Settings, IsoDatesAreReadWhateverTheyAre) {
    const TDateTime Day = EncodeDate(2016, 2, 29);
    EXPECT_EQ(QzVarToDate(AnsiString("2016-02-29 12:00"), 0, true), Day + 0.5);
    EXPECT_EQ(QzVarToDate(DateTimeToStr(Day), 0, true), Day);
    for (const char16_t* Bad : {u"2016-02-30", u"016-02-29", u"2016-02/29"})
        EXPECT_EQ(QzVarToDate(Bad, 5, false), 5.0);
    Other.DateSeparator = u'-';
    Other.ShortDateFormat = u"dd-mm-yyyy";
    SetDefaultFormatSettings(Other);
    EXPECT_EQ(QzVarToDate(u"2016-02-29", 0, true), Day);
    EXPECT_EQ(QzVarToDate(u"29-02-2016", 0, true), Day);
}

// The other separator is that of the system, whatever the process has.
TEST_F(Settings, TheSecondTryGoesByTheSystem) {
    EXPECT_EQ(QzStrToFloat(u"1.5") + QzStrToFloat(u"1,5"), 3);
    EXPECT_EQ(QzStrToFloatDef(u"1.5.2", -2), -2.0);
    EXPECT_EQ(Message([] { QzStrToFloat(u"1;5"); }), u"'1;5' is not a valid floating point value");
    Other.DecimalSeparator = u';';
    SetDefaultFormatSettings(Other);
    const bool HasPoint = TFormatSettings::Create().DecimalSeparator == u'.';
    EXPECT_EQ(QzStrToFloatDef(u"1,5", 7), HasPoint ? 1.5 : 7);
    EXPECT_EQ(QzStrToFloatDef(u"1.5", 7), HasPoint ? 7 : 1.5);
    EXPECT_EQ(QzStrToFloat(u"1;5"), 1.5);
}

TEST(VarTolerant, WritesArraysLineByLine) {
    const Variant Table = VarArrayCreate({0, 1, 0, 1}, varInteger);
    EXPECT_EQ(
        QzVarToStr(VarArrayOf({1, VarArrayOf({u"a", u"b"}), VarArrayOf({}), Variant(), true}), u"-", true),
        u"1\r\na\r\nb\r\n\r\n\r\n-\r\nTrue\r\n");
    EXPECT_EQ(QzVarToStr(Table, u"-", false), u"-");
    EXPECT_EQ(Message([&] { QzVarToStr(Table, u"", true); }),
              u"The given array is not a to-string convertable value!");
    const Variant Mixed = VarArrayOf({1, Table, Variant(Ref<IInterface>()), 2});
    EXPECT_EQ(QzVarToStr(Mixed, u"-", false), u"1\r\n-\r\n-\r\n2\r\n");
    EXPECT_THROW(QzVarToStr(Mixed, u"-", true), EConvertError);
    constexpr int cMost = std::numeric_limits<int>::max();
    EXPECT_EQ(QzVarToStr(VarArrayCreate({cMost - 1, cMost}, varInteger), u"", true), u"0\r\n0\r\n");
    Variant Deep = 1;
    for (int I = 0; I < 50000; ++I)
        Deep = VarArrayOf({Deep});
    EXPECT_EQ(QzVarToStr(Deep, u"", true).Length(), 1 + 2 * 50000);
}

TEST(VarQueries, EmptyCountedAndNullable) {
    const auto Check = [](bool AExpected, const auto&... AValues) {
        for (const Variant& Value : {Variant(AValues)...})
            EXPECT_EQ(QzVarIsEmpty(Value), AExpected) << VarType(Value);
    };
    Check(true, 0, -0.0, TDateTime(0), u"   ", AnsiString(" \t"), Variant(), Variant::Null(), Currency(0),
          VarArrayOf({}));
    Check(false, false, 1, u" x", Variant::Error(0), std::nan(""), VarArrayOf({1}),
          static_cast<TObject*>(nullptr));
    EXPECT_EQ(QzVarArrayCount(VarArrayCreate({9, 10}, varByte)), 11);
    EXPECT_EQ(QzVarArrayCount(VarArrayCreate({-3, -1}, varByte)), 0);
    EXPECT_EQ(QzVarArrayCount(u"x"), 0);
    EXPECT_EQ(QzNullableBool(1), nbNull);
    for (const char16_t* Yes : {u"1", u"True", u"y?"})
        EXPECT_TRUE(QzStrToBool(Yes));
    for (const char16_t* No : {u"", u"no", u" 1"})
        EXPECT_FALSE(QzStrToBool(No));
}

TEST(RawStrings, AreCopiesInTheSystemsCodePageWithATerminator) {
    const TSystemPage Page(1252);
    char* const Narrow = QzStrNewA(WideString(u"\u20AC"));
    EXPECT_STREQ(Narrow, "\x80");
    QzStrDispose(Narrow);
    char16_t* const Wide = QzStrNew(WideString(std::u16string_view(u"a\0b", 3)));
    EXPECT_EQ(std::u16string_view(Wide, 4), std::u16string_view(u"a\0b", 4));
    QzStrDispose(Wide);
    EXPECT_EQ(QzStrNew(WideString()), nullptr);
    EXPECT_EQ(QzStrNewW(AnsiString()), nullptr);
}

} // namespace
} // namespace qz
