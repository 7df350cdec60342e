#include <gtest/gtest.h>

#include <cmath>
#include <limits>

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

// One variant of each type. Values are their codes modulo 100, so that a result tells by itself what it came
// from.
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
const UnicodeString& Show(const UnicodeString& AValue) {
    return AValue;
}

// What a function makes of each sample: its number (=), the default (d), a truth (T, F), another text (?), an
// error (!).
template <class TCall> std::string Marks(const UnicodeString& AKind, TCall ACall) {
    std::string Result;
    for (const Variant& Sample : Samples()) {
        UnicodeString Text;
        const UnicodeString Error = Message([&] { Text = Show(ACall(Sample)); });
        EXPECT_TRUE(Error.IsEmpty() || Error == u"The given value is not a valid " + AKind + u" value!")
            << Error;
        Result += !Error.IsEmpty()                    ? '!'
            : Text == u"99"                           ? 'd'
            : Text == IntToStr(VarType(Sample) % 100) ? '='
            : Text == u"1" || Text == u"True"         ? 'T'
            : Text == u"False"                        ? 'F'
                                                      : '?';
    }
    return Result;
}

template <class T, class TDefault>
void ExpectStrict(T (*AFunction)(const Variant&, TDefault), std::type_identity_t<TDefault> ADefault,
                  const UnicodeString& AKind, const std::string& AMarks) {
    EXPECT_EQ(Marks(AKind, [&](const Variant& AValue) { return AFunction(AValue, ADefault); }), AMarks)
        << AKind;
}

// Without the wish to raise, the default takes the place of an error.
template <class T, class TDefault>
void ExpectTolerant(T (*AFunction)(const Variant&, TDefault, bool), std::type_identity_t<TDefault> ADefault,
                    const UnicodeString& AKind, std::string AMarks) {
    for (const bool Raises : {true, false}) {
        EXPECT_EQ(Marks(AKind, [&](const Variant& AValue) { return AFunction(AValue, ADefault, Raises); }),
                  AMarks)
            << AKind;
        std::replace(AMarks.begin(), AMarks.end(), '!', std::is_same_v<T, bool> ? 'T' : 'd');
    }
}

TEST(VarStrict, TakesWhatFitsAndNothingElse) {
    ExpectStrict(QzVarShortint, 99, u"shortint", "dd!!!!!!!!d!!!==!!!!d!!!");
    ExpectStrict(QzVarByte, 99, u"byte", "dd!!!!!!!!d!!!==!!!!d!!!");
    ExpectStrict(QzVarSmallint, 99, u"smallint", "dd==!!!!!!d!!!===!!!d!!!");
    ExpectStrict(QzVarWord, 99, u"word", "dd=!!!!!!!d!!!===!!!d!!!");
    ExpectStrict(QzVarInt, 99, u"longword", "dd==!!!!!!d!!!====!!d!!!");
    ExpectStrict(QzVarLongword, 99, u"longword", "dd==!!!!!!d!!!====!!d!!!");
    ExpectStrict(QzVarInt64, 99, u"int64", "dd==!!!!!!d!!!=====!d!!!");
    ExpectStrict(QzVarSingle, 99.0F, u"single", "dd===!!!!!d!!!====!!d!!!");
    ExpectStrict(QzVarDouble, 99.0, u"double", "dd====!!!!d!!=====!!d!!!");
    ExpectStrict(QzVarExtended, Extended(99), u"extended", "dd=====!!!d!!=====!!d!!!");
    ExpectStrict(QzVarDate, TDateTime(99), u"datetime", "dd====!=!!d!!=====!!d!!!");
    ExpectStrict(QzVarStr, u"99", u"string", "dd!!!!!!=!d!!!!!!!!!d==!");
    ExpectStrict(QzVarBool, true, u"boolean", "TTTT!!!!F!TT!!TTTTTTTFF!");
}

TEST(VarTolerant, ConvertsWhatCanBeConverted) {
    ExpectTolerant(QzVarToShortint, 99, u"shortint", "dd==!!!!=!dT!!======d==!");
    ExpectTolerant(QzVarToSmallint, 99, u"smalling", "dd==!!!!=!dT!!======d==!");
    ExpectTolerant(QzVarToInt, 99, u"LongInt", "dd==!!!!=!dT!!======d==!");
    ExpectTolerant(QzVarToInt64, 99, u"Int64", "dd==!!!!=!dT!!======d==!");
    ExpectTolerant(QzVarToByte, 99, u"Byte", "dd==!!!!=!dT!!======d==!");
    ExpectTolerant(QzVarToWord, 99, u"Word", "dd==!!!!=!dT!!======d==!");
    ExpectTolerant(QzVarToLongword, 99, u"LongWord", "dd==!!!!=!dT!!======d==!");
    ExpectTolerant(QzVarToSingle, 99.0F, u"Single", "dd=====!=!d!!=======d==!");
    ExpectTolerant(QzVarToDouble, 99.0, u"Double", "dd=======!d!!=======d==!");
    ExpectTolerant(QzVarToExtended, Extended(99), u"Extended", "dd=======!d!!=======d==!");
    ExpectTolerant(QzVarToStr, u"99", u"String", "dd=====?=!dT!=======d==?");
    ExpectTolerant(QzVarToBool, true, u"Boolean", "TTTT!!!!F!TT!!TTTTTTTFF!");
    EXPECT_EQ(QzVarToStr(TDateTime(7), u"", true), DateTimeToStr(7));
}

TEST(VarStrict, CutsNumbersAndBoundsSmallintAboveAlone) {
    EXPECT_EQ(QzVarSmallint(-40000, 0), 25536);
    EXPECT_EQ(QzVarSmallint(std::uint16_t{40000}, 0), -25536);
    EXPECT_THROW(QzVarSmallint(32768, 0), EConvertError);
    EXPECT_EQ(QzVarByte({}, 260), 4);
    EXPECT_THROW(QzVarInt(4294967295U, 0), EVariantOverflowError);
    EXPECT_TRUE(QzVarBool(256, false));
    EXPECT_FALSE(QzVarBool(u"", true));
}

TEST(VarTolerant, CutsNumbersAndReadsTexts) {
    EXPECT_EQ(QzVarToShortint(std::int16_t{999}, 0, true), -25);
    EXPECT_EQ(QzVarToSmallint(u"$FFFF", 0, true), -1);
    EXPECT_FALSE(QzVarToBool(256, true, true));
    EXPECT_TRUE(QzVarToBool(4294967297, true, false)); // the default: it has no 32 bits
    EXPECT_FALSE(QzVarToBool(4294967297, false, false));
    EXPECT_THROW(QzVarToInt(5000000000, 7, true), EVariantOverflowError);
    EXPECT_TRUE(std::isinf(QzVarToSingle(1e300, 0, true)));
    EXPECT_EQ(QzVarToSingle(u"1,5", 0, true), 1.5F);
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
