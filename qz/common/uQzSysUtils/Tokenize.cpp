#include <qz/common/uQzSysUtils/Tokenize.h>

#include <algorithm>

#include <qz/common/uQzSysUtils/Strings.h>
#include <qz/runtime/base/StringUtils.h>

namespace qz {
namespace {

using TView = std::u16string_view;

// A bit for each character of ASCII; the rest are looked for one by one.
class TDelimiters {
public:
    explicit TDelimiters(TView ADelimiters) noexcept {
        for (const char16_t Each : ADelimiters)
            if (Each < 128)
                (Each < 64 ? FLow : FHigh) |= std::uint64_t{1} << (Each % 64);
            else
                FOthers = ADelimiters;
    }
    bool Contains(char16_t AChar) const noexcept {
        if (AChar < 128) [[likely]]
            return ((AChar < 64 ? FLow : FHigh) >> (AChar % 64) & 1) != 0;
        return FOthers.find(AChar) != TView::npos;
    }

private:
    std::uint64_t FLow = 0;  // U+0000 to U+003F
    std::uint64_t FHigh = 0; // U+0040 to U+007F
    TView FOthers;           // all delimiters, when one of them lies beyond ASCII
};

} // namespace

void QzTokenize(const TStringArg& AText, TStringList& ATarget, const TStringArg& ADelimiters,
                TStringList* ADelimiterList) {
    const TView Text = AText;
    const TDelimiters Delimiters(ADelimiters.View().empty() ? TView(cQzTokenDelimiters) : ADelimiters.View());
    const char16_t* const End = Text.data() + Text.size();
    for (const char16_t* Next = Text.data();; ++Next) {
        const char16_t* const Start = Next;
        while (Next != End && !Delimiters.Contains(*Next))
            ++Next;
        if (Next != Start)
            ATarget.Add(TView(Start, Next));
        if (Next == End)
            return;
        if (ADelimiterList != nullptr)
            ADelimiterList->Add(TView(Next, 1));
    }
}

void QzTokenize(TStringList& ATarget, const TStringArg& AText, const TStringArg& ARegEx,
                TRegExOptions AOptions) {
    if (ARegEx.View().empty())
        return QzTokenize(QzNormalizeSpace(AText), ATarget, u" ");
    int Position = 1;
    for (const TMatch& Match : TRegEx(ARegEx, AOptions).Matches(AText)) {
        ATarget.Add(Copy(AText, Position, Match.Index() - Position));
        Position = Match.Index() + Match.Length();
    }
    ATarget.Add(Copy(AText, Position));
}

void QzStringToList(const TStringArg& AText, const TStringArg& ADelimiter, TStringList& ATarget) {
    TView Rest = AText;
    const TView Delimiter = ADelimiter;
    while (!Delimiter.empty()) {
        const std::size_t Place = Rest.find(Delimiter);
        if (Place == TView::npos)
            break;
        ATarget.Add(Rest.substr(0, Place));
        Rest.remove_prefix(Place + Delimiter.size());
    }
    ATarget.Add(Rest);
}

UnicodeString QzListToString(const TStrings& AList, const TStringArg& ADelimiter) {
    UnicodeString Result;
    const int Last = AList.Count();
    for (int I = 0; I < Last && Result.size() < cQzMaxListText; ++I) {
        if (I > 0)
            Result.Append(ADelimiter);
        Result += AList.Strings(I);
    }
    if (Result.size() > cQzMaxListText)
        Result.SetLength(cQzMaxListText);
    return Result;
}

} // namespace qz
