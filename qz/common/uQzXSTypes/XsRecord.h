// What all value records of XML Schema share: the marker of a value, and what converts to a record.
//
//     #include <qz/common/uQzXSTypes.h>
//     static_assert(detail::CXsRecord<TXsInteger<int>>);
//
// A record holds its value and the text FHasValue, "1" or empty. Zero bytes are a null record. The marker is
// a constant of the program, so that copies neither allocate nor count.
#pragma once

#include <concepts>
#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

#include <qz/runtime/values/BasicTypes.h>

namespace qz {

namespace detail {

inline constexpr TTextConstant cXsMarker = u"1";

inline bool XsHasValue(const UnicodeString& AMarker) noexcept {
    return AMarker.Length() == 1 && AMarker[0] == u'1';
}

template <class R>
concept CXsRecord = requires {
    typename R::TXsValue;
};

template <class T>
concept CXsFloat = std::same_as<T, float> || std::same_as<T, double> || std::same_as<T, Extended>;

// Whether the integer type T holds each value of the integer type U.
template <class T, class U> constexpr bool XsHolds() noexcept {
    if constexpr (!CInteger<T> || !CInteger<U> || std::is_const_v<T> || std::is_const_v<U>)
        return false;
    else if constexpr (std::signed_integral<T> == std::signed_integral<U>)
        return sizeof(U) <= sizeof(T);
    else
        return std::signed_integral<T> && sizeof(U) < sizeof(T);
}

// Whether a plain U becomes a number of the type T by itself. An int does so for each integer type, since
// literals are of that type.
template <class T, class U>
inline constexpr bool cXsTakes = CXsFloat<T> ? CXsFloat<U> || CInteger<U>
                                             : XsHolds<T, U>() || (CInteger<T> && std::same_as<U, int>);

// Raises ERangeError, "Range check error".
[[noreturn]] QZ_API void RaiseXsRange();
// Raises EDivByZero, "Division by zero".
[[noreturn]] QZ_API void RaiseXsDivByZero();

// The number as a T. Raises ERangeError for an int that T does not hold.
template <class T, class U> T XsTake(const U& AValue) {
    if constexpr (std::same_as<U, Extended>)
        return static_cast<T>(AValue.Value);
    else if constexpr (std::same_as<T, Extended>)
        return Extended(static_cast<double>(AValue));
    else if constexpr (CInteger<T> && !XsHolds<T, U>())
        return std::in_range<T>(AValue) ? static_cast<T>(AValue) : (RaiseXsRange(), T());
    else
        return static_cast<T>(AValue);
}

template <class U> struct TXsOptional : std::false_type { using TItem = void; };
template <class U> struct TXsOptional<std::optional<U>> : std::true_type { using TItem = U; };

// What a record R is made from and assigned: a plain value, a record that it widens, an optional, nullopt.
template <class U, class R>
concept CXsSource = R::template cTakes<U> || R::template cWidens<U> || std::same_as<U, std::nullopt_t> ||
    (TXsOptional<U>::value && R::template cTakes<typename TXsOptional<U>::TItem>);

// Stores what the source stands for. False, and nothing stored, where it is null.
template <class R, class U> bool XsRead(const U& ASource, typename R::TXsValue& AValue) {
    if constexpr (std::same_as<U, std::nullopt_t>) {
        return false;
    } else if constexpr (TXsOptional<U>::value) {
        return ASource.has_value() && XsRead<R>(*ASource, AValue);
    } else if constexpr (CXsRecord<U>) {
        if (ASource.IsNull())
            return false;
        AValue = R::ToValue(ASource.FValue);
    } else {
        AValue = R::ToValue(ASource);
    }
    return true;
}

} // namespace detail

} // namespace qz
