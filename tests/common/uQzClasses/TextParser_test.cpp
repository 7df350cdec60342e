#include <qz/common/uQzClasses/TextParser.h>

#include <gtest/gtest.h>

#include <random>

#include "tests/common/support/ParserSteps.h"
#include "tests/support/SystemPage.h"
#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/runtime/streams/MemoryStream.h>
#include <qz/runtime/text/Encoding.h>

namespace qz {
namespace {

std::string BytesOf(const UnicodeString& AText, std::uint16_t ACodePage) {
    const TBytes Bytes = TEncoding(ACodePage).GetBytes(AText);
    return std::string(Bytes.begin(), Bytes.end());
}

TEST(TextParser, StepsAndCountsByKind) {
    const char16_t Chars[] = {u'a', u'\n', u'ä', u'b', 0};
    const struct {
        std::uint16_t CodePage;
        const char16_t* Places[5];
    } Cases[] = {{1252, {u"1:0 0/0", u"2:1 1/1", u"2:2 2/2", u"2:3 3/3", u"2:4 4/4 end"}},
                 {1200, {u"1:0 0/0", u"2:1 2/2", u"2:2 4/4", u"2:3 6/6", u"2:4 8/8 end"}},
                 {65001, {u"1:0 0/0", u"1:1 1/1", u"2:1 2/2", u"2:2 3/4", u"2:3 4/5 end"}}};
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.CodePage);
        const std::string Bytes = BytesOf(u"a\näb", Case.CodePage);
        TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), Case.CodePage);
        for (int Round = 0; Round < 2; ++Round) {
            for (std::size_t I = 0; I < 5; ++I) {
                EXPECT_EQ(Parser.CurrChar(), Chars[I]);
                EXPECT_EQ(Places(Parser), Case.Places[I]);
                EXPECT_EQ(Parser.PrevChar(), I == 0 ? u'\0' : Chars[I - 1]);
                if (!Parser.Eof())
                    Parser.Next();
            }
            EXPECT_THROW(Parser.Next(), EQzTextParserEOF);
            EXPECT_THROW(Parser.CheckEOF(), EQzTextParserEOF);
            EXPECT_EQ(Parser.ReadChar() + Parser.PeekChar(), 0);
            Parser.First();
        }
        Parser.Last();
        EXPECT_EQ(Places(Parser), u"1:0 0/0 end") << "the counters stay";
        Parser.First();
        Parser.Next();
        Parser.Last();
        EXPECT_EQ(Parser.PrevChar(), u'a') << "and the previous place";
    }
}

TEST(TextParser, RefusesWhatItCannotParse) {
    TQzMemoryStream Empty(16);
    EXPECT_THROW(TQzTextParser(&Empty, false, 0), EAssertionFailed);
    EXPECT_THROW(TQzTextParser("", 0, 0), EAssertionFailed);
    TPlainStream Shortest("a");
    EXPECT_EQ(TChunkedParser(&Shortest, 1252, 1).CurrChar(), u'a');
    for (const int Page : {1201, 12000, 12001})
        EXPECT_EQ(Outcome([&] {
                      TQzTextParser("abcd", 4, static_cast<std::uint16_t>(Page));
                      return UnicodeString();
                  }),
                  u"raised The specified encoding is not supported!");
    TQzTextParser Parser("a\xE4", 2, 1252);
    Parser.SetContentCodePage(850);
    Parser.Next();
    EXPECT_EQ(Parser.CurrChar(), u'\u00F5');
    for (const int Page : {1200, 65001})
        EXPECT_THROW(Parser.SetContentCodePage(static_cast<std::uint16_t>(Page)), Exception);
    EXPECT_EQ(Parser.ContentCodePage(), 850);
    EXPECT_EQ(Outcome([&] { return Parser.SetMark(tpCurPos), UnicodeString(); }),
              u"raised Invalid MarkType specified!");
    EXPECT_EQ(Outcome([&] { return Parser.GetPos(static_cast<TQzTextParserPosType>(6)), UnicodeString(); }),
              u"raised Invalid TillPos specified!");
    EXPECT_THROW(Parser.Selected(tpMarkPos1, tpCurPos, false), EAssertionFailed);
    EXPECT_THROW(TQzTextParser("\xE4", 1, 4711).CurrChar(), EOSError);
}

TEST(TextParser, SelectsBetweenAnyTwoPlaces) {
    const TSystemPage Page(1252);
    for (const std::uint16_t CodePage : {std::uint16_t{1252}, std::uint16_t{1200}, std::uint16_t{65001}}) {
        const std::string Bytes = BytesOf(u"xäöüz", CodePage);
        TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        Parser.Next();
        Parser.SetMark(tpMarkPos1);
        Parser.SkipChars(2);
        EXPECT_EQ(Parser.Selected(tpMarkPos1, tpPeekPos, false), u"äöü");
        EXPECT_EQ(Parser.Selected(tpCurPos, tpPeekPos, false), u"ü");
        EXPECT_EQ(Parser.Selected(tpPrevPos, tpPeekPos, false), u"öü");
        EXPECT_EQ(std::string(Parser.SelectedA(tpMarkPos1, tpCurPos, false).View()), "\xE4\xF6");
        EXPECT_EQ(Parser.PeekString(1).IsEmpty() ? u"" : u"ö" + Parser.PeekString(9), u"öüz");
        EXPECT_EQ(std::string(Parser.PeekStringA(2).View()), "\xFCz");
        EXPECT_EQ(Parser.PeekString(-1), u"");
        EXPECT_EQ(Parser.Selected(tpMarkPos1, tpCurPos, true), u"äö");
        EXPECT_EQ(Parser.GetPos(tpMarkPos1), nullptr);
        Parser.SetMark(tpMarkPos2);
        Parser.Next();
        EXPECT_THROW(Parser.SelectedCnt(tpCurPos, tpMarkPos2), EAssertionFailed) << "in the wrong order";
        Parser.Next();
        EXPECT_THROW(Parser.SelectedCnt(tpMarkPos2, tpPeekPos), EQzTextParserEOF);
        EXPECT_TRUE(Parser.Eof());
        EXPECT_EQ(Parser.Selected(tpMarkPos2, tpCurPos, true), u"üz");
    }
}

TEST(TextParser, LooksAheadBeyondControlCharacters) {
    for (const std::uint16_t CodePage : {std::uint16_t{1252}, std::uint16_t{1200}, std::uint16_t{65001}}) {
        const std::string Bytes = BytesOf(u"a\r\nb\tc\r\n", CodePage);
        TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        EXPECT_EQ(Parser.PeekChar(), u'b');
        EXPECT_EQ(Places(Parser), u"1:0 0/0");
        EXPECT_EQ(Parser.GetPos(tpPeekPos), nullptr);
        Parser.NextChar();
        EXPECT_EQ(Parser.ReadChar(), u'b');
        EXPECT_EQ(Parser.CurrChar(), u'\t');
        EXPECT_EQ(Parser.PeekCharA(), 'c');
        EXPECT_EQ(Parser.PrevCharA(), 'b');
        Parser.NextChar();
        EXPECT_EQ(Parser.PeekChar(), u'\0');
        EXPECT_FALSE(Parser.Eof());
        Parser.NextChar();
        EXPECT_TRUE(Parser.Eof());
    }
}

TEST(TextParser, SkipsRuns) {
    const TSystemPage Page(1252);
    for (const std::uint16_t CodePage : {std::uint16_t{1252}, std::uint16_t{1200}, std::uint16_t{65001}}) {
        const std::string Bytes = BytesOf(u"  \r\n 123é\u20AC4x", CodePage);
        TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        Parser.SkipWhile(sopLtEq, cQzSpaceW);
        EXPECT_EQ(Parser.CurrChar(), u'1');
        EXPECT_EQ(Parser.LineNr(), 2);
        Parser.SkipWhile(sopIn, u'1');
        Parser.SkipWhileInSet(sopIn, TCharSet::Range('0', '9'));
        EXPECT_EQ(Parser.CurrChar(), u'é');
        Parser.SkipWhile(sopEq, '\xE9');
        EXPECT_EQ(Parser.CurrChar(), u'\u20AC');
        Parser.SkipWhile(sopGt, '4');
        EXPECT_EQ(Parser.CurrChar(), u'4');
        Parser.SkipWhile(sopUnEq, u'q');
        EXPECT_TRUE(Parser.Eof());
        Parser.SkipWhile(sopUnEq, u'q');
        EXPECT_EQ(Parser.PrevChar(), u'x');
    }
    TQzTextParser Wide(u"12\u20AC3x", 10, 1200);
    Wide.SkipWhileInSet(sopIn, TCharSet::Range('0', '9'));
    EXPECT_EQ(Wide.CurrChar(), u'x') << "what is above 255 is passed";
}

TEST(TextParser, RaisesWhereTheEndCutsAForm) {
    TQzTextParser Parser("a\xE2\x82", 3, 65001);
    Parser.Next();
    EXPECT_THROW(Parser.CurrChar(), EQzTextParserEOF);
    EXPECT_THROW(Parser.SkipWhile(sopGt, u' '), EQzTextParserEOF);
    EXPECT_THROW(Parser.Next(), EQzTextParserEOF);
    Parser.First();
    EXPECT_THROW(Parser.PeekChar(), EQzTextParserEOF);
    EXPECT_EQ(Parser.CurrChar(), u'a');
    EXPECT_EQ(Parser.ReadChar(), u'a');
    TQzTextParser Half("a\0b", 3, 1200);
    Half.Next();
    EXPECT_TRUE(Half.Eof());
    EXPECT_EQ(Half.CurrChar(), u'\0');
    EXPECT_TRUE(TQzTextParser("a", 1, 1200).Eof());
    TQzTextParser Pair("\xF0\x9F\x98\x80x", 5, 65001);
    EXPECT_EQ(Pair.ReadChar(), u'\uFFFD');
    EXPECT_EQ(Pair.CurrChar(), u'x');
}

TEST(TextParser, StartsWhereTheStreamStands) {
    TQzMemoryStream Memory(16);
    Memory.WriteBuffer("head\nab", 7);
    Memory.SetPosition(5);
    TPlainStream Plain("head\nab");
    Plain.SetPosition(5);
    for (TStream* Stream : std::initializer_list<TStream*>{&Memory, &Plain}) {
        TChunkedParser Parser(Stream, 1252, 1);
        for (int Round = 0; Round < 2; ++Round) {
            EXPECT_EQ(Parser.ReadChar(), u'a');
            EXPECT_EQ(Parser.ReadChar(), u'b');
            EXPECT_TRUE(Parser.Eof());
            EXPECT_EQ(Stream->Position(), 7);
            Parser.First();
        }
    }
    Plain.SetPosition(0);
    TChunkedParser Shrunk(&Plain, 1252, 2);
    Plain.FBytes.resize(3);
    EXPECT_EQ(Shrunk.PeekString(10), u"hea");
    Shrunk.SkipWhile(sopUnEq, u'#');
    EXPECT_EQ(Shrunk.Position(), 3);
    Plain.FBytes.clear();
    Shrunk.First();
    EXPECT_TRUE(Shrunk.Eof());
    TMemoryStream Emptied;
    Emptied.WriteBuffer("abc", 3);
    Emptied.SetPosition(0);
    TQzTextParser Over(&Emptied, false, 1252);
    Emptied.Clear();
    Over.First();
    EXPECT_TRUE(Over.Eof());
    EXPECT_EQ(Over.CurrChar(), u'\0');
}

// Nothing is read twice or lost, and no place is left behind, when the stream raises.
TEST(TextParser, SurvivesAStreamThatRaises) {
    for (const std::uint16_t CodePage : {std::uint16_t{1252}, std::uint16_t{1200}, std::uint16_t{65001}}) {
        const std::string Bytes = BytesOf(u"abcdefghijkl", CodePage);
        for (int FailAfter = 0; FailAfter < 6; ++FailAfter) {
            TPlainStream Stream(Bytes);
            TChunkedParser Parser(&Stream, CodePage, 4);
            Parser.Next();
            const auto Fails = [&](auto AStep) {
                Stream.FFailAfter = FailAfter;
                const UnicodeString Result = Outcome([&] { return AStep(), UnicodeString(); });
                Stream.FFailAfter = -1;
                Parser.CurrChar();
                return !Result.IsEmpty();
            };
            Fails([&] { Parser.Last(); });
            Parser.First();
            EXPECT_EQ(Parser.PeekString(99), u"abcdefghijkl") << FailAfter;
            Fails([&] { Parser.First(); });
            Parser.First();
            const bool Failed = Fails([&] { Parser.SkipWhile(sopUnEq, u'l'); });
            EXPECT_TRUE(Failed || Parser.CurrChar() == u'l');
            Parser.First();
            EXPECT_EQ(Parser.PeekString(99), u"abcdefghijkl") << FailAfter;
            Parser.First();
            Fails([&] { Parser.PeekString(6); });
            Parser.SkipWhile(sopUnEq, u'l');
            Parser.First();
            EXPECT_EQ(Parser.PeekString(99), u"abcdefghijkl") << "a read that was tried again";
        }
    }
}

TEST(TextParser, TakesTheRestForAnotherKindOfText) {
    TQzTextParser Parser("abc", 3, 1252);
    Parser.SkipChars(2);
    Parser.SetCharacterSetType(DBCS);
    EXPECT_TRUE(Parser.Eof()) << "half a unit is left";
    EXPECT_EQ(Parser.CurrChar(), u'\0');
    Parser.SkipWhile(sopUnEq, u'x');
    TQzTextParser Half("a\0b\0c", 5, 1200);
    Half.Next();
    EXPECT_EQ(Half.SelectedCnt(tpCurPos, tpPeekPos), 2);
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
    TQzTextParser One("a", 1, 1200);
    EXPECT_TRUE(One.GetEOF());
}

// Runs are passed as steps would pass them.
TEST(TextParser, PassesRunsAsStepsWould) {
    std::mt19937 Engine(8);
    const auto Random = [&] { return static_cast<unsigned>(Engine()); };
    for (int Round = 0; Round < 300; ++Round) {
        const std::uint16_t CodePage = Round % 3 == 0 ? 1252 : Round % 3 == 1 ? 1200 : 65001;
        UnicodeString Text;
        for (unsigned I = Random() % 100 + 1; I > 0; --I)
            Text += UnicodeString(u"ab\n \u00E4"[Random() % 5]);
        const std::string Bytes = BytesOf(Text, CodePage);
        TQzTextParser ByRun(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        TQzTextParser ByStep(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        while (!ByStep.Eof()) {
            const char16_t Stop = u"ab\n \u00E4"[Random() % 5];
            const bool Set = Stop < 0x80 && Random() % 2 == 0;
            if (Set)
                ByRun.SkipWhileInSet(sopNotIn, {static_cast<char>(Stop)});
            else
                ByRun.SkipWhile(sopUnEq, Stop);
            while (!ByStep.Eof() && ByStep.CurrChar() != Stop)
                ByStep.Next();
            ASSERT_EQ(Places(ByStep), Places(ByRun)) << Round;
            ASSERT_EQ(ByStep.PrevChar(), ByRun.PrevChar());
            if (!ByStep.Eof()) {
                ByRun.Next();
                ByStep.Next();
            }
        }
    }
}

TEST(TextParser, FindsAPlaceAheadWithoutMoving) {
    TPlainStream Stream("a\r\nbc");
    TChunkedParser Parser(&Stream, 1252, 2);
    EXPECT_EQ(*Parser.SrcPeekNext(1), 'b');
    EXPECT_EQ(*Parser.SrcPeekNext(4), 'c');
    EXPECT_EQ(Parser.CurrChar(), u'a');
    EXPECT_THROW(Parser.SrcPeekNext(5), EQzTextParserEOF);
    EXPECT_EQ(Places(Parser), u"1:0 0/0");
}

} // namespace
} // namespace qz
