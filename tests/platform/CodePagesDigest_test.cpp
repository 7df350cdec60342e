// Every page of one or two bytes a character, whole, beside the digests of tests/data/code-pages.txt.
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qz/platform/CodePages.h>

namespace qz::platform {
namespace {

constexpr bool cOnWindows = QZ_TESTS_ON_WINDOWS != 0;

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

// What a line tells of this system: "-" for a page that it doesn't convert, "*" for one that isn't digested.
std::map<uint32_t, std::string> Expected() {
    std::map<uint32_t, std::string> Result;
    std::ifstream File(QZ_TEST_DATA "/code-pages.txt");
    for (std::string Line; std::getline(File, Line);) {
        std::istringstream Words(Line);
        uint32_t Page = 0;
        std::string Linux, Windows;
        if (Words >> Page >> Linux >> Windows)
            Result[Page] = cOnWindows ? Windows : Linux;
    }
    return Result;
}

// The listed pages and, to find what isn't listed, others: all of them, but only those nearby where the system
// looks for a file for each.
std::set<uint32_t> PagesToTry(const std::map<uint32_t, std::string>& AListed) {
    std::set<uint32_t> Result;
    for (uint32_t Page = 1; Page < (cOnWindows ? 1 : 0x10000); ++Page)
        Result.insert(Page);
    for (const auto& Listed : AListed) {
        for (uint32_t Page = Listed.first - 2; Page <= Listed.first + 2; ++Page)
            Result.insert(Page);
    }
    return Result;
}

TEST(CodePagesDigest, EveryPageAnswersAsListed) {
    const std::map<uint32_t, std::string> Listed = Expected();
    EXPECT_GT(Listed.size(), 100u);
    const std::u16string Characters = EveryCharacter();
    for (const uint32_t Page : PagesToTry(Listed)) {
        const uint32_t Size = CodePageMaxCharSize(Page);
        const auto Line = Listed.find(Page);
        std::string Actual = "-";
        if (Size > 2)
            Actual = "*";
        else if (Size > 0)
            Actual = (std::ostringstream() << std::hex << Digest(Page, Size, Characters)).str();
        const std::string Wanted = Line != Listed.end() ? Line->second : "-";
        EXPECT_EQ(Actual, Wanted) << "page " << Page;
    }
}

} // namespace
} // namespace qz::platform
