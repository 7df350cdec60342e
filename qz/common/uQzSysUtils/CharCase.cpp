#include <qz/common/uQzSysUtils/CharCase.h>

#include <algorithm>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/base/Utf.h>

namespace qz {
namespace {

using TView = std::u16string_view;

// The units of the character at that place: two for a pair of surrogates, one for anything else.
std::size_t UnitsAt(TView AText, std::size_t AIndex) noexcept {
    return AIndex + 1 < AText.size() && IsHighSurrogate(AText[AIndex]) && IsLowSurrogate(AText[AIndex + 1])
        ? 2
        : 1;
}

// The first character by AFirst, the others by ARest.
template <class TFirst, class TRest> UnicodeString Split(TView AText, TFirst AFirst, TRest ARest) {
    if (AText.empty())
        return {};
    const std::size_t Length = UnitsAt(AText, 0);
    return AFirst(AText.substr(0, Length)) + ARest(AText.substr(Length));
}

UnicodeString Same(TView AText) {
    return AText;
}
UnicodeString Upper(TView AText) {
    return AnsiUpperCase(AText);
}
UnicodeString Lower(TView AText) {
    return AnsiLowerCase(AText);
}

// Each character in lower case for itself. The case of a sigma, of a mark, and of what stands before a mark
// depends on the characters around it, so those are cut apart.
UnicodeString LowerEach(TView AText) {
    const auto IsCut = [](char16_t A) { return A == u'Σ' || (A >= 0x0300 && A <= 0x036F); };
    UnicodeString Result;
    while (!AText.empty()) {
        const auto Found = std::ranges::find_if(AText, IsCut);
        const auto Length = std::max<std::size_t>(static_cast<std::size_t>(Found - AText.begin()), 1);
        Result += Lower(AText.substr(0, Length));
        AText.remove_prefix(Length);
    }
    return Result;
}

// Between two characters in upper case all is converted in one step.
UnicodeString Camel(TView AText, bool AUpper, TView ADelimiters) {
    const auto IsDelimiter = [=](TView ACharacter) { return ADelimiters.find(ACharacter) != TView::npos; };
    UnicodeString Result;
    Result.Reserve(AText.size());
    std::size_t Done = 0;
    for (std::size_t I = 0; I < AText.size();) {
        const std::size_t Length = UnitsAt(AText, I);
        const bool Delimiter = IsDelimiter(AText.substr(I, Length));
        if (AUpper && !Delimiter) {
            Result += LowerEach(AText.substr(Done, I - Done));
            Result += Upper(AText.substr(I, Length));
            Done = I + Length;
        }
        AUpper = Delimiter;
        I += Length;
    }
    return Result += LowerEach(AText.substr(Done));
}

UnicodeString Convert(TView AText, TQzCharCase ACase, TView ADelimiters) {
    switch (ACase) {
    case rcUpperCase: return Upper(AText);
    case rcLowerCase: return Lower(AText);
    case rcTitleCase: return Split(AText, Upper, Lower);
    case rcUpperCamelCase: return Camel(AText, true, ADelimiters);
    case rcLowerCamelCase: return Camel(AText, false, ADelimiters);
    case rcUpperCaseFirstLetter: return Split(AText, Upper, Same);
    case rcLowerCaseFirstLetter: return Split(AText, Lower, Same);
    case rcNormal: break;
    }
    return AText;
}

} // namespace

WideString QzCharCase(const WideString& AText, TQzCharCase ACase, const WideString& ADelimiters) {
    return ACase == rcNormal ? AText : WideString(Convert(AText, ACase, ADelimiters));
}

AnsiString QzCharCase(const AnsiString& AText, TQzCharCase ACase, const AnsiString& ADelimiters) {
    if (ACase == rcNormal)
        return AText;
    return AnsiString(Convert(AText.ToUnicode(), ACase, ADelimiters.ToUnicode()));
}

bool QzIsUppercase(const TStringArg& AText) noexcept {
    const TView Text = AText;
    return std::none_of(Text.begin(), Text.end(), [](char16_t AChar) { return AChar != UpCase(AChar); });
}

} // namespace qz
