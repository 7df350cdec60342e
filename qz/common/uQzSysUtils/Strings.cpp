#include <qz/common/uQzSysUtils/Strings.h>

#include <algorithm>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using TView = std::u16string_view;

constexpr char16_t cBlank = u' ';

constexpr bool IsStripped(char16_t AChar) noexcept {
    return AChar <= cBlank || QzIsLiteral(AChar);
}

template <class TTexts> bool IsIn(TView AText, const TTexts& ATexts) noexcept {
    return std::any_of(ATexts.begin(), ATexts.end(),
                       [AText](const auto& AEach) { return AEach.View() == AText; });
}

// How many pad characters a text lacks.
std::size_t Missing(TView AText, int ALength) noexcept {
    const std::size_t Length = ALength < 0 ? 0 : static_cast<std::size_t>(ALength);
    return Length > AText.size() ? Length - AText.size() : 0;
}

template <class TTexts>
UnicodeString ReplaceAll(const TStringArg& AText, const TTexts& AOld, const TTexts& ANew,
                         TReplaceFlags AFlags) {
    Assert(AOld.size() == ANew.size());
    UnicodeString Result = AText.ToString();
    for (auto Old = AOld.begin(), New = ANew.begin(); Old != AOld.end(); ++Old, ++New)
        Result = StringReplace(Result, *Old, *New, AFlags);
    return Result;
}

constexpr char16_t PadChar(char16_t APad) noexcept {
    return APad == u'\0' ? cBlank : APad;
}

} // namespace

UnicodeString QzLeft(const TStringArg& AText, int ACount) {
    return Copy(AText, 1, ACount);
}

UnicodeString QzRight(const TStringArg& AText, int ACount) {
    const TView Text = AText;
    const std::size_t Count = std::min(Text.size(), static_cast<std::size_t>(std::max(ACount, 0)));
    return Text.substr(Text.size() - Count);
}

AnsiString QzAnsiCopy(const AnsiString& AText, int AStart, int ALength) {
    const std::string_view Text = AText.View();
    const std::size_t First = AStart < 1 ? 0 : static_cast<std::size_t>(AStart) - 1;
    if (First >= Text.size() || ALength <= 0)
        return {};
    return {Text.substr(First, static_cast<std::size_t>(ALength)), AText.CodePage()};
}

int QzLastPos(const TStringArg& AText, char16_t AChar) noexcept {
    return static_cast<int>(AText.View().rfind(AChar) + 1); // nothing found wraps to 0
}

bool QzContainsText(const TStringArg& APiece, const TStringArg& AText) {
    return Pos(detail::UpperUnits(APiece), detail::UpperUnits(AText)) != 0;
}

bool QzContainsText(const AnsiString& APiece, const AnsiString& AText) {
    return QzContainsText(APiece.ToUnicode(), AText.ToUnicode());
}

bool QzStrInSet(const TStringArg& AText, std::span<const UnicodeString> ATexts) noexcept {
    return IsIn(AText, ATexts);
}

bool QzStrInSet(const TStringArg& AText, std::initializer_list<TStringArg> ATexts) noexcept {
    return IsIn(AText, ATexts);
}

AnsiString QzTrim(const AnsiString& AText) {
    const auto IsBlank = [](char AChar) { return static_cast<unsigned char>(AChar) <= cBlank; };
    std::string_view Text = AText.View();
    while (!Text.empty() && IsBlank(Text.front()))
        Text.remove_prefix(1);
    while (!Text.empty() && IsBlank(Text.back()))
        Text.remove_suffix(1);
    return Text.size() == AText.size() ? AText : AnsiString(Text, AText.CodePage());
}

UnicodeString QzStripLiterals(const TStringArg& AText) {
    TView Text = AText;
    while (Text.size() > 1 && IsStripped(Text.front()))
        Text.remove_prefix(1);
    while (Text.size() > 1 && IsStripped(Text.back()))
        Text.remove_suffix(1);
    return Text.size() == AText.View().size() ? AText.ToString() : UnicodeString(Text);
}

UnicodeString QzNormalizeSpace(const TStringArg& AText) {
    UnicodeString Result;
    Result.Reserve(AText.View().size());
    for (TView Rest = AText; !Rest.empty();) {
        const std::size_t Length = std::min(Rest.find(cBlank), Rest.size());
        if (Length != 0) {
            if (!Result.empty())
                Result += cBlank;
            Result.Append(Rest.substr(0, Length));
        }
        Rest.remove_prefix(std::min(Length + 1, Rest.size()));
    }
    return Result;
}

UnicodeString QzPadLeft(const TStringArg& AText, int ALength, char16_t APad) {
    const std::size_t Count = Missing(AText, ALength);
    return Count == 0 ? AText.ToString() : UnicodeString(Count, PadChar(APad)) + AText.View();
}

UnicodeString QzPadRight(const TStringArg& AText, int ALength, char16_t APad) {
    const std::size_t Count = Missing(AText, ALength);
    UnicodeString Result = AText.ToString();
    if (Count != 0)
        Result.Append(Count, PadChar(APad));
    return Result;
}

UnicodeString QzStringReplace(const TStringArg& AText, std::span<const UnicodeString> AOld,
                              std::span<const UnicodeString> ANew, TReplaceFlags AFlags) {
    return ReplaceAll(AText, AOld, ANew, AFlags);
}

UnicodeString QzStringReplace(const TStringArg& AText, std::initializer_list<TStringArg> AOld,
                              std::initializer_list<TStringArg> ANew, TReplaceFlags AFlags) {
    return ReplaceAll(AText, AOld, ANew, AFlags);
}

} // namespace qz
