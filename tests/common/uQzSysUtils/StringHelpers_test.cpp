#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/Lines.h"
#include "tests/support/Rows.h"
#include <qz/common/uQzSysUtils.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {
namespace {

TEST(Tokenize, ByCharactersGivesTokensAndDelimiters) {
    const struct {
        std::u16string_view Text, Delimiters, Tokens, Found;
    } cCases[] = {
        {u"a,,b", u",", u"a|b|", u",|,|"},   {u"", u",", u"", u""},
        {u";;", u",;", u"", u";|;|"},        {u"a.b_c\td", u"", u"a|b_c\td|", u".|"},
        {u"x€y¤z", u"€,", u"x|y¤z|", u"€|"}, {u"x\xD800y\xDC00", u"\xDC00", u"x\xD800y|", u"\xDC00|"},
        {u"a,b", u"€", u"a,b|", u""},
    };
    for (const auto& Case : cCases) {
        TStringList Tokens, Found;
        QzTokenize(Case.Text, Tokens, Case.Delimiters, &Found);
        EXPECT_EQ(Lines(Tokens), Case.Tokens) << UnicodeString(Case.Text);
        EXPECT_EQ(Lines(Found), Case.Found) << UnicodeString(Case.Text);
    }
}

TEST(Tokenize, EachDefaultDelimiterSeparatesAndNothingElse) {
    UnicodeString Kept;
    int Separating = 0;
    for (char16_t Char = 1; Char < 256; ++Char) {
        TStringList List;
        QzTokenize(u"a" + UnicodeString(Char) + u"b", List);
        Separating += List.Count() == 2 ? 1 : 0;
        if (Char > u' ' && Char < 127 && List.Count() == 1)
            Kept += Char;
    }
    EXPECT_EQ(Separating, 31);
    EXPECT_EQ(Kept, u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_`abcdefghijklmnopqrstuvwxyz");
}

TEST(Tokenize, AppendsByTheRulesOfTheList) {
    TStringList List;
    List.SetDuplicates(dupIgnore);
    List.SetSorted(true);
    List.Add(u"m");
    QzTokenize(u"z a z", List, u" ");
    QzTokenize(List, u"b1a", u"\\d");
    EXPECT_EQ(Lines(List), u"a|b|m|z|");
}

TEST(Tokenize, ByExpressionKeepsEmptyTokens) {
    for (const auto& Case :
         Rows(u"a,,b, => , => a||b||", u"abc => , => abc|", u" => , => |", u"  a \t b  c  =>  => a|\t|b|c|",
              u"a1b22 => \\d+ => a|b||", u"ab => (?=b) => a|b|", u" =>  => ", u"aXb => x => a|b|")) {
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
    for (const char16_t Char : {u'a', u'b', u'c'})
        List.Add(UnicodeString(499999, Char));
    const UnicodeString Cut = QzListToString(List, u"--");
    EXPECT_EQ(Cut.Length(), 999999);
    EXPECT_EQ(QzRight(Cut, 2), u"bb");
}

TEST(CharCase, ConvertsByModeInBothWidths) {
    const auto Check = [](TQzCharCase ACase, const auto*... ARows) {
        for (const auto& Case : Rows(ARows...)) { // text, delimiters, result
            EXPECT_EQ(QzCharCase(Case[0], ACase, Case[1]), Case[2]) << Case[0];
            EXPECT_EQ(QzCharCase(AnsiString(Case[0]), ACase, AnsiString(Case[1])).ToUnicode(),
                      AnsiString(Case[2]).ToUnicode());
        }
    };
    Check(rcNormal, u"hElLo =>  => hElLo");
    Check(rcUpperCase, u"hé-x => - => HÉ-X");
    Check(rcLowerCase, u"HÉ-X => - => hé-x");
    Check(rcTitleCase, u"hello WORLD =>   => Hello world", u" =>  => ");
    Check(rcUpperCamelCase, u"hello wORLD-x =>  - => Hello World-X", u"ab CD =>  => Ab cd",
          u"xAxb => X => Xaxb", u"xaxb => x => xAxB", u"éa éB =>   => Éa Éb");
    Check(rcLowerCamelCase, u"Hello  wORLD =>   => hello  World");
    Check(rcUpperCaseFirstLetter, u"éLLO =>  => ÉLLO");
    Check(rcLowerCaseFirstLetter, u"ÉLLO =>  => éLLO");
    EXPECT_EQ(QzCharCase(u"ΑΣ ΣΑΣ", rcUpperCamelCase, u" "), u"Ασ Σασ");
    EXPECT_EQ(QzCharCase(u"\xD800 \xDC00z", rcUpperCamelCase, u" "), u"\xD800 \xDC00z");
    EXPECT_EQ(QzCharCase(u"a\U0001F601b\U0001F600c", rcUpperCamelCase, u"\U0001F600"),
              u"A\U0001F601b\U0001F600C");
}

TEST(StringIncrement, CountsTheNumberAtTheEnd) {
    for (const auto& Case :
         Rows(u"9 => 1 => 10", u"007 => -1 => 006", u"A1 => -5 => A-4", u"AB99 => 1 => AB100",
              u"AB0099 => 1 => AB0100", u"A100 => -105 => A0-5", u" 1x9 => 2 =>  1x11", u"-5 => 1 => -6",
              u"9999999999 => 1 => 10000000000", u"9223372036854775806 => 1 => 9223372036854775807",
              u"\xD800z1 => 1 => \xD800z2"))
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
    EXPECT_EQ(QzStringReplace(u"aa", {u"a"}, {u""}, {}), u"a");
    const std::vector<UnicodeString> Old = {u"1", u"2"}, New = {u"2", u"3"};
    EXPECT_EQ(QzStringReplace(u"12", Old, New, {}), u"32");
    EXPECT_THROW(QzStringReplace(u"a", {u"a", u"b"}, {u"b"}, {}), EAssertionFailed);
}

TEST(StringReplace, FindsPiecesOfAnyLengthAtAnyPlace) {
    for (const std::size_t Length : {1U, 2U, 5U, 64U, 65U})
        for (std::size_t Before = 0; Before < 70; ++Before)
            for (const std::size_t Behind : {0U, 1U, 31U, 32U, 33U}) {
                const UnicodeString Piece = UnicodeString(Length - 1, u'a') + u'b';
                const UnicodeString Left(Before, u'a'), Right(Behind, u'a');
                ASSERT_EQ(QzStringReplace(Left + Piece + Right, {Piece}, {u"-"}, {rfReplaceAll}),
                          Left + u"-" + Right)
                    << Length << " at " << Before << " before " << Behind;
            }
}

TEST(Strings, ShortHelpersTreatTheEnds) {
    const std::pair<const char16_t*, const char16_t*> cStripped[] = {
        {u"''", u"'"}, {u"", u""}, {u" \"a'b'\r\n", u"a'b"}, {u"'", u"'"}, {u"' \"", u"\""}};
    for (const auto& [Text, Result] : cStripped)
        EXPECT_EQ(QzStripLiterals(Text), Result);
    const std::pair<const char16_t*, const char16_t*> cSpaced[] = {{u"", u""},
                                                                   {u"  ", u""},
                                                                   {u" a  b\tc ", u"a b\tc"},
                                                                   {u"a b", u"a b"},
                                                                   {u"\xDC00  \xD800", u"\xDC00 \xD800"}};
    for (const auto& [Text, Result] : cSpaced)
        EXPECT_EQ(QzNormalizeSpace(Text), Result);
    EXPECT_EQ(QzTrimLeft(u" \1a\t"), u"a\t");
    EXPECT_EQ(QzTrimRight(u" a\1\t"), u" a");
    EXPECT_EQ(QzTrim(AnsiString(" \x01\xE9\xA0\t")), AnsiString("\xE9\xA0"));
    EXPECT_EQ(QzTrim(AnsiString(" \t")), AnsiString());
    EXPECT_EQ(QzLeft(u"abc", 2) + QzLeft(u"abc", -1) + QzLeft(u"abc", 9), u"ababc");
    EXPECT_EQ(QzRight(u"abc", 2) + QzRight(u"abc", INT32_MIN) + QzRight(u"abc", 9), u"bcabc");
    EXPECT_EQ(QzAnsiCopy(AnsiString("abc"), 2, 9), AnsiString("bc"));
    EXPECT_EQ(QzAnsiCopy(AnsiString("abc"), 4, 1), AnsiString());
    EXPECT_EQ(QzLastPos(u"abab", u'a') * 10 + QzLastPos(u"", u'a'), 30);
}

TEST(Strings, PadsToALength) {
    EXPECT_EQ(QzPadLeft(-5, 3, u'0'), u"0-5");
    EXPECT_EQ(QzPadLeft(INT64_MIN, 21, u'\0'), u" -9223372036854775808");
    EXPECT_EQ(QzPadLeft(u"abc", 2), u"abc");
    EXPECT_EQ(QzPadLeft(u"", -1), u"");
    EXPECT_EQ(QzPadRight(u"ab", 4, u'.'), u"ab..");
    EXPECT_EQ(QzPadRight(u"ab", 3, u'\0'), u"ab ");
}

TEST(Strings, SetsAndSearches) {
    EXPECT_TRUE(QzContainsText(u"ÖL", u"Erdöl"));
    EXPECT_TRUE(QzContainsText(AnsiString("B"), AnsiString("abc")));
    EXPECT_FALSE(QzContainsText(u"Erdöl", u"öl"));
    EXPECT_FALSE(QzContainsText(u"", u"a"));
    EXPECT_TRUE(QzContainsText(u"ΟΔΟΣ", u"ΟΔΟΣΗ"));
    for (const char16_t* Text : {u"οδοσ", u"ΟΔΟΣ"}) {
        EXPECT_TRUE(QzContainsText(Text, u"ΟΔΟσ") && QzSameText(Text, u"ΟΔΟσ"));
        EXPECT_EQ(StringReplace(u"ΟΔΟσ", Text, u"x", {rfIgnoreCase}), u"x");
    }
    EXPECT_TRUE(QzStrInSet(u"b", {u"a", u"b"}));
    EXPECT_FALSE(QzStrInSet(u"B", std::vector<UnicodeString>{u"a", u"b"}));
    UnicodeString Names, Literals;
    for (char16_t Char = 0; Char < 0x300; ++Char) {
        Names += QzIsNameDelimiter(Char) ? UnicodeString(Char) : UnicodeString();
        Literals += QzIsLiteral(Char) ? UnicodeString(Char) : UnicodeString();
    }
    EXPECT_EQ(Names, u"\n\r ),;");
    EXPECT_EQ(Literals, u"\"'");
    EXPECT_TRUE(QzCharInSet('\xE9', TCharSet{'\xE9'}) && QzIsLiteral('"') && QzIsNameDelimiter(','));
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
    const std::pair<std::pair<std::int64_t, int>, bool> cCases[] = {
        {{5, 3}, true},   {{5, 2}, false},          {{0, 0}, true},
        {{-1, 64}, true}, {{INT64_MAX, 64}, false}, {{-1, 65}, false}};
    for (const auto& [Arguments, Result] : cCases)
        EXPECT_EQ(QzIsBitChecked(Arguments.first, Arguments.second), Result) << Arguments.second;
    EXPECT_EQ(QzIntToAnsiStr(-42), AnsiString("-42"));
}

TEST(Compare, TextsAndChoices) {
    EXPECT_TRUE(QzSameText(u"Größe", u"GRÖßE") && QzSameText(AnsiString("aB"), AnsiString("Ab")));
    EXPECT_FALSE(QzSameText(u"a", u"a\1") || QzSameText(u"@", u"`") || QzSameText(u"a", u"b"));
    EXPECT_TRUE(QzSameTrimmedText(u" \ta", u"A\r\n"));
    TGUID Other = Guid("{0417F540-9CCC-4DE6-B2C4-1063D0508346}");
    const TGUID Same = Other;
    EXPECT_TRUE(QzSameGuid(Other, Same));
    Other.D4[7] ^= 1;
    EXPECT_FALSE(QzSameGuid(Other, Same));
    EXPECT_EQ(QzIf(true, u"a", "b"), u"a");
    EXPECT_EQ(QzIf(false, 1, 2), 2);
    EXPECT_EQ(QzIf(false, 1.5, 2.5), 2.5);
    EXPECT_EQ(QzIf(true, u'a', u'b'), u'a');
    EXPECT_FALSE(QzIf(true, false, true));
    EXPECT_EQ(VarType(QzIf(false, Variant(1), u"text")), varUString);
}

TEST(Compare, VariantsByValueAndType) {
    const auto Check = [](bool AEqual, bool ASame, const auto&... AValues) {
        const Variant Values[] = {Variant(AValues)...}; // by pairs
        for (std::size_t I = 0; I < std::size(Values); I += 2) {
            SCOPED_TRACE(VarToStr(Values[I]) + u" and " + VarToStr(Values[I + 1]));
            EXPECT_EQ(Values[I] == Values[I + 1], AEqual);
            EXPECT_EQ(Values[I + 1] == Values[I], AEqual);
            EXPECT_EQ(QzSameVar(Values[I], Values[I + 1]), ASame);
        }
    };
    Check(true, true, 1, 1, Variant::Null(), Variant::Null());
    Check(true, false, 1, 1.0, 1, u"1", -1, true, 0.5F, 0.5, u"é", AnsiString(UnicodeString(u"é")), Variant(),
          0, Variant(), u"", u"true", true, UINT64_MAX, 18446744073709551616.0);
    Check(false, false, -1, UINT64_MAX, INT64_MIN, 0x8000000000000000U, u"a", u"A", Variant(), u"a",
          Variant::Null(), Variant(), NAN, NAN);
    EXPECT_THROW(static_cast<void>(Variant(1) == Variant(u"one")), EVariantTypeCastError);
    EXPECT_THROW(static_cast<void>(Variant(true) == Variant(u"one")), EVariantTypeCastError);
    EXPECT_THROW(static_cast<void>(QzSameVar(VarArrayOf({}), VarArrayOf({}))), EVariantInvalidOpError);
}

TEST(Compare, ArraysElementByElementOfTheFirst) {
    Variant Shifted = VarArrayCreate({1, 2});
    VarArrayPut(Shifted, 2, 1);
    VarArrayPut(Shifted, 3, 2);
    const Variant Three = VarArrayOf({1, 2, 3});
    const struct {
        Variant Left, Right;
        bool Same;
    } cCases[] = {
        {Three, VarArrayOf({1.0, u"2", 3}), true},
        {VarArrayOf({1, 2}), Three, true},
        {Three, VarArrayOf({1, 2}), false},
        {Shifted, Three, true},
        {Three, Shifted, false},
        {VarArrayOf({}), u"no array", true},
        {u"no array", Three, false},
        {VarArrayOf({u"x"}), Three, false},
        {VarArrayOf({Three}), VarArrayOf({Three}), false},
    };
    for (std::size_t I = 0; I < std::size(cCases); ++I)
        EXPECT_EQ(QzSameArray(cCases[I].Left, cCases[I].Right), cCases[I].Same) << I;
}

} // namespace
} // namespace qz
