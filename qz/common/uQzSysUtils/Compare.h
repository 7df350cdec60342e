// Equality of texts, identifiers and variants, and the choice between two values.
//
//     QzSameText(u"Größe", u"GRÖßE");            // true
//     QzSameVar(1, 1.0);                         // false: of different types
//     QzIf(Count == 1, u"file", u"files");
//
// The functions have no state.
#pragma once

#include <qz/runtime/base/Guid.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {

// Equality without regard to the case of letters of any language, by the rule of StringReplace for
// rfIgnoreCase: unit by unit, by the capital forms of the system. Linux takes the final sigma for σ, too;
// under Wine it has no capital form. QzSameTrimmedText also ignores characters up to U+0020 at the ends.
QZ_API bool QzSameText(const TStringArg& ALeft, const TStringArg& ARight) noexcept;
QZ_API bool QzSameText(const AnsiString& ALeft, const AnsiString& ARight);
QZ_API bool QzSameTrimmedText(const TStringArg& ALeft, const TStringArg& ARight);

QZ_API bool QzSameGuid(const TGUID& ALeft, const TGUID& ARight) noexcept;

// Same type and equal. Raises as the equality of variants does.
QZ_API bool QzSameVar(const Variant& ALeft, const Variant& ARight);
// Whether each element of the first array is equal to the element of that index in the second. What cannot be
// compared, or is missing in the second, is not equal; elements of the second beyond the bounds of the first
// are ignored.
QZ_API bool QzSameArray(const Variant& ALeft, const Variant& ARight) noexcept;

// AThen if the condition holds, else AElse.
template <class T>
    requires(std::same_as<T, bool> || std::same_as<T, char16_t>)
constexpr T QzIf(bool ACondition, T AThen, T AElse) noexcept {
    return ACondition ? AThen : AElse;
}
constexpr std::int32_t QzIf(bool ACondition, std::int32_t AThen, std::int32_t AElse) noexcept {
    return ACondition ? AThen : AElse;
}
constexpr double QzIf(bool ACondition, double AThen, double AElse) noexcept {
    return ACondition ? AThen : AElse;
}
inline UnicodeString QzIf(bool ACondition, const TStringArg& AThen, const TStringArg& AElse) {
    return (ACondition ? AThen : AElse).ToString();
}
// For a Variant on either side.
template <class TThen, class TElse>
    requires(std::same_as<TThen, Variant> || std::same_as<TElse, Variant>)
Variant QzIf(bool ACondition, const TThen& AThen, const TElse& AElse) {
    return ACondition ? Variant(AThen) : Variant(AElse);
}

} // namespace qz
