#include <qz/common/uQzXSTypes/XsInteger.h>

#include <memory>
#include <ostream>

#include <qz/common/uQzXSTypes/detail/XsBreach.h>
#include <qz/common/uQzXSTypes/detail/XsFacetsBlock.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {

template <class T> void TXsIntegerRestrictions<T>::Clear() {
    *this = {};
}

template <class T> void TXsIntegerRestrictions<T>::CheckLimits(T AValue, const TRegEx* ACompiled) const {
    detail::CheckXsOrder(*this, AValue);
    if (!Pattern.IsEmpty())
        detail::CheckXsPattern(IntToStr(AValue), Pattern, ACompiled);
}

template <class T> UnicodeString TXsInteger<T>::ToString() const {
    return IsNull() ? UnicodeString(u"NaN") : IntToStr(FValue);
}

template <class T> Variant TXsInteger<T>::ToVariant() const {
    return IsNull() ? Variant::Null() : Variant(IntToStr(FValue));
}

template <class T> void TXsInteger<T>::PrintOn(std::ostream& AStream) const {
    if (IsNull())
        AStream << "null";
    else
        AStream << IntToStr(FValue);
}

template <class T> void TXsInteger<T>::FromString(const TStringArg& AText) {
    if (AText.View().empty())
        return Clear();
    FValue = static_cast<T>(StrToInt(AText));
    FHasValue = detail::cXsMarker;
}

template <class T> TValue TXsInteger<T>::Quotient(const TXsInteger& ALeft, const TXsInteger& ARight) {
    if (ALeft.IsNull() || ARight.IsNull())
        return {};
    return Extended(static_cast<double>(ALeft.FValue) / static_cast<double>(ARight.FValue));
}

template <class T> TXsInteger<T> TXsInteger<T>::operator-() const {
    TXsInteger Result(*this);
    if (!IsNull()) {
        RefuseUnsigned();
        Result.StoreChecked(detail::TXsSubtract()(T(), FValue));
    }
    return Result;
}

template <class T> TXsInteger<T> TXsInteger<T>::operator+() const {
    if (!IsNull()) {
        RefuseUnsigned();
        Restrictions.Check(FValue);
    }
    return *this;
}

template <class T> void TXsInteger<T>::RefuseUnsigned() {
    if (std::is_unsigned_v<T>)
        throw ENotSupportedException(u"The negative operation is not allowed on unsigned integer types!");
}

template struct TXsIntegerRestrictions<std::int8_t>;
template struct TXsIntegerRestrictions<std::int16_t>;
template struct TXsIntegerRestrictions<std::int32_t>;
template struct TXsIntegerRestrictions<std::int64_t>;
template struct TXsIntegerRestrictions<std::uint8_t>;
template struct TXsIntegerRestrictions<std::uint16_t>;
template struct TXsIntegerRestrictions<std::uint32_t>;
template struct TXsIntegerRestrictions<std::uint64_t>;
template class TXsFacets<TXsIntegerRestrictions<std::int8_t>>;
template class TXsFacets<TXsIntegerRestrictions<std::int16_t>>;
template class TXsFacets<TXsIntegerRestrictions<std::int32_t>>;
template class TXsFacets<TXsIntegerRestrictions<std::int64_t>>;
template class TXsFacets<TXsIntegerRestrictions<std::uint8_t>>;
template class TXsFacets<TXsIntegerRestrictions<std::uint16_t>>;
template class TXsFacets<TXsIntegerRestrictions<std::uint32_t>>;
template class TXsFacets<TXsIntegerRestrictions<std::uint64_t>>;
template class TXsInteger<std::int8_t>;
template class TXsInteger<std::int16_t>;
template class TXsInteger<std::int32_t>;
template class TXsInteger<std::int64_t>;
template class TXsInteger<std::uint8_t>;
template class TXsInteger<std::uint16_t>;
template class TXsInteger<std::uint32_t>;
template class TXsInteger<std::uint64_t>;

} // namespace qz
