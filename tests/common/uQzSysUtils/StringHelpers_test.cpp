#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/Lines.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/common/uQzSysUtils.h>
#include <qz/runtime/objects/DescribeException.h>

namespace qz {
namespace {

TEST(Tokenize, ByCharactersGivesTokensAndDelimiters) {
    const struct {
        std::u16string_view Text, Delimiters, Tokens, Found;
    } cCases[] = {
        {u"a,,b", u",", u"a|b|", u",|,|"},   {u"", u",", u"", u""},
        {u";;", u",;", u"", u";|;|"},        {u"a.b_c\td", u"", u"a|b_c\td|", u".|"},
        {u"x€y¤z", u"€,", u"x|y¤z|", u"€|"}, {u"x\xD800y\xDC00", u"\xDC00", u"x\xD800y|", u"\xDC00|"},
    };
    for (const auto& Case : cCases) {
        TStringList Tokens, Found;
        QzTokenize(Case.Text, Tokens, Case.Delimiters, &Found);
        EXPECT_EQ(Lines(Tokens), Case.Tokens) << UnicodeString(Case.Text);
        EXPECT_EQ(Lines(Found), Case.Found) << UnicodeString(Case.Text);
    }
}

TEST(Tokenize, ByExpressionKeepsEmptyTokens) {
    for (const auto& Case : Rows(u"a,,b, => , => a||b||", u" => , => |", u"  a \t b  c  =>  => a|\t|b|c|",
                                 u"ab => (?=b) => a|b|", u" =>  => ", u"aXb => x => a|b|")) {
        TStringList List;
        QzTokenize(List, Case[0], Case[1], {roIgnoreCase});
        EXPECT_EQ(Lines(List), Case[2]) << Case[0] << " by " << Case[1];
    }
    TStringList List;
    EXPECT_THROW(QzTokenize(List, u"a", u"("), ERegularExpressionError);
}

TEST(StringToList, SplitsAndJoins) {
    const struct {
        std::u16string_view Text, Delimiter, Tokens;
    } cCases[] = {
        {u"a,b,", u",", u"a|b||"}, {u"", u",", u"|"}, {u"---", u"--", u"|-|"}, {u"ab", u"", u"ab|"}};
    for (const auto& Case : cCases) {
        TStringList List;
        QzStringToList(Case.Text, Case.Delimiter, List);
        EXPECT_EQ(Lines(List), Case.Tokens) << UnicodeString(Case.Text);
        EXPECT_EQ(QzListToString(List, Case.Delimiter), Case.Text);
    }
    TStringList List;
    EXPECT_EQ(QzListToString(List, u","), u"");
}

TEST(CharCase, ConvertsByModeInBothWidths) {
    const auto Check = [](TQzCharCase ACase, const auto*... ARows) {
        for (const auto& Case : Rows(ARows...)) { // text, delimiters, result
            EXPECT_EQ(QzCharCase(Case[0], ACase, Case[1]), Case[2]) << Case[0];
            EXPECT_EQ(QzCharCase(AnsiString(Case[0]), ACase, AnsiString(Case[1])).ToUnicode(),
                      AnsiString(Case[2]).ToUnicode());
        }
    };
    Check(rcUpperCase, u"hé-x => - => HÉ-X");
    Check(rcLowerCase, u"HÉ-X => - => hé-x");
    Check(rcTitleCase, u"hello WORLD =>   => Hello world", u" =>  => ");
    Check(rcUpperCamelCase, u"hello wORLD-x =>  - => Hello World-X", u"ab CD =>  => Ab cd",
          u"xaxb => x => xAxB", u"éa éB =>   => Éa Éb");
    Check(rcLowerCamelCase, u"Hello  wORLD =>   => hello  World");
    Check(rcUpperCaseFirstLetter, u"éLLO =>  => ÉLLO");
    EXPECT_EQ(QzCharCase(u"ΑΣ ΣΑΣ", rcUpperCamelCase, u" "), u"Ασ Σασ");
}

TEST(StringIncrement, CountsTheNumberAtTheEnd) {
    for (const auto& Case :
         Rows(u"007 => -1 => 006", u"A1 => -5 => A-4", u"AB99 => 1 => AB100", u"A100 => -105 => A0-5",
              u" 1x9 => 2 =>  1x11", u"9223372036854775806 => 1 => 9223372036854775807"))
        EXPECT_EQ(QzStringIncrement(Case[0], StrToInt(Case[1])), Case[2]) << Case[0];
    for (const char16_t* Text : {u"A", u"1 ", u"x\uFF11", u"9223372036854775807", u"99999999999999999999"})
        EXPECT_THROW(QzStringIncrement(Text, 1), EConvertError) << UnicodeString(Text);
    std::uint16_t Year = 0, Month = 0, Day = 0;
    DecodeDate(Date(), Year, Month, Day);
    EXPECT_EQ(QzStringIncrement(u" \t", 7), IntToStr(Year) + u"00001");
}

TEST(StringReplace, FeedsLaterPairsAndNeedsAsManyNewTextsAsOld) {
    EXPECT_EQ(QzStringReplace(u"aAa", {u"a", u"b"}, {u"b", u"c"}, {rfReplaceAll}), u"cAc");
    EXPECT_EQ(QzStringReplace(u"aAa", {u"A"}, {u"xy"}, {rfReplaceAll, rfIgnoreCase}), u"xyxyxy");
    EXPECT_THROW(QzStringReplace(u"a", {u"a", u"b"}, {u"b"}, {}), EAssertionFailed);
}

TEST(StringReplace, FindsPiecesOfAnyLengthAtAnyPlace) {
    for (const std::size_t Length : {1U, 2U, 5U, 64U, 65U})
        for (std::size_t Place = 0; Place < 70; ++Place) {
            const UnicodeString Piece = UnicodeString(Length - 1, u'a') + u'b';
            const UnicodeString Left(Place, u'a'), Right(70 - Place, u'a');
            ASSERT_EQ(QzStringReplace(Left + Piece + Right, {Piece}, {u"-"}, {rfReplaceAll}),
                      Left + u"-" + Right)
                << Length << " at " << Place;
        }
}

TEST(Strings, ShortHelpersTreatTheEnds) {
    const std::pair<const char16_t*, const char16_t*> cStripped[] = {
        {u"''", u"'"}, {u"", u""}, {u" \"a'b'\r\n", u"a'b"}, {u"'", u"'"}};
    for (const auto& [Text, Result] : cStripped)
        EXPECT_EQ(QzStripLiterals(Text), Result);
    const std::pair<const char16_t*, const char16_t*> cSpaced[] = {
        {u"  ", u""}, {u" a  b\tc ", u"a b\tc"}, {u"\xDC00  \xD800", u"\xDC00 \xD800"}};
    for (const auto& [Text, Result] : cSpaced)
        EXPECT_EQ(QzNormalizeSpace(Text), Result);
    EXPECT_EQ(QzTrimLeft(u" \1a\t") + QzTrimRight(u" a\1\t"), u"a\t a");
    EXPECT_EQ(QzLeft(u"abc", 2) + QzLeft(u"abc", -1) + QzLeft(u"abc", 9), u"ababc");
    EXPECT_EQ(QzRight(u"abc", 2) + QzRight(u"abc", INT32_MIN) + QzRight(u"abc", 9), u"bcabc");
    EXPECT_EQ(QzLastPos(u"abab", u'a') * 10 + QzLastPos(u"", u'a'), 30);
    EXPECT_EQ(QzPadLeft(-5, 3, u'0'), u"0-5");
    EXPECT_EQ(QzPadLeft(INT64_MIN, 21, u'\0'), u" -9223372036854775808");
    EXPECT_EQ(QzPadLeft(u"abc", 2) + QzPadLeft(u"", -1), u"abc");
    EXPECT_EQ(QzPadRight(u"ab", 4, u'.') + QzPadRight(u"ab", 3, u'\0'), u"ab..ab ");
}

TEST(Strings, SetsAndSearches) {
    EXPECT_TRUE(QzContainsText(u"ÖL", u"Erdöl"));
    EXPECT_TRUE(QzContainsText(u"ΟΔΟΣ", u"ΟΔΟΣΗ"));
    for (const char16_t* Text : {u"οδοσ", u"ΟΔΟΣ"}) {
        EXPECT_TRUE(QzContainsText(Text, u"ΟΔΟσ") && QzSameText(Text, u"ΟΔΟσ"));
        EXPECT_EQ(StringReplace(u"ΟΔΟσ", Text, u"x", {rfIgnoreCase}), u"x");
    }
    EXPECT_TRUE(QzIsUppercase(u"AÄä1") && QzIsUppercase(u"") && !QzIsUppercase(u"Az"));
}

// Digits before the point take digits from the fraction: 1.005 shows less than a half.
TEST(Round, HalvesGoAwayFromZero) {
    constexpr double cInf = INFINITY;
    const struct {
        double Value;
        int Digits;
        double Result;
    } cCases[] = {{2.5, 0, 3},       {-2.5, 0, -3},     {1.25, 1, 1.3},   {1.24, 1, 1.2},     {0.4999, 0, 0},
                  {-0.5, 0, -1},     {2.675, 2, 2.67},  {1.005, 2, 1},    {-1.005, 2, -1},    {0.999, 2, 1},
                  {1e300, 2, 1e300}, {0.1, 400, 0.1},   {1250, -2, 1300}, {-1249, -2, -1200}, {3, -400, 0},
                  {cInf, 2, cInf},   {-cInf, -1, -cInf}};
    for (const auto& Case : cCases) {
        EXPECT_EQ(QzRound(Case.Value, Case.Digits), Case.Result) << Case.Value << ", " << Case.Digits;
        EXPECT_EQ(QzRound(Extended(Case.Value), Case.Digits).Value, Case.Result);
    }
    EXPECT_EQ(QzRound(0.49999999999999994, 0), 1);
    EXPECT_TRUE(std::isnan(QzRound(NAN, 2)));
}

TEST(Numbers, BitsCountFromOne) {
    EXPECT_TRUE(QzIsBitChecked(5, 3) && QzIsBitChecked(0, 0) && QzIsBitChecked(-1, 64));
    EXPECT_FALSE(QzIsBitChecked(5, 2) || QzIsBitChecked(INT64_MAX, 64) || QzIsBitChecked(-1, 65));
}

TEST(Compare, Texts) {
    EXPECT_TRUE(QzSameText(u"Größe", u"GRÖßE") && QzSameText(AnsiString("aB"), AnsiString("Ab")));
    EXPECT_FALSE(QzSameText(u"a", u"a\1") || QzSameText(u"@", u"`") || QzSameText(u"a", u"b"));
    EXPECT_EQ(VarType(QzIf(false, Variant(1), u"text")), varUString);
}

TEST(Compare, VariantsByValueAndType) {
    EXPECT_TRUE(QzSameVar(1, 1) && QzSameVar(Variant::Null(), Variant::Null()));
    const std::pair<Variant, Variant> Others[] = {
        {1, 1.0}, {1, u"1"}, {Variant(), 0}, {u"a", u"A"}, {Variant::Null(), Variant()}, {NAN, NAN}};
    for (const auto& [Left, Right] : Others)
        EXPECT_FALSE(QzSameVar(Left, Right)) << VarToStr(Left);
    EXPECT_THROW(static_cast<void>(QzSameVar(VarArrayOf({}), VarArrayOf({}))), EVariantInvalidOpError);
}

TEST(Compare, ArraysElementByElementOfTheFirst) {
    Variant Shifted = VarArrayCreate({1, 2});
    VarArrayPut(Shifted, 2, 1);
    VarArrayPut(Shifted, 3, 2);
    const Variant Three = VarArrayOf({1, 2, 3});
    const std::tuple<Variant, Variant, bool> Cases[] = {{Three, VarArrayOf({1.0, u"2", 3}), true},
                                                        {VarArrayOf({1, 2}), Three, true},
                                                        {Three, VarArrayOf({1, 2}), false},
                                                        {Shifted, Three, true},
                                                        {Three, Shifted, false},
                                                        {VarArrayOf({}), u"no array", true},
                                                        {u"no array", Three, false},
                                                        {VarArrayOf({Three}), VarArrayOf({Three}), false}};
    for (const auto& [Left, Right, Same] : Cases)
        EXPECT_EQ(QzSameArray(Left, Right), Same);
}

class EFirst : public EQzException {
    QZ_EXCEPTION(EFirst, EQzException)
public:
    using EQzException::EQzException;
};
class EQuiet : public EQzAbort {
    QZ_EXCEPTION(EQuiet, EQzAbort)
public:
    using EQzAbort::EQzAbort;
};
constinit const TClassRec EFirst::ClassRec = DescribeException<EFirst>(u"EFirst", u"Test");
constinit const TClassRec EQuiet::ClassRec = DescribeException<EQuiet>(u"EQuiet", u"Test");

const auto cFirst = EQzExceptionClass::Of<EFirst>();
const auto cQuiet = EQzAbortClass::Of<EQuiet>();

TEST(ExceptionRegistry, SameCodeStandsInTwoGroupsAndAnEmptyGroupFindsTheEarliest) {
    QzRegisterExceptionClass(u"A", 5, cFirst);
    QzRegisterExceptionClass(u"B", 5, cQuiet);
    EXPECT_EQ(QzGetExceptionClass(u"", 5), cFirst);
    EXPECT_EQ(QzGetExceptionClass(u"B", 5), cQuiet);
    EXPECT_EQ(QzGetExceptionClass(u"b", 5), ExceptionClass()) << "groups are compared exactly";
    EXPECT_THROW(QzRegisterExceptionClass(u"F", 10, EQzExceptionClass()), EAssertionFailed);
}

TEST(ExceptionRegistry, TakenPairRefusesAnotherClassAndKeepsTheHolder) {
    QzRegisterExceptionClass(u"C", 6, cFirst);
    QzRegisterExceptionClass(u"C", 6, cFirst);
    EXPECT_EQ(Raised([&] { QzRegisterExceptionClass(u"", 6, cQuiet); }),
              "EAssertionFailed: ErrorCode 6 is already in use by EFirst!");
    EXPECT_EQ(QzGetExceptionClass(u"C", 6), cFirst);
}

TEST(ExceptionRegistry, NameIsFoundInAnyCaseWithTheCodeOfItsEarliestEntry) {
    std::int32_t Code = 77;
    EXPECT_EQ(QzGetExceptionClassByName(u"ENone", &Code), ExceptionClass());
    EXPECT_EQ(Code, 0);
    QzRegisterExceptionClass(u"E", 4, cQuiet);
    QzRegisterExceptionClass(u"E", 9, cQuiet);
    const ExceptionClass Found = QzGetExceptionClassByName(u"equiet", &Code);
    EXPECT_LT(Code, 9);
    const auto Made = Exception::TVirtualCreateCode::Find(Found)(u"made", 42);
    EXPECT_EQ(Raised([&] { Made->Raise(); }), "EQuiet: made");
    EXPECT_EQ(dynamic_cast<const EQuiet&>(*Made).ErrorCode(), 42);
}

} // namespace
} // namespace qz
