#include <qz/common/uQzXSTypes/XsRational.h>

#include <cmath>
#include <memory>
#include <ostream>

#include <qz/common/uQzXSTypes/detail/XsBreach.h>
#include <qz/common/uQzXSTypes/detail/XsFacetsBlock.h>
#include <qz/runtime/text/FloatText.h>

namespace qz {

using detail::TXsBreach;

namespace {

int DigitsOf(std::u16string_view AText) {
    return static_cast<int>(
        std::count_if(AText.begin(), AText.end(), [](char16_t C) { return C != u'.' && C != u','; }));
}

} // namespace

template <class T> void TXsRationalRestrictions<T>::Clear() {
    *this = {};
}

template <class T> void TXsRationalRestrictions<T>::CheckLimits(T AValue, const TRegEx* ACompiled) const {
    if (!TotalDigits.IsNull() && DigitsOf(FloatToStr(AValue)) > TotalDigits.FValue)
        detail::RaiseXsBreach(TXsBreach::TotalDigits);
    if (!FractionDigits.IsNull()) {
        const double Value = AValue;
        if (FloatToStr(Value - std::trunc(Value)).Length() - 2 > FractionDigits.FValue)
            detail::RaiseXsBreach(TXsBreach::FractionDigits);
    }
    detail::CheckXsOrder(*this, AValue);
    if (!Pattern.IsEmpty())
        detail::CheckXsPattern(FloatToStr(AValue), Pattern, ACompiled);
}

template <class T> T TXsRational<T>::Operand(T AValue) noexcept {
    return static_cast<T>(std::nearbyint(static_cast<double>(AValue)));
}

template <class T> UnicodeString TXsRational<T>::ToString() const {
    if (IsNull())
        return u"NaN";
    UnicodeString Result = FloatToStr(FValue);
    const char16_t Separator = DefaultFormatSettings().DecimalSeparator;
    if (Separator != u'.')
        if (const std::size_t At = Result.View().find(Separator); At != std::u16string_view::npos)
            Result[At] = u'.';
    return Result;
}

template <class T> Variant TXsRational<T>::ToVariant() const {
    return IsNull() ? Variant::Null() : Variant(FloatToStr(FValue));
}

template <class T> void TXsRational<T>::PrintOn(std::ostream& AStream) const {
    if (IsNull())
        AStream << "null";
    else
        AStream << ToString();
}

template <class T> TXsInteger<std::int64_t> TXsRational<T>::Trunc() const {
    if (IsNull())
        return {};
    constexpr double cLimit = 9223372036854775808.0; // 2^63
    const double Value = FValue;
    if (!(Value >= -cLimit && Value < cLimit))
        detail::RaiseXsRange();
    return static_cast<std::int64_t>(Value);
}

template <class T> TXsRational<T> TXsRational<T>::Round() const {
    TXsRational Result(*this);
    if (!IsNull())
        Result.StoreChecked(Operand(FValue));
    return Result;
}

template <class T> void TXsRational<T>::FromString(const TStringArg& AText) {
    if (AText.View().empty())
        return Clear();
    FValue = static_cast<T>(StrToFloat(AText, TFormatSettings::Neutral()));
    FHasValue = detail::cXsMarker;
}

template <class T> TXsRational<T> TXsRational<T>::operator-() const {
    TXsRational Result(*this);
    if (!IsNull())
        Result.StoreChecked(static_cast<T>(0 - FValue));
    return Result;
}

template <class T> TXsRational<T> TXsRational<T>::operator+() const {
    if (!IsNull())
        Restrictions.Check(FValue);
    return *this;
}

template struct TXsRationalRestrictions<float>;
template struct TXsRationalRestrictions<double>;
template struct TXsRationalRestrictions<Extended>;
template class TXsFacets<TXsRationalRestrictions<float>>;
template class TXsFacets<TXsRationalRestrictions<double>>;
template class TXsFacets<TXsRationalRestrictions<Extended>>;
template class TXsRational<float>;
template class TXsRational<double>;
template class TXsRational<Extended>;

} // namespace qz
