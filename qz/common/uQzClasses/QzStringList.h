// TQzStringList: a string list that takes the pieces of a text.
//
//     TQzStringList Words;
//     Words.Tokenize(u"a;b;;c", u';');          // a, b, c
#pragma once

#include <qz/runtime/lists/StringList.h>

namespace qz {

class QZ_API TQzStringList : public TStringList {
    QZ_CLASS(TQzStringList, TStringList)

public:
    using TStringList::TStringList;

    // Sets Delimiter, clears the list and adds what stands between delimiters; empty pieces are left out.
    // Sorting and the rule for duplicates apply as to Add.
    void Tokenize(const TStringArg& AText, char16_t ADelimiter);

private:
    void AddPieces(std::u16string_view AText);
};

} // namespace qz
