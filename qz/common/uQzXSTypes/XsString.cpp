#include <qz/common/uQzXSTypes/XsString.h>

#include <memory>
#include <ostream>

#include <qz/common/uQzXSTypes/detail/XsBreach.h>
#include <qz/common/uQzXSTypes/detail/XsFacetsBlock.h>

namespace qz {

using detail::TXsBreach;

template class TXsFacets<TXsStringRestrictions>;

void TXsStringRestrictions::CheckLimits(const UnicodeString& AText, const TRegEx* ACompiled) const {
    if (!Length.IsNull() && AText.Length() != Length.FValue)
        detail::RaiseXsBreach(TXsBreach::Length);
    if (!MaxLength.IsNull() && AText.Length() > MaxLength.FValue)
        detail::RaiseXsBreach(TXsBreach::MaxLength);
    if (!MinLength.IsNull() && AText.Length() < MinLength.FValue)
        detail::RaiseXsBreach(TXsBreach::MinLength);
    detail::CheckXsPattern(AText, Pattern, ACompiled);
}

Variant TXsString::ToVariant() const {
    return IsNull() ? Variant::Null() : Variant(FValue);
}

void TXsString::PrintOn(std::ostream& AStream) const {
    if (IsNull())
        AStream << "null";
    else
        AStream << FValue;
}

void TXsString::Clear() noexcept {
    FValue.Clear();
    FHasValue.Clear();
}

void TXsString::Assign(UnicodeString AText) {
    Restrictions.Check(AText);
    FValue = std::move(AText);
    FHasValue = detail::cXsMarker;
}

} // namespace qz
