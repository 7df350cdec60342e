// TXsInteger<T>: the integers of XML Schema, xs:byte to xs:unsignedLong, that may be null and restricted.
//
//     TXsInteger<int> X = 5;
//     X.Restrictions = {.MaxInclusive = 100};
//     if (X > 3) X = X * 2 + 1;
//     X = 101;                          // raises EArgumentOutOfRangeException
//     X.Clear();                        // null; the restrictions stay
//
// T is std::int8_t to std::int64_t or std::uint8_t to std::uint64_t. Arithmetic wraps at the width of T, then
// the result is checked. A plain operand is an integer that T holds, or an int: one that T does not hold
// raises ERangeError. A record belongs to one thread at a time; copies may be used by different threads.
#pragma once

#include <qz/common/uQzXSTypes/XsAnySimpleType.h>
#include <qz/common/uQzXSTypes/XsArithmetic.h>
#include <qz/common/uQzXSTypes/XsBoolean.h>
#include <qz/common/uQzXSTypes/XsFacets.h>
#include <qz/runtime/values/Value.h>

namespace qz {

class TRegEx;
template <class T> class TXsInteger;

template <class T> struct TXsIntegerRestrictions {
    using TChecked = T;

    TXsAnySimpleType<T> MinExclusive{};
    TXsAnySimpleType<T> MaxExclusive{};
    TXsAnySimpleType<T> MinInclusive{};
    TXsAnySimpleType<T> MaxInclusive{};
    UnicodeString Pattern{}; // of TRegEx, for the decimal text; empty for none

    void Clear();
    // Raises EArgumentOutOfRangeException with the message of the first restriction that the value breaks, in
    // the order of the fields, and ERegularExpressionError. ACompiled: the pattern compiled, or null.
    void CheckLimits(T AValue, const TRegEx* ACompiled = nullptr) const;
};

namespace detail {
template <class U> struct TXsIntegerOf { using TItem = void; };
template <class T> struct TXsIntegerOf<TXsInteger<T>> { using TItem = T; };
template <class T>
concept CXsInteger = CInteger<T> && CHasTypeDescription<T>;
} // namespace detail

template <class T>
class TXsInteger : public detail::TXsRecordOrder<TXsInteger<T>>,
                   public detail::TXsEquality<TXsInteger<T>, TXsBoolean>,
                   public detail::TXsOrder<TXsInteger<T>, TXsBoolean>,
                   public detail::TXsSums<TXsInteger<T>>,
                   public detail::TXsBits<TXsInteger<T>>,
                   public detail::TXsModuloShifts<TXsInteger<T>> {
    static_assert(detail::CXsInteger<T>, "The TXsInteger<T> only supports integer types!");

public:
    using TXsValue = T;
    template <class U> static constexpr bool cTakes = detail::cXsTakes<T, U>;
    // A record of a narrower type.
    template <class U>
    static constexpr bool cWidens = detail::XsHolds<T, typename detail::TXsIntegerOf<U>::TItem>() &&
        !std::same_as<U, TXsInteger>;

    UnicodeString FHasValue; // "1" or empty
    T FValue{};
    TXsFacets<TXsIntegerRestrictions<T>> Restrictions;

    TXsInteger() noexcept = default;
    // An integer, an optional one, nullopt, a record of a narrower type, whose restrictions stay there.
    template <detail::CXsSource<TXsInteger> U> TXsInteger(const U& AValue) {
        if (detail::XsRead<TXsInteger>(AValue, FValue))
            FHasValue = detail::cXsMarker;
    }
    // Keeps the restrictions and checks them. When that raises, a record that was null has a value: the old
    // FValue. The restrictions of a record assigned do not come over, unless it is of the same type.
    template <detail::CXsSource<TXsInteger> U> TXsInteger& operator=(const U& AValue) {
        T Value{};
        if (!detail::XsRead<TXsInteger>(AValue, Value)) {
            Clear();
        } else {
            FHasValue = detail::cXsMarker;
            StoreChecked(Value);
        }
        return *this;
    }

    static TXsInteger GetNull() noexcept { return {}; }
    static PTypeInfo GetTypeInfo() noexcept { return TypeInfo<T>(); } // of T
    static TTypeKind GetTypeKind() noexcept { return TypeInfo<T>()->Kind; }
    template <class U> static T ToValue(const U& AValue) { return detail::XsTake<T>(AValue); }
    static T Operand(T AValue) noexcept { return AValue; }

    bool IsNull() const noexcept { return !detail::XsHasValue(FHasValue); }
    // An integer type that holds each value of T; 0 for null.
    template <class U>
        requires(detail::XsHolds<U, T>())
    operator U() const noexcept { return IsNull() ? U() : static_cast<U>(FValue); }
    // Nothing for null. An assignment to an optional, and its constructor, take null for 0: use ToOptional.
    std::optional<T> ToOptional() const { return IsNull() ? std::nullopt : std::optional<T>(FValue); }
    // NOLINTBEGIN(readability-make-member-function-const): an optional prefers the exact form
    operator std::optional<T>() & { return ToOptional(); }
    operator std::optional<T>() const& { return ToOptional(); }
    operator std::optional<T>() && { return ToOptional(); }
    // NOLINTEND(readability-make-member-function-const)
    UnicodeString ToString() const; // decimal; "NaN" for null
    Variant ToVariant() const;      // the decimal text, or Null
    void PrintOn(std::ostream& AStream) const;

    // Null for the empty text; else what StrToInt reads, of 32 bits for each T, cut to the width of T. Checks
    // no restrictions. Raises EConvertError and changes nothing then.
    void FromString(const TStringArg& AText);
    void Clear() noexcept { // keeps the restrictions
        FHasValue.Clear();
        FValue = 0;
    }
    // Stores a value unless a restriction refuses it. The marker stays as it is.
    void StoreChecked(T AValue) {
        Restrictions.Check(AValue);
        FValue = AValue;
    }

    // The quotient cut toward zero. Raises EDivByZero.
    template <detail::CXsOperand<TXsInteger> U> TXsInteger Div(const U& ARight) const {
        return detail::XsCombine<detail::TXsDivide, TXsInteger>(*this, ARight);
    }
    // The quotient as an Extended; no value where an operand is null. No restriction is checked. A division
    // by 0 gives infinity, or NaN for 0.
    template <class A, class B>
        requires detail::CXsOperands<A, B, TXsInteger>
    friend TValue operator/(const A& ALeft, const B& ARight) {
        return Quotient(TXsInteger(ALeft), TXsInteger(ARight));
    }
    // Each raises ENotSupportedException, "The negative operation is not allowed on unsigned integer types!",
    // for a value of an unsigned type. Null stays null.
    TXsInteger operator-() const;
    TXsInteger operator+() const;
    TXsInteger& operator++() { return *this += 1; }
    TXsInteger& operator--() { return *this -= 1; }
    TXsInteger operator++(int) {
        TXsInteger Old(*this);
        ++*this;
        return Old;
    }
    TXsInteger operator--(int) {
        TXsInteger Old(*this);
        --*this;
        return Old;
    }
    void operator~() const = delete;
    void operator!() const = delete;

private:
    static void RefuseUnsigned();
    static TValue Quotient(const TXsInteger& ALeft, const TXsInteger& ARight);
};

extern template struct QZ_API TXsIntegerRestrictions<std::int8_t>;
extern template struct QZ_API TXsIntegerRestrictions<std::int16_t>;
extern template struct QZ_API TXsIntegerRestrictions<std::int32_t>;
extern template struct QZ_API TXsIntegerRestrictions<std::int64_t>;
extern template struct QZ_API TXsIntegerRestrictions<std::uint8_t>;
extern template struct QZ_API TXsIntegerRestrictions<std::uint16_t>;
extern template struct QZ_API TXsIntegerRestrictions<std::uint32_t>;
extern template struct QZ_API TXsIntegerRestrictions<std::uint64_t>;
extern template class QZ_API TXsFacets<TXsIntegerRestrictions<std::int8_t>>;
extern template class QZ_API TXsFacets<TXsIntegerRestrictions<std::int16_t>>;
extern template class QZ_API TXsFacets<TXsIntegerRestrictions<std::int32_t>>;
extern template class QZ_API TXsFacets<TXsIntegerRestrictions<std::int64_t>>;
extern template class QZ_API TXsFacets<TXsIntegerRestrictions<std::uint8_t>>;
extern template class QZ_API TXsFacets<TXsIntegerRestrictions<std::uint16_t>>;
extern template class QZ_API TXsFacets<TXsIntegerRestrictions<std::uint32_t>>;
extern template class QZ_API TXsFacets<TXsIntegerRestrictions<std::uint64_t>>;
extern template class QZ_API TXsInteger<std::int8_t>;
extern template class QZ_API TXsInteger<std::int16_t>;
extern template class QZ_API TXsInteger<std::int32_t>;
extern template class QZ_API TXsInteger<std::int64_t>;
extern template class QZ_API TXsInteger<std::uint8_t>;
extern template class QZ_API TXsInteger<std::uint16_t>;
extern template class QZ_API TXsInteger<std::uint32_t>;
extern template class QZ_API TXsInteger<std::uint64_t>;

static_assert(sizeof(TXsInteger<std::int8_t>) == 24 && sizeof(TXsInteger<std::uint64_t>) == 24);

} // namespace qz

QZ_TYPE_INFO(qz::TXsIntegerRestrictions<std::int8_t>);
QZ_TYPE_INFO(qz::TXsIntegerRestrictions<std::int16_t>);
QZ_TYPE_INFO(qz::TXsIntegerRestrictions<std::int32_t>);
QZ_TYPE_INFO(qz::TXsIntegerRestrictions<std::int64_t>);
QZ_TYPE_INFO(qz::TXsIntegerRestrictions<std::uint8_t>);
QZ_TYPE_INFO(qz::TXsIntegerRestrictions<std::uint16_t>);
QZ_TYPE_INFO(qz::TXsIntegerRestrictions<std::uint32_t>);
QZ_TYPE_INFO(qz::TXsIntegerRestrictions<std::uint64_t>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsIntegerRestrictions<std::int8_t>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsIntegerRestrictions<std::int16_t>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsIntegerRestrictions<std::int32_t>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsIntegerRestrictions<std::int64_t>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsIntegerRestrictions<std::uint8_t>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsIntegerRestrictions<std::uint16_t>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsIntegerRestrictions<std::uint32_t>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsIntegerRestrictions<std::uint64_t>>);
QZ_TYPE_INFO(qz::TXsInteger<std::int8_t>);
QZ_TYPE_INFO(qz::TXsInteger<std::int16_t>);
QZ_TYPE_INFO(qz::TXsInteger<std::int32_t>);
QZ_TYPE_INFO(qz::TXsInteger<std::int64_t>);
QZ_TYPE_INFO(qz::TXsInteger<std::uint8_t>);
QZ_TYPE_INFO(qz::TXsInteger<std::uint16_t>);
QZ_TYPE_INFO(qz::TXsInteger<std::uint32_t>);
QZ_TYPE_INFO(qz::TXsInteger<std::uint64_t>);
