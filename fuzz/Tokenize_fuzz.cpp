// Tokens and delimiters make up the text again, and both ways to take a text apart agree on one delimiter.

#include "fuzz/Fuzz.h"
#include <qz/common/uQzSysUtils/Tokenize.h>

namespace {

// No token is empty or holds a delimiter, each delimiter is one, and the parts have the length of the whole.
void CheckCharacters(const qz::UnicodeString& AText, const qz::UnicodeString& ADelimiters) {
    qz::TStringList Tokens, Found;
    qz::QzTokenize(AText, Tokens, ADelimiters, &Found);
    const std::u16string_view Set = ADelimiters.empty() ? qz::cQzTokenDelimiters : ADelimiters.View();
    std::size_t Place = 0;
    std::size_t Total = 0;
    for (const qz::UnicodeString& Token : Tokens) {
        Require(!Token.empty() && Token.View().find_first_of(Set) == std::u16string_view::npos);
        Place = AText.View().find(Token.View(), Place);
        Require(Place != std::u16string_view::npos);
        Place += Token.size();
        Total += Token.size();
    }
    for (const qz::UnicodeString& Delimiter : Found)
        Require(Delimiter.size() == 1 && Set.find(Delimiter[0]) != std::u16string_view::npos);
    Require(Total + static_cast<std::size_t>(Found.Count()) == AText.size());
}

void CheckDelimiter(const qz::UnicodeString& AText, const qz::UnicodeString& ADelimiter) {
    qz::TStringList Pieces, Matched;
    qz::QzStringToList(AText, ADelimiter, Pieces);
    Require(qz::QzListToString(Pieces, ADelimiter) == AText);
    if (ADelimiter.empty())
        return;
    qz::QzTokenize(Matched, AText, qz::TRegEx::Escape(ADelimiter));
    Require(Matched.Equals(Pieces));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    // The first line is the delimiters, the expression or the delimiter, the rest the text.
    const qz::UnicodeString Whole(TextOf(AData, ASize));
    const std::size_t End = std::min(Whole.View().find(u'\n'), Whole.size());
    const qz::UnicodeString First(Whole.View().substr(0, End));
    const qz::UnicodeString Text(Whole.View().substr(std::min(End + 1, Whole.size())));
    CheckCharacters(Text, First);
    CheckDelimiter(Text, First);
    try {
        qz::TStringList Tokens;
        qz::QzTokenize(Tokens, Text, First, {qz::roIgnoreCase});
        Require(First.empty() || Tokens.Count() > 0);
    } catch (const qz::ERegularExpressionError&) { // no expression, or one that asks for too much
    }
    return 0;
}
