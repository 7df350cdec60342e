#include <qz/runtime/values/EnumNames.h>

#include <algorithm>
#include <bit>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

const TEnumItem* FindItem(PTypeInfo AType, std::int64_t AValue) noexcept {
    const auto Found =
        std::lower_bound(AType->Items.begin(), AType->Items.end(), AValue,
                         [](const TEnumItem& AItem, std::int64_t AWanted) { return AItem.Value < AWanted; });
    return Found != AType->Items.end() && Found->Value == AValue ? &*Found : nullptr;
}

UnicodeString ItemName(PTypeInfo ASet, unsigned AItem) {
    PTypeInfo Type = ASet->ElementType();
    if (Type != nullptr && Type->Kind == tkEnumeration)
        return GetEnumName(Type, AItem);
    return IntToStr(static_cast<std::int64_t>(AItem));
}

[[noreturn]] void RaiseElement(std::u16string_view AText) {
    throw EPropertyConvertError(u"Invalid property element: %s", {AText});
}

constexpr bool IsSeparator(char16_t AChar) noexcept {
    return AChar <= u' ' || AChar == u',';
}

// What stands between the brackets, if there are any.
std::u16string_view Inside(std::u16string_view AText) {
    while (!AText.empty() && AText.front() <= u' ')
        AText.remove_prefix(1);
    while (!AText.empty() && AText.back() <= u' ')
        AText.remove_suffix(1);
    const bool Opens = AText.starts_with(u'[');
    if (Opens != AText.ends_with(u']') || AText == u"[")
        RaiseElement(AText);
    return Opens ? AText.substr(1, AText.size() - 2) : AText;
}

std::uint64_t ItemBit(PTypeInfo ASet, std::u16string_view AName) {
    std::int64_t Value = -1;
    PTypeInfo Type = ASet->ElementType();
    const bool IsKnown =
        (Type != nullptr && TryGetEnumValue(Type, AName, Value)) || TryStrToInt64(AName, Value);
    const auto Bits = static_cast<std::int64_t>(8 * std::min(ASet->Ops->Size, sizeof(std::uint64_t)));
    if (!IsKnown || Value < 0 || Value >= Bits)
        RaiseElement(AName);
    return std::uint64_t{1} << Value;
}

UnicodeString BitsToString(PTypeInfo AType, const void* ASource, std::size_t ASize, bool ABrackets) {
    UnicodeString Result;
    if (ABrackets)
        Result += u'[';
    const auto* Bytes = static_cast<const unsigned char*>(ASource);
    const char16_t* Comma = u"";
    for (unsigned I = 0; I < 8 * ASize; ++I)
        if ((Bytes[I / 8] >> (I % 8) & 1) != 0) {
            Result += Comma;
            Result += ItemName(AType, I);
            Comma = u",";
        }
    if (ABrackets)
        Result += u']';
    return Result;
}

} // namespace

UnicodeString GetEnumName(PTypeInfo AType, std::int64_t AValue) {
    const TEnumItem* Item = FindItem(AType, AValue);
    return Item != nullptr ? UnicodeString(Item->Name) : IntToStr(AValue);
}

bool TryGetEnumValue(PTypeInfo AType, std::u16string_view AName, std::int64_t& AValue) noexcept {
    for (const TEnumItem& Item : AType->Items)
        if (SameText(Item.Name, AName)) {
            AValue = Item.Value;
            return true;
        }
    return false;
}

int GetEnumValue(PTypeInfo AType, const TStringArg& AName) noexcept {
    std::int64_t Value = -1;
    TryGetEnumValue(AType, AName, Value);
    return static_cast<int>(Value);
}

UnicodeString SetToString(PTypeInfo AType, const void* ASource, bool ABrackets) {
    return BitsToString(AType, ASource, AType->Ops->Size, ABrackets);
}

UnicodeString SetToString(PTypeInfo AType, std::int64_t AValue, bool ABrackets) {
    static_assert(std::endian::native == std::endian::little);
    return BitsToString(AType, &AValue, std::min(AType->Ops->Size, sizeof AValue), ABrackets);
}

std::int64_t StringToSet(PTypeInfo AType, const TStringArg& AText) {
    const std::u16string_view Text = Inside(AText);
    std::uint64_t Result = 0;
    for (std::size_t I = 0; I < Text.size();) {
        if (IsSeparator(Text[I])) {
            ++I;
            continue;
        }
        const auto End = std::find_if(Text.begin() + static_cast<std::ptrdiff_t>(I), Text.end(), IsSeparator);
        const auto Length = static_cast<std::size_t>(End - Text.begin()) - I;
        Result |= ItemBit(AType, Text.substr(I, Length));
        I += Length;
    }
    return static_cast<std::int64_t>(Result);
}

} // namespace qz
