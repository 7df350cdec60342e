// Whatever text comes: reading it ends, and lines that are written are read back as they were.
#include "fuzz/Fuzz.h"
#include <qz/runtime/lists/StringList.h>

namespace {

// The lines of AList, written and read again by the same settings.
void CheckDelimited(const qz::TStringList& AList, char16_t ADelimiter, bool AStrict) {
    qz::TStringList Source, Copy;
    Source.AddStrings(AList);
    for (qz::TStringList* List : {&Source, &Copy}) {
        List->SetDelimiter(ADelimiter);
        List->SetStrictDelimiter(AStrict);
    }
    Copy.SetDelimitedText(Source.DelimitedText());
    Require(Copy.Equals(Source));
}

void CheckLines(const qz::TStringList& AList) {
    qz::TStringList Copy;
    Copy.SetCommaText(AList.CommaText());
    Require(Copy.Equals(AList));
    for (const char16_t Delimiter : {u';', u' ', u'\t', u'\0', u'x'})
        for (const bool Strict : {false, true})
            CheckDelimited(AList, Delimiter, Strict);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::UnicodeString Text(TextOf(AData, ASize));
    qz::TStringList Lines, Again, Items;
    Lines.SetText(Text);
    CheckLines(Lines);
    Again.SetText(Lines.Text());
    Require(Again.Equals(Lines));
    for (const bool Strict : {false, true}) {
        Items.SetStrictDelimiter(Strict);
        Items.SetDelimitedText(Text);
        CheckLines(Items);
    }
    return 0;
}
