// The comparisons of the value records, as sets of operators that a record inherits.
//
//     #include <qz/common/uQzXSTypes.h>
//     TXsInteger<int> X = 5, Y;
//     if (X > 3) ...                  // with a plain value: a TXsBoolean, null for a null record
//     if (Y < X) ...                  // two records: a plain bool; null equals null and comes first
//
// Restrictions do not count. Operators with any other type of number, or a pointer, do not compile.
#pragma once

#include <compare>
#include <functional>
#include <iosfwd>

#include <qz/common/uQzXSTypes/XsRecord.h>

namespace qz::detail {

// A type whose built-in operators a conversion of the record could reach by accident.
template <class U, class R>
concept CXsForeign = !CXsRecord<U> && !R::template cTakes<U> &&
    (std::is_arithmetic_v<U> || std::is_enum_v<U> || std::is_pointer_v<U> || std::is_array_v<U> ||
     std::is_null_pointer_v<U> || std::convertible_to<const U&, double>);

// A record whose values R holds.
template <class U, class R>
concept CXsNarrower = R::template cWidens<U>;

// One operand is an R and the other a plain value, in either order.
template <class A, class B, class R>
concept CXsMixed = (std::same_as<A, R> && R::template cTakes<B>) ||
    (std::same_as<B, R> && R::template cTakes<A>);
template <class A, class B, class R>
concept CXsRefused = (std::same_as<A, R> && CXsForeign<B, R>) || (std::same_as<B, R> && CXsForeign<A, R>);

// TResult() where the record is null.
template <class R, class TResult, class A, class B, class TTest>
TResult XsCompare(const A& ALeft, const B& ARight, TTest ATest) {
    if constexpr (std::same_as<A, R>)
        return ALeft.IsNull() ? TResult() : TResult(ATest(ALeft.FValue, R::Operand(R::ToValue(ARight))));
    else
        return ARight.IsNull() ? TResult() : TResult(ATest(R::Operand(R::ToValue(ALeft)), ARight.FValue));
}

// Two records of one type, or of a narrower one on either side. Also writes the value, or "null", to a
// stream.
template <class R> struct TXsRecordOrder {
    friend bool operator==(const R& ALeft, const R& ARight) noexcept {
        return ALeft.IsNull() ? ARight.IsNull() : !ARight.IsNull() && ALeft.FValue == ARight.FValue;
    }
    friend auto operator<=>(const R& ALeft, const R& ARight) noexcept {
        using TOrder = std::compare_three_way_result_t<typename R::TXsValue>;
        return ALeft.IsNull() || ARight.IsNull() ? TOrder(!ALeft.IsNull() <=> !ARight.IsNull())
                                                 : TOrder(ALeft.FValue <=> ARight.FValue);
    }
    template <CXsNarrower<R> U> friend bool operator==(const R& ALeft, const U& ARight) {
        return ALeft == R(ARight);
    }
    template <CXsNarrower<R> U> friend auto operator<=>(const R& ALeft, const U& ARight) {
        return ALeft <=> R(ARight);
    }

    friend std::ostream& operator<<(std::ostream& AStream, const R& AValue) {
        AValue.PrintOn(AStream);
        return AStream;
    }
};

template <class R, class TResult> struct TXsEquality {
    template <class A, class B>
        requires CXsMixed<A, B, R>
    friend TResult operator==(const A& ALeft, const B& ARight) {
        return XsCompare<R, TResult>(ALeft, ARight, std::equal_to<typename R::TXsValue>());
    }
    template <class A, class B>
        requires CXsMixed<A, B, R>
    friend TResult operator!=(const A& ALeft, const B& ARight) {
        return XsCompare<R, TResult>(ALeft, ARight, std::not_equal_to<typename R::TXsValue>());
    }
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend TResult operator==(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend TResult operator!=(const A&, const B&) = delete;
};

template <class R, class TResult> struct TXsOrder {
    template <class A, class B>
        requires CXsMixed<A, B, R>
    friend TResult operator<(const A& ALeft, const B& ARight) {
        return XsCompare<R, TResult>(ALeft, ARight, std::less<typename R::TXsValue>());
    }
    template <class A, class B>
        requires CXsMixed<A, B, R>
    friend TResult operator<=(const A& ALeft, const B& ARight) {
        return XsCompare<R, TResult>(ALeft, ARight, std::less_equal<typename R::TXsValue>());
    }
    template <class A, class B>
        requires CXsMixed<A, B, R>
    friend TResult operator>(const A& ALeft, const B& ARight) {
        return XsCompare<R, TResult>(ALeft, ARight, std::greater<typename R::TXsValue>());
    }
    template <class A, class B>
        requires CXsMixed<A, B, R>
    friend TResult operator>=(const A& ALeft, const B& ARight) {
        return XsCompare<R, TResult>(ALeft, ARight, std::greater_equal<typename R::TXsValue>());
    }
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend TResult operator<(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend TResult operator<=(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend TResult operator>(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend TResult operator>=(const A&, const B&) = delete;
};

} // namespace qz::detail

template <qz::detail::CXsRecord R> struct std::hash<R> {
    std::size_t operator()(const R& AValue) const noexcept {
        if (AValue.IsNull())
            return 0;
        if constexpr (std::is_same_v<typename R::TXsValue, qz::Extended>)
            return std::hash<double>()(AValue.FValue);
        else
            return std::hash<typename R::TXsValue>()(AValue.FValue);
    }
};
