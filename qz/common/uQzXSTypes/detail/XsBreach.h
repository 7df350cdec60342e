// The messages of restrictions that a value breaks. Internal.
#pragma once

#include <qz/runtime/text/RegEx.h>

namespace qz::detail {

enum class TXsBreach : std::uint8_t {
    Length,
    MaxLength,
    MinLength,
    Pattern,
    MinExclusive,
    MaxExclusive,
    MinInclusive,
    MaxInclusive,
    TotalDigits,
    FractionDigits
};

// Raises EArgumentOutOfRangeException.
[[noreturn]] void RaiseXsBreach(TXsBreach ABreach);

// Raises EArgumentOutOfRangeException unless the text holds a match of the pattern. An empty pattern matches
// each text. ACompiled is the pattern compiled, or null. Raises ERegularExpressionError as TRegEx does.
void CheckXsPattern(const UnicodeString& AText, const UnicodeString& APattern, const TRegEx* ACompiled);

// Checks the four facets of an order.
template <class TRestrictions, class T> void CheckXsOrder(const TRestrictions& ALimits, T AValue) {
    if (!ALimits.MinExclusive.IsNull() && AValue <= ALimits.MinExclusive.FValue)
        RaiseXsBreach(TXsBreach::MinExclusive);
    if (!ALimits.MaxExclusive.IsNull() && AValue >= ALimits.MaxExclusive.FValue)
        RaiseXsBreach(TXsBreach::MaxExclusive);
    if (!ALimits.MinInclusive.IsNull() && AValue < ALimits.MinInclusive.FValue)
        RaiseXsBreach(TXsBreach::MinInclusive);
    if (!ALimits.MaxInclusive.IsNull() && AValue > ALimits.MaxInclusive.FValue)
        RaiseXsBreach(TXsBreach::MaxInclusive);
}

} // namespace qz::detail
