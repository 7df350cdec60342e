#include <qz/platform/Text.h>

#include <new>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

constexpr std::size_t cMaxLength = std::size_t{1} << 29;

int CheckedLength(std::u16string_view AText) {
    if (AText.size() > cMaxLength)
        throw std::bad_alloc();
    return static_cast<int>(AText.size());
}

std::u16string MapCase(std::u16string_view AText, DWORD ACase) {
    const int Length = CheckedLength(AText);
    std::u16string Result(AText);
    // Case mapping keeps the length. Without text there is nothing to map, and the system would call it an
    // error.
    if (Length != 0)
        LCMapStringEx(LOCALE_NAME_USER_DEFAULT, ACase | LCMAP_LINGUISTIC_CASING, detail::Wide(AText.data()),
                      Length, detail::Wide(Result.data()), Length, nullptr, nullptr, 0);
    return Result;
}

char16_t MapChar(char16_t AChar, DWORD ACase) noexcept {
    char16_t Result = AChar;
    LCMapStringEx(LOCALE_NAME_INVARIANT, ACase, detail::Wide(&AChar), 1, detail::Wide(&Result), 1, nullptr,
                  nullptr, 0);
    return Result;
}

bool IsOfKind(char16_t AChar, WORD AKinds) noexcept {
    WORD Kinds = 0;
    return GetStringTypeW(CT_CTYPE1, detail::Wide(&AChar), 1, &Kinds) != 0 && (Kinds & AKinds) != 0;
}

} // namespace

std::u16string UpperCase(std::u16string_view AText) {
    return MapCase(AText, LCMAP_UPPERCASE);
}

std::u16string LowerCase(std::u16string_view AText) {
    return MapCase(AText, LCMAP_LOWERCASE);
}

char16_t UpperChar(char16_t AChar) noexcept {
    if (AChar < 0x80)
        return AChar >= u'a' && AChar <= u'z' ? static_cast<char16_t>(AChar - 32) : AChar;
    return MapChar(AChar, LCMAP_UPPERCASE);
}

char16_t LowerChar(char16_t AChar) noexcept {
    if (AChar < 0x80)
        return AChar >= u'A' && AChar <= u'Z' ? static_cast<char16_t>(AChar + 32) : AChar;
    return MapChar(AChar, LCMAP_LOWERCASE);
}

int CompareStrings(std::u16string_view A, std::u16string_view B, bool AIgnoreCase) {
    if (A == B)
        return 0;
    const int LengthA = CheckedLength(A);
    const int LengthB = CheckedLength(B);
    // The system takes no null pointer, not even for an empty text.
    const char16_t* TextA = LengthA != 0 ? A.data() : u"";
    const char16_t* TextB = LengthB != 0 ? B.data() : u"";
    const int Order =
        CompareStringEx(LOCALE_NAME_USER_DEFAULT, AIgnoreCase ? NORM_IGNORECASE : 0, detail::Wide(TextA),
                        LengthA, detail::Wide(TextB), LengthB, nullptr, nullptr, 0);
    return Order != 0 ? Order - CSTR_EQUAL : A.compare(B);
}

bool IsLetter(char16_t AChar) noexcept {
    return IsOfKind(AChar, C1_ALPHA);
}

bool IsDigit(char16_t AChar) noexcept {
    return IsOfKind(AChar, C1_DIGIT);
}

bool IsUpper(char16_t AChar) noexcept {
    return IsOfKind(AChar, C1_UPPER);
}

bool IsLower(char16_t AChar) noexcept {
    return IsOfKind(AChar, C1_LOWER);
}

bool IsWhiteSpace(char16_t AChar) noexcept {
    return IsOfKind(AChar, C1_SPACE);
}

} // namespace qz::platform
