// TXsAnySimpleType<T>: a number that may be null, and nothing more. Restrictions are made of it.
//
//     TXsAnySimpleType<int> Limit;        // null
//     Limit = 3;
//     if (!Limit.IsNull()) Count = Limit;
//
// T is an integer of 8 to 64 bits, float, double or Extended. Nothing is ever checked. A null one reads as 0.
#pragma once

#include <qz/common/uQzXSTypes/XsRecord.h>

namespace qz {

template <class T> class TXsAnySimpleType {
    static_assert(detail::CXsFloat<T> || (detail::CInteger<T> && detail::CHasTypeDescription<T>),
                  "TXsAnySimpleType<T> holds a number");

public:
    using TXsValue = T;
    template <class U> static constexpr bool cTakes = detail::cXsTakes<T, U>;
    template <class U> static constexpr bool cWidens = false;

    T FValue{};
    UnicodeString FHasValue;

    TXsAnySimpleType() noexcept = default;
    // Raises ERangeError for an int that T does not hold.
    template <detail::CXsSource<TXsAnySimpleType> U> TXsAnySimpleType(const U& AValue) {
        if (detail::XsRead<TXsAnySimpleType>(AValue, FValue))
            FHasValue = detail::cXsMarker;
    }

    static TXsAnySimpleType GetNull() noexcept { return {}; }
    static PTypeInfo GetTypeInfo() noexcept { return TypeInfo<T>(); } // of T
    static TTypeKind GetTypeKind() noexcept { return TypeInfo<T>()->Kind; }
    template <class U> static T ToValue(const U& AValue) { return detail::XsTake<T>(AValue); }

    bool IsNull() const noexcept { return !detail::XsHasValue(FHasValue); }
    // A type that holds each value of T.
    template <class U>
        requires(detail::XsHolds<U, T>() || (detail::CXsFloat<T> && std::same_as<U, T>))
    operator U() const noexcept { return IsNull() ? U() : U(FValue); }

    void Clear() noexcept { *this = {}; }
};

extern template class QZ_API TXsAnySimpleType<std::int8_t>;
extern template class QZ_API TXsAnySimpleType<std::int16_t>;
extern template class QZ_API TXsAnySimpleType<std::int32_t>;
extern template class QZ_API TXsAnySimpleType<std::int64_t>;
extern template class QZ_API TXsAnySimpleType<std::uint8_t>;
extern template class QZ_API TXsAnySimpleType<std::uint16_t>;
extern template class QZ_API TXsAnySimpleType<std::uint32_t>;
extern template class QZ_API TXsAnySimpleType<std::uint64_t>;
extern template class QZ_API TXsAnySimpleType<float>;
extern template class QZ_API TXsAnySimpleType<double>;
extern template class QZ_API TXsAnySimpleType<Extended>;

static_assert(sizeof(TXsAnySimpleType<std::int64_t>) == 16 && sizeof(TXsAnySimpleType<std::uint8_t>) == 16);

} // namespace qz

QZ_TYPE_INFO(qz::TXsAnySimpleType<std::int8_t>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<std::int16_t>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<std::int32_t>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<std::int64_t>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<std::uint8_t>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<std::uint16_t>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<std::uint32_t>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<std::uint64_t>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<float>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<double>);
QZ_TYPE_INFO(qz::TXsAnySimpleType<qz::Extended>);
