#include <qz/platform/CodePages.h>
#include <qz/platform/Module.h>

#include <gtest/gtest.h>

#include <climits>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace qz::platform {
namespace {

using namespace std::string_view_literals;

constexpr bool cOnWindows = QZ_TESTS_ON_WINDOWS != 0;
const std::u16string cRefused = u"refused";

std::span<const std::byte> BytesOf(std::string_view ABytes) {
    return std::as_bytes(std::span(ABytes));
}

// Measures, converts with just the room that it takes, and compares the two lengths.
std::u16string Decoded(uint32_t APage, std::string_view ABytes, TDecoding ADecoding = TDecoding::Lenient) {
    const TResult<size_t> Length = CodePageToUtf16(APage, BytesOf(ABytes), {}, ADecoding);
    if (!Length)
        return cRefused;
    std::u16string Result(*Length, u'#');
    const TResult<size_t> Written = CodePageToUtf16(APage, BytesOf(ABytes), Result, ADecoding);
    EXPECT_TRUE(Written && *Written == *Length) << APage;
    return Result;
}

std::string Encoded(uint32_t APage, std::u16string_view AText, TComposing AComposing = TComposing::Plain) {
    const TResult<size_t> Length = Utf16ToCodePage(APage, AText, {}, AComposing);
    std::string Result(*Length, '#');
    const TResult<size_t> Written = Utf16ToCodePage(APage, AText, Result, AComposing);
    EXPECT_TRUE(Length && Written && *Written == *Length) << APage;
    return Result;
}

// CodePagesDigest holds each page to its table; here stand pieces of text, and what spans several characters.
TEST(CodePages, ConvertsBothWays) {
    struct TCase {
        uint32_t Page;
        std::string_view Bytes;
        std::u16string_view Text;
    };
    const TCase Cases[] = {
        {1252, "", u""},
        {932, "", u""},
        {37, "\xC1\x81\xF1", u"Aa1"},
        {932, "\x83\x65\x83\x58\x83\x67\xB1", u"テストｱ"},
        {65001, "\xC3\xA4\xF0\x9F\x98\x80", u"ä\xD83D\xDE00"},
        {1252, "a\0b"sv, u"a\0b"sv},
        // Longer than the blocks that are converted at once, and whatever is behind them.
        {1252, "sixteen letters.sixteen lett\xE9rs.\x80 \x81\x9F",
         u"sixteen letters.sixteen lettérs.€ \x81Ÿ"},
        {1251, "sixteen letters.sixteen \xE6\xE6tters.tail", u"sixteen letters.sixteen жжtters.tail"},
        {936, "sixteen letters.sixteen \xB2\xE2tters. and \xCA\xD4",
         u"sixteen letters.sixteen 测tters. and 试"},
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes), Case.Text) << Case.Page;
        EXPECT_EQ(Encoded(Case.Page, Case.Text), Case.Bytes) << Case.Page;
    }
}

TEST(CodePages, DecodesWhatMeansNothingOnlyLeniently) {
    struct TCase {
        uint32_t Page;
        std::string_view Bytes;
        std::u16string_view Lenient;
        bool Strict;
    };
    const TCase Cases[] = {
        {1253, "a\xAAz", u"a\xF8F9z", false},    // a place of its own for what the page leaves free
        {932, "\x83\x65\x83", u"テ・", false},   // the end cuts a character off
        {932, "a\x83\0b"sv, u"a・\0b"sv, false}, // a zero is no trail byte
        {932, "\x83\xFFz", u"・z", false},       // any other is
        {65001, "a\xC3", u"a\xFFFD", true},      // knows no strictness
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes), Case.Lenient) << Case.Page;
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes, TDecoding::Strict), Case.Strict ? Case.Lenient : cRefused)
            << Case.Page;
    }
}

TEST(CodePages, EncodesWhatThePageLacksByItsNearest) {
    struct TCase {
        uint32_t Page;
        std::u16string_view Text;
        std::string_view Plain, Composite;
    };
    const TCase Cases[] = {
        {1252, u"\xD83D\xDE00z", "??z", "??z"},
        {1252,
         u"e\x301"
         u"a\x308z",
         "e\xB4"
         "a\xA8z",
         "\xE9\xE4z"},
        {1252, u"e\x323\x302", "e?^", "?^"},             // there is, but the page lacks it
        {1252, u"u\x308\x301", "u\xA8\xB4", "\xFC\xB4"}, // one mark only
        {1258, u"ê\x301", "\xEA\xEC", "?"},
        {932, u"は\x309Az", "\x82\xCD?z", "\x82\xCFz"},
        {949, u"\x1100\x1161", "\xA4\xA1\xA4\xBF", "\xA4\xA1\xA4\xBF"}, // syllables are not made
        {65001, u"e\x301", "e\xCC\x81", "e\xCC\x81"},
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(Encoded(Case.Page, Case.Text), Case.Plain) << Case.Page;
        EXPECT_EQ(Encoded(Case.Page, Case.Text, TComposing::Composite), Case.Composite) << Case.Page;
    }
}

TEST(CodePages, RefusesATargetThatIsTooSmall) {
    const int cTooSmall = ErrorOfSmallTarget().Code;
    char16_t Text[3];
    char Bytes[3];
    for (const uint32_t Page : {1252u, 932u, 65001u}) {
        for (const TDecoding Decoding : {TDecoding::Lenient, TDecoding::Strict})
            EXPECT_EQ(CodePageToUtf16(Page, BytesOf("abcd"), Text, Decoding).Code(), cTooSmall) << Page;
        for (const TComposing Composing : {TComposing::Plain, TComposing::Composite})
            EXPECT_EQ(Utf16ToCodePage(Page, u"\xFF71\xFF71\xFF71\xFF71", Bytes, Composing).Code(), cTooSmall);
    }
    EXPECT_EQ(Utf16ToCodePage(932, u"テテ", Bytes, TComposing::Plain).Code(), cTooSmall);
}

TEST(CodePages, RefusesUnknownPagesAndTooMuchText) {
    char Byte = 'a';
    for (const uint32_t Page : {1u, 2u, 3u, 1200u, 1201u, 12000u, 12001u, 4711u, 70000u}) {
        for (const size_t Length : {0u, 1u}) {
            EXPECT_FALSE(CodePageToUtf16(Page, BytesOf({&Byte, Length}), {}, TDecoding::Lenient)) << Page;
            EXPECT_FALSE(Utf16ToCodePage(Page, std::u16string(Length, u'a'), {}, TComposing::Plain)) << Page;
        }
        EXPECT_EQ(CodePageMaxCharSize(Page), 0u) << Page;
    }
    const std::span TooMuch(reinterpret_cast<const std::byte*>(&Byte), size_t{INT_MAX} + 1); // never read
    EXPECT_FALSE(CodePageToUtf16(1252, TooMuch, {}, TDecoding::Lenient));
    EXPECT_EQ(Decoded(0, "abc"), u"abc"); // the page of the system
}

TEST(CodePages, StateStaysWithinOneConversion) {
    struct TCase {
        uint32_t Page;
        std::string_view Bytes;
        std::u16string_view Text;
    };
    const TCase Cases[] = {
        {52936, "a~{2b~}b~~}~{2b~}", u"a测b~}测"},
        {50220, "a\x1B$B%F\x1B(B", u"aテ"},
        {50220, "\x1B$B%\"\x1B(B", u"ア"},
        {50221, "a\x1B(I12\x1B(Bb\x1B$B%F\x1B(I1\x1B$B%F\x1B(B", u"aｱｲbテｱテ"},
        {50221, "\x1B(I1\x1B(B", u"ｱ"},
        {50222,
         "a\x0E"
         "12\x0F"
         "b\x1B$B%F\x0E"
         "1\x0F%F\x1B(B",
         u"aｱｲbテｱテ"},
        {54936, "\xB2\xE2\x81\x30\x84\x36", u"测\xA5"},
        {65000, "+bUs-", u"测"},
    };
    for (const TCase& Case : Cases) {
        if (CodePageMaxCharSize(Case.Page) == 0)
            continue; // not every Windows has them all
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes), Case.Text) << Case.Page;
        EXPECT_EQ(Encoded(Case.Page, Case.Text), Case.Bytes) << Case.Page;
        // Longer than what the converter is given at a time.
        std::u16string Long;
        for (int I = 0; I < 3000; ++I)
            Long += Case.Text;
        EXPECT_EQ(Decoded(Case.Page, Encoded(Case.Page, Long)), Long) << Case.Page;
    }
    // The letter KA of the scripts of 57002 to 57011.
    constexpr std::u16string_view cKa = u"कকகకকକಕകકਕ";
    for (uint32_t I = 0; I < cKa.size(); ++I)
        EXPECT_EQ(Decoded(57002 + I, "\xB3"),
                  CodePageMaxCharSize(57002 + I) == 0 ? cRefused : cKa.substr(I, 1))
            << I;
    EXPECT_TRUE(cOnWindows || CodePageMaxCharSize(50220) == 5);
}

// Every page of one or two bytes a character, whole, beside the digests of tests/data/code-pages.txt.

bool IsWine() {
    return FindModuleFunction(u"ntdll.dll", "wine_get_version") != nullptr;
}

class TDigest {
public:
    void Add(uint64_t AValue) {
        for (int I = 0; I < 2; ++I, AValue >>= 8)
            FHash = (FHash ^ (AValue & 0xFF)) * 0x100000001B3;
    }

    template <class TText> void AddAll(const TText& AText) {
        Add(AText.size());
        for (const auto Unit : AText)
            Add(static_cast<uint16_t>(Unit));
    }

    uint64_t Hash() const { return FHash; }

private:
    uint64_t FHash = 0xCBF29CE484222325;
};

void AddDecoded(TDigest& ADigest, uint32_t APage, std::string_view ABytes) {
    char16_t Text[4];
    for (const TDecoding Decoding : {TDecoding::Lenient, TDecoding::Strict}) {
        const auto Length = CodePageToUtf16(APage, std::as_bytes(std::span(ABytes)), Text, Decoding);
        ADigest.AddAll(std::u16string_view(Text, *Length));
    }
}

// The whole Basic Multilingual Plane, and letters with marks behind them.
std::u16string EveryCharacter() {
    std::u16string Result;
    for (int Char = 0; Char < 0x10000; ++Char)
        Result += static_cast<char16_t>(Char);
    for (int Letter = 'A'; Letter < 0x250; ++Letter) {
        for (int Mark = 0x300; Mark < 0x346; ++Mark)
            Result.append({static_cast<char16_t>(Letter), static_cast<char16_t>(Mark)});
    }
    return Result;
}

uint64_t Digest(uint32_t APage, uint32_t AMaxCharSize, std::u16string_view AEveryCharacter) {
    TDigest Result;
    for (int Code = 0; Code < 0x10000; ++Code) {
        const char Bytes[] = {static_cast<char>(Code >> 8), static_cast<char>(Code)};
        if (Code < 0x100)
            AddDecoded(Result, APage, {Bytes + 1, 1});
        if (AMaxCharSize == 2)
            AddDecoded(Result, APage, {Bytes, 2});
    }
    std::string Bytes(AEveryCharacter.size() * 2, '\0');
    for (const TComposing Composing : {TComposing::Plain, TComposing::Composite}) {
        Result.AddAll(
            std::string_view(Bytes.data(), *Utf16ToCodePage(APage, AEveryCharacter, Bytes, Composing)));
    }
    return Result.Hash();
}

// "-" for a page that is not converted, "*" for one that is not digested, "+" where Published decides.
struct TListed {
    std::string Linux, Wine, Published;
};

std::map<uint32_t, TListed> Expected() {
    std::map<uint32_t, TListed> Result;
    std::ifstream File(QZ_TEST_DATA "/code-pages.txt");
    for (std::string Line; std::getline(File, Line);) {
        std::istringstream Words(Line);
        uint32_t Page = 0;
        TListed Listed;
        if (Words >> Page >> Listed.Linux >> Listed.Wine >> Listed.Published)
            Result[Page] = Listed;
    }
    return Result;
}

std::string Hex(uint64_t AValue) {
    return (std::ostringstream() << std::hex << AValue).str();
}

// Of each code that means a character, and of that character, which some code encodes. Strict decoding
// refuses a byte of the private area.
uint64_t DecodingDigest(uint32_t APage) {
    TDigest Result;
    for (int Code = 0; Code < 0x10000; ++Code) {
        const char Bytes[] = {static_cast<char>(Code >> 8), static_cast<char>(Code)};
        const std::string_view Source(Bytes + (Code < 0x100 ? 1 : 0), Bytes + 2);
        const std::u16string Text = Decoded(APage, Source);
        const bool IsPrivate = Source.size() == 1 && Text[0] >= 0xE000 && Text[0] < 0xF900;
        if (Text.size() == 1 && (IsPrivate || Decoded(APage, Source, TDecoding::Strict) != cRefused)) {
            Result.Add(static_cast<uint64_t>(Code));
            Result.Add(Text[0]);
            EXPECT_EQ(Decoded(APage, Encoded(APage, Text)), Text) << APage << " " << Code;
        }
    }
    return Result.Hash();
}

// What the page gives: its digest, "-" where it is not converted, "*" where it is not digested.
std::string Answer(uint32_t APage, std::u16string_view AEveryCharacter) {
    const uint32_t Size = CodePageMaxCharSize(APage);
    if (Size == 0)
        return "-";
    return Size > 2 ? "*" : Hex(Digest(APage, Size, AEveryCharacter));
}

// A real Windows is asked for the published decoding alone.
TEST(CodePagesDigest, EveryPageAnswersAsListed) {
    const std::map<uint32_t, TListed> Listed = Expected();
    EXPECT_GT(Listed.size(), 100u);
    const std::u16string Characters = EveryCharacter();
    for (const auto& [Page, Line] : Listed) {
        const std::string& Wanted = cOnWindows ? Line.Wine : Line.Linux;
        if (Wanted != "+" && (!cOnWindows || (IsWine() && Wanted != "-"))) {
            EXPECT_EQ(Answer(Page, Characters), Wanted) << "page " << Page;
        }
        const bool IsOther = IsWine() && Page == 20932; // made from other tables there
        if (Line.Published != "-" && CodePageMaxCharSize(Page) != 0 && !IsOther) {
            EXPECT_EQ(Hex(DecodingDigest(Page)), Line.Published) << "page " << Page;
        }
    }
    for (uint32_t Page = 1; !cOnWindows && Page < 0x10000; ++Page)
        EXPECT_TRUE(Listed.contains(Page) || CodePageMaxCharSize(Page) == 0) << "page " << Page;
}

} // namespace
} // namespace qz::platform
