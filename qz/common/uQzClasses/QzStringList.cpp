#include <qz/common/uQzClasses/QzStringList.h>

#include <algorithm>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzStringList);

constinit const TClassRec TQzStringList::ClassRec =
    DescribeClass<TQzStringList>(u"TQzStringList", {.Unit = u"uQzClasses"});

void TQzStringList::Tokenize(const TStringArg& AText, char16_t ADelimiter) {
    const UnicodeString Text = AText.ToString(); // stays when it is a line of this list
    SetDelimiter(ADelimiter);
    BeginUpdate();
    try {
        Clear();
        AddPieces(Text);
    } catch (...) {
        EndUpdate();
        throw;
    }
    EndUpdate();
}

void TQzStringList::AddPieces(std::u16string_view AText) {
    while (!AText.empty()) {
        const std::size_t Length = std::min(AText.find(Delimiter()), AText.size());
        if (Length != 0)
            Add(AText.substr(0, Length));
        AText.remove_prefix(std::min(Length + 1, AText.size()));
    }
}

} // namespace qz
