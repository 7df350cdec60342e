#include <qz/runtime/text/HtmlText.h>

#include <algorithm>
#include <array>
#include <cstdint>

#include <qz/runtime/text/detail/HtmlEntityTable.h>

namespace qz {
namespace {

constexpr bool IsSorted() noexcept {
    return std::is_sorted(std::begin(detail::cHtmlEntities), std::end(detail::cHtmlEntities),
                          [](const auto& ALeft, const auto& ARight) { return ALeft.Name < ARight.Name; });
}
static_assert(IsSorted(), "names are found by binary search");

std::u16string_view EscapeOf(char16_t AChar) noexcept {
    switch (AChar) {
    case u'&': return u"&amp;";
    case u'<': return u"&lt;";
    case u'>': return u"&gt;";
    default: return u"&quot;";
    }
}

int DigitOf(char16_t AChar) noexcept {
    if (AChar >= u'0' && AChar <= u'9')
        return AChar - u'0';
    const char16_t Lower = AChar | 0x20;
    return Lower >= u'a' && Lower <= u'f' ? Lower - u'a' + 10 : 16;
}

// The number after "&#"; 0 if it is no number. Any number above the last character counts as one.
char32_t NumberOf(std::u16string_view AText) noexcept {
    const bool IsHex = !AText.empty() && (AText[0] | 0x20) == u'x';
    if (IsHex)
        AText.remove_prefix(1);
    const std::uint32_t Base = IsHex ? 16 : 10;
    std::uint32_t Value = 0;
    for (const char16_t Each : AText) {
        const auto Digit = static_cast<std::uint32_t>(DigitOf(Each));
        if (Digit >= Base)
            return 0;
        Value = std::min<std::uint32_t>(Value * Base + Digit, 0x110000);
    }
    if (AText.empty())
        return 0;
    return Value == 0 || Value > 0x10FFFF || (Value & 0xFFFFF800) == 0xD800 ? cReplacementChar : Value;
}

char32_t NamedChar(std::u16string_view AName) noexcept {
    std::array<char, detail::cLongestHtmlEntity> Narrow{};
    if (AName.size() > Narrow.size())
        return 0;
    for (std::size_t I = 0; I < AName.size(); ++I)
        Narrow[I] = AName[I] < 0x80 ? static_cast<char>(AName[I]) : '\0';
    const std::string_view Name(Narrow.data(), AName.size());
    const auto* Found = std::lower_bound(
        std::begin(detail::cHtmlEntities), std::end(detail::cHtmlEntities), Name,
        [](const detail::THtmlEntity& AEntity, std::string_view AKey) { return AEntity.Name < AKey; });
    return Found != std::end(detail::cHtmlEntities) && Found->Name == Name ? Found->Char : U'\0';
}

// The character that a reference stands for, without "&" and ";"; 0 if it is none.
char32_t ReferencedChar(std::u16string_view AText) noexcept {
    return AText.starts_with(u'#') ? NumberOf(AText.substr(1)) : NamedChar(AText);
}

void AppendChar(UnicodeString& AText, char32_t AChar) {
    if (AChar >= 0x10000) {
        AText += static_cast<char16_t>(0xD7C0 + (AChar >> 10));
        AChar = 0xDC00 + (AChar & 0x3FF);
    }
    AText += static_cast<char16_t>(AChar);
}

} // namespace

UnicodeString EscapeHtml(const TStringArg& AText) {
    constexpr std::u16string_view cSpecial = u"&<>\"";
    std::u16string_view Rest = AText.View();
    std::size_t Place = Rest.find_first_of(cSpecial);
    if (Place == std::u16string_view::npos)
        return AText.ToString();
    UnicodeString Result;
    for (; Place != std::u16string_view::npos; Place = Rest.find_first_of(cSpecial)) {
        Result += Rest.substr(0, Place);
        Result += EscapeOf(Rest[Place]);
        Rest.remove_prefix(Place + 1);
    }
    return Result += Rest;
}

UnicodeString UnescapeHtml(const TStringArg& AText) {
    std::u16string_view Rest = AText.View();
    std::size_t Place = Rest.find(u'&');
    if (Place == std::u16string_view::npos)
        return AText.ToString();
    UnicodeString Result;
    for (; Place != std::u16string_view::npos; Place = Rest.find(u'&')) {
        Result += Rest.substr(0, Place);
        Rest.remove_prefix(Place + 1);
        // A reference holds no other "&", so that the search for its end stays short.
        const std::size_t End = Rest.find_first_of(u"&;");
        const bool IsClosed = End != std::u16string_view::npos && Rest[End] == u';';
        const char32_t Char = IsClosed ? ReferencedChar(Rest.substr(0, End)) : U'\0';
        if (Char == 0) {
            Result += u'&';
            continue;
        }
        AppendChar(Result, Char);
        Rest.remove_prefix(End + 1);
    }
    return Result += Rest;
}

} // namespace qz
