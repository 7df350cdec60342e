#include <qz/common/uQzClasses/TextParser.h>

#include <gtest/gtest.h>

#include <random>

#include "tests/common/support/ParserSteps.h"
#include "tests/support/SystemPage.h"
#include <qz/runtime/streams/MemoryStream.h>
#include <qz/runtime/text/Encoding.h>

namespace qz {
namespace {

std::string BytesOf(const UnicodeString& AText, std::uint16_t ACodePage) {
    const TBytes Bytes = TEncoding(ACodePage).GetBytes(AText);
    return std::string(Bytes.begin(), Bytes.end());
}

// Checks a parser of each kind over the text.
template <class TCheck> void OfEachKind(const UnicodeString& AText, TCheck ACheck) {
    for (const std::uint16_t CodePage : {std::uint16_t{1252}, std::uint16_t{1200}, std::uint16_t{65001}}) {
        SCOPED_TRACE(CodePage);
        const std::string Bytes = BytesOf(AText, CodePage);
        TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        ACheck(Parser);
    }
}

TEST(TextParser, StepsAndCountsByKind) {
    const char16_t Chars[] = {u'a', u'\n', u'ä', u'b', 0};
    const std::map<int, std::array<const char16_t*, 5>> Expected = {
        {1252, {u"1:0 0/0", u"2:1 1/1", u"2:2 2/2", u"2:3 3/3", u"2:4 4/4 end"}},
        {1200, {u"1:0 0/0", u"2:1 2/2", u"2:2 4/4", u"2:3 6/6", u"2:4 8/8 end"}},
        {65001, {u"1:0 0/0", u"1:1 1/1", u"2:1 2/2", u"2:2 3/4", u"2:3 4/5 end"}}};
    OfEachKind(u"a\näb", [&](TQzTextParser& AParser) {
        for (int Round = 0; Round < 2; ++Round) {
            for (std::size_t I = 0; I < 5; ++I) {
                EXPECT_EQ(AParser.CurrChar(), Chars[I]);
                EXPECT_EQ(Places(AParser), Expected.at(AParser.ContentCodePage())[I]);
                EXPECT_EQ(AParser.PrevChar(), I == 0 ? u'\0' : Chars[I - 1]);
                if (!AParser.Eof())
                    AParser.Next();
            }
            EXPECT_THROW(AParser.Next(), EQzTextParserEOF);
            EXPECT_THROW(AParser.CheckEOF(), EQzTextParserEOF);
            EXPECT_EQ(AParser.ReadChar() + AParser.PeekChar(), 0);
            AParser.First();
        }
        AParser.Last();
        EXPECT_EQ(Places(AParser), u"1:0 0/0 end") << "the counters stay";
    });
}

TEST(TextParser, RefusesWhatItCannotParse) {
    EXPECT_THROW(TQzTextParser("", 0, 0), EAssertionFailed);
    for (const std::uint16_t Page : {std::uint16_t{1201}, std::uint16_t{12000}, std::uint16_t{12001}})
        EXPECT_EQ(Outcome([&] { return TQzTextParser("abcd", 4, Page), UnicodeString(); }),
                  u"raised The specified encoding is not supported!");
    TQzTextParser Parser("a\xE4", 2, 1252);
    Parser.SetContentCodePage(850);
    Parser.Next();
    EXPECT_EQ(Parser.CurrChar(), u'\u00F5');
    EXPECT_EQ(Outcome([&] { return Parser.SetMark(tpCurPos), UnicodeString(); }),
              u"raised Invalid MarkType specified!");
    EXPECT_EQ(Outcome([&] { return Parser.GetPos(static_cast<TQzTextParserPosType>(6)), UnicodeString(); }),
              u"raised Invalid TillPos specified!");
    EXPECT_THROW(Parser.Selected(tpMarkPos1, tpCurPos, false), EAssertionFailed);
}

TEST(TextParser, SelectsBetweenAnyTwoPlaces) {
    const TSystemPage Page(1252);
    OfEachKind(u"xäöüz", [](TQzTextParser& AParser) {
        AParser.Next();
        AParser.SetMark(tpMarkPos1);
        AParser.SkipChars(2);
        EXPECT_EQ(AParser.Selected(tpMarkPos1, tpPeekPos, false), u"äöü");
        EXPECT_EQ(AParser.SelectedA(tpMarkPos1, tpCurPos, false).View(), "\xE4\xF6");
        EXPECT_EQ(AParser.PeekString(9), u"üz");
        EXPECT_EQ(AParser.Selected(tpMarkPos1, tpCurPos, true), u"äö");
        EXPECT_EQ(AParser.GetPos(tpMarkPos1), nullptr);
        AParser.SetMark(tpMarkPos2);
        AParser.Next();
        EXPECT_THROW(AParser.SelectedCnt(tpCurPos, tpMarkPos2), EAssertionFailed) << "in the wrong order";
        AParser.Next();
        EXPECT_THROW(AParser.SelectedCnt(tpMarkPos2, tpPeekPos), EQzTextParserEOF);
        EXPECT_EQ(AParser.Selected(tpMarkPos2, tpCurPos, true), u"üz");
    });
}

TEST(TextParser, LooksAheadBeyondControlCharacters) {
    OfEachKind(u"a\r\nb\tc\r\n", [](TQzTextParser& AParser) {
        EXPECT_EQ(AParser.PeekChar(), u'b');
        EXPECT_EQ(Places(AParser), u"1:0 0/0");
        EXPECT_EQ(AParser.GetPos(tpPeekPos), nullptr);
        AParser.NextChar();
        EXPECT_EQ(AParser.ReadChar(), u'b');
        EXPECT_EQ(AParser.CurrChar(), u'\t');
        EXPECT_EQ(AParser.PeekCharA(), 'c');
        EXPECT_EQ(AParser.PrevCharA(), 'b');
        AParser.NextChar();
        EXPECT_EQ(AParser.PeekChar(), u'\0');
        EXPECT_FALSE(AParser.Eof());
    });
    TPlainStream Stream("a\r\nbc");
    TChunkedParser Parser(&Stream, 1252, 2);
    EXPECT_EQ(*Parser.SrcPeekNext(4), 'c');
    EXPECT_THROW(Parser.SrcPeekNext(5), EQzTextParserEOF);
}

TEST(TextParser, RaisesWhereTheEndCutsAForm) {
    TQzTextParser Parser("a\xE2\x82", 3, 65001);
    Parser.Next();
    EXPECT_THROW(Parser.CurrChar(), EQzTextParserEOF);
    EXPECT_THROW(Parser.SkipWhile(sopGt, u' '), EQzTextParserEOF);
    EXPECT_THROW(Parser.Next(), EQzTextParserEOF);
    Parser.First();
    EXPECT_THROW(Parser.PeekChar(), EQzTextParserEOF);
    EXPECT_EQ(Parser.ReadChar(), u'a');
    TQzTextParser Half("a\0b", 3, 1200);
    EXPECT_EQ(Half.SelectedCnt(tpCurPos, tpPeekPos), 2);
    Half.Next();
    EXPECT_TRUE(Half.Eof());
    EXPECT_EQ(Half.CurrChar(), u'\0');
    EXPECT_TRUE(TQzTextParser("a", 1, 1200).Eof());
    TQzTextParser Changed("abc", 3, 1252);
    Changed.SkipChars(2);
    Changed.SetCharacterSetType(DBCS);
    EXPECT_TRUE(Changed.Eof()) << "half a unit is left";
    Changed.SkipWhile(sopUnEq, u'x');
}

TEST(TextParser, StartsWhereTheStreamStandsAndSurvivesItsEnd) {
    TMemoryStream Memory;
    Memory.WriteBuffer("head\nab", 7);
    TPlainStream Plain("head\nab");
    for (TStream* Stream : std::initializer_list<TStream*>{&Memory, &Plain}) {
        Stream->SetPosition(5);
        TChunkedParser Parser(Stream, 1252, 1);
        for (int Round = 0; Round < 2; ++Round) {
            Parser.First();
            EXPECT_EQ(Parser.ReadChar(), u'a');
            EXPECT_EQ(Parser.ReadChar(), u'b');
            EXPECT_TRUE(Parser.Eof());
            EXPECT_EQ(Stream->Position(), 7);
        }
        Memory.Clear();
        Plain.FBytes.clear();
        Parser.First();
        EXPECT_EQ(Parser.CurrChar(), u'\0');
        Plain.FBytes = "head\nab";
    }
}

// Nothing is read twice or lost, and no place is left, when the stream raises.
TEST(TextParser, SurvivesAStreamThatRaises) {
    for (const std::uint16_t CodePage : {std::uint16_t{1252}, std::uint16_t{1200}, std::uint16_t{65001}}) {
        for (int FailAfter = 0; FailAfter < 6; ++FailAfter) {
            TPlainStream Stream(BytesOf(u"abcdefghijkl", CodePage));
            TChunkedParser Parser(&Stream, CodePage, 4);
            const std::function<void()> Steps[] = {[&] { Parser.Last(); }, [&] { Parser.First(); },
                                                   [&] { Parser.SkipWhile(sopUnEq, u'l'); },
                                                   [&] { Parser.PeekString(6); }};
            for (const auto& Step : Steps) {
                Parser.First();
                Parser.Next();
                Stream.FFailAfter = FailAfter;
                Outcome([&] { return Step(), UnicodeString(); });
                Stream.FFailAfter = -1;
                Parser.CurrChar();
                Parser.SkipWhile(sopUnEq, u'l');
                Parser.First();
                EXPECT_EQ(Parser.PeekString(99), u"abcdefghijkl") << FailAfter;
            }
        }
    }
}

TEST(TextParser, TheEndOfHalfAUnit) {
    TQzTextParser Memory("abc", 3, 1252);
    Memory.Next();
    Memory.Last();
    EXPECT_EQ(Memory.PrevChar(), u'a') << "the previous place stays";
    for (const bool Jumps : {true, false}) {
        TQzTextParser Odd("a\0b\0c", 5, 1200);
        Odd.SetMark(tpMarkPos1);
        if (Jumps)
            Odd.Last();
        else
            Odd.SkipWhile(sopUnEq, u'x');
        EXPECT_TRUE(Odd.Eof() && Odd.SelectedCnt(tpMarkPos1, tpCurPos) == 4) << Jumps;
        Odd.SetCharacterSetType(SBCS);
        Odd.SetContentCodePage(1252);
        EXPECT_EQ(Odd.ReadChar(), u'c') << Jumps;
        EXPECT_TRUE(Odd.Eof());
    }
}

// Runs are passed as steps would pass them.
TEST(TextParser, PassesRunsAsStepsWould) {
    const std::function<bool(char16_t, char16_t)> Matches[] = {std::equal_to<>(),   std::less<>(),
                                                               std::greater<>(),    std::not_equal_to<>(),
                                                               std::less_equal<>(), std::greater_equal<>()};
    std::mt19937 Engine(8);
    const auto Random = [&](unsigned ACount) { return static_cast<std::size_t>(Engine() % ACount); };
    for (int Round = 0; Round < 600; ++Round) {
        const std::uint16_t CodePage = Round % 3 == 0 ? 1252 : Round % 3 == 1 ? 1200 : 65001;
        UnicodeString Text;
        for (std::size_t I = Random(100) + 1; I > 0; --I)
            Text += UnicodeString(u"ab\n \u00E4"[Random(5)]);
        const std::string Bytes = BytesOf(Text, CodePage);
        TQzTextParser ByRun(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        TQzTextParser ByStep(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        while (!ByStep.Eof()) {
            const char16_t Stop = u"ab\n \u00E4"[Random(5)];
            const auto Op = static_cast<TQzTextParserSkipOp>(Random(6));
            if (Stop < 0x80 && (Op == sopEq || Op == sopUnEq))
                ByRun.SkipWhileInSet(Op == sopEq ? sopIn : sopNotIn, {static_cast<char>(Stop)});
            else
                ByRun.SkipWhile(Op, Stop);
            while (!ByStep.Eof() && Matches[static_cast<std::size_t>(Op)](ByStep.CurrChar(), Stop))
                ByStep.Next();
            ASSERT_EQ(Places(ByRun), Places(ByStep)) << Round;
            ASSERT_EQ(ByRun.PrevChar(), ByStep.PrevChar());
            if (!ByStep.Eof()) {
                ByRun.Next();
                ByStep.Next();
            }
        }
    }
    TQzTextParser Wide(u"12\u20AC3x", 10, 1200);
    Wide.SkipWhileInSet(sopIn, TCharSet::Range('0', '9'));
    EXPECT_EQ(Wide.CurrChar(), u'x') << "what is above 255 is passed";
}

} // namespace
} // namespace qz
