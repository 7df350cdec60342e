// TXsRational<T>: xs:float, xs:double and xs:decimal, that may be null and restricted.
//
//     TXsRational<double> X = 1.5;
//     X + 0.4;                 // 1.5: the right operand is rounded to a whole number first
//     X.Restrictions = {.TotalDigits = 3, .MaxInclusive = 100};
//     X = 12.34;               // raises EArgumentOutOfRangeException
//     X.FromString("2.5");     // the same in each locale
//
// T is float, double or Extended. A plain operand is an integer or a float. A record belongs to one thread at
// a time; copies may be used by different threads.
#pragma once

#include <qz/common/uQzXSTypes/XsInteger.h>

namespace qz {

template <class T> struct TXsRationalRestrictions {
    using TChecked = T;

    // The characters of the text of FloatToStr but "." and ",": the minus sign counts.
    TXsAnySimpleType<std::uint8_t> TotalDigits{};
    // The characters of the text of the fraction after the first two: for a negative value the point counts.
    TXsAnySimpleType<std::uint8_t> FractionDigits{};
    TXsAnySimpleType<T> MinExclusive{};
    TXsAnySimpleType<T> MaxExclusive{};
    TXsAnySimpleType<T> MinInclusive{};
    TXsAnySimpleType<T> MaxInclusive{};
    UnicodeString Pattern{}; // of TRegEx, for the text of FloatToStr; empty for none

    void Clear();
    // As TXsIntegerRestrictions::CheckLimits. The texts are those of the process's format.
    void CheckLimits(T AValue, const TRegEx* ACompiled = nullptr) const;
};

template <class T>
class TXsRational : public detail::TXsRecordOrder<TXsRational<T>>,
                    public detail::TXsEquality<TXsRational<T>, TXsBoolean>,
                    public detail::TXsOrder<TXsRational<T>, TXsBoolean>,
                    public detail::TXsSums<TXsRational<T>> {
    static_assert(detail::CXsFloat<T>, "The TXsRational<T> only supports float types!");

public:
    using TXsValue = T;
    template <class U> static constexpr bool cTakes = detail::cXsTakes<T, U>;
    // A record of an integer.
    template <class U>
    static constexpr bool cWidens = !std::same_as<typename detail::TXsIntegerOf<U>::TItem, void>;

    T FValue{};
    UnicodeString FHasValue; // "1" or empty
    TXsFacets<TXsRationalRestrictions<T>> Restrictions;

    TXsRational() noexcept = default;
    // A number, an optional one, nullopt, a record of an integer.
    template <detail::CXsSource<TXsRational> U> TXsRational(const U& AValue) {
        if (detail::XsRead<TXsRational>(AValue, FValue))
            FHasValue = detail::cXsMarker;
    }
    // As for TXsInteger.
    template <detail::CXsSource<TXsRational> U> TXsRational& operator=(const U& AValue) {
        T Value{};
        if (!detail::XsRead<TXsRational>(AValue, Value)) {
            Clear();
        } else {
            FHasValue = detail::cXsMarker;
            StoreChecked(Value);
        }
        return *this;
    }

    static TXsRational GetNull() noexcept { return {}; }
    static PTypeInfo GetTypeInfo() noexcept { return TypeInfo<T>(); } // of T
    static TTypeKind GetTypeKind() noexcept { return tkFloat; }
    template <class U> static T ToValue(const U& AValue) {
        if constexpr (std::same_as<U, TXsRational>)
            return AValue.FValue;
        else
            return detail::XsTake<T>(AValue);
    }
    // A right operand: rounded to a whole number, halves to the even one.
    static T Operand(T AValue) noexcept;

    bool IsNull() const noexcept { return !detail::XsHasValue(FHasValue); }
    // 0 for null.
    template <class U>
        requires(std::same_as<U, T> || std::same_as<U, double>)
    operator U() const noexcept { return IsNull() ? U() : static_cast<U>(FValue); }
    // Nothing for null. An assignment to an optional, and its constructor, take null for 0: use ToOptional.
    std::optional<T> ToOptional() const { return IsNull() ? std::nullopt : std::optional<T>(FValue); }
    // NOLINTBEGIN(readability-make-member-function-const): an optional prefers the exact form
    operator std::optional<T>() & { return ToOptional(); }
    operator std::optional<T>() const& { return ToOptional(); }
    operator std::optional<T>() && { return ToOptional(); }
    // NOLINTEND(readability-make-member-function-const)
    // As FloatToStr with a decimal point in each locale; "NaN" for null.
    UnicodeString ToString() const;
    Variant ToVariant() const; // the text of FloatToStr in the process's format, or Null
    void PrintOn(std::ostream& AStream) const;
    // Cut toward zero; null for null. Raises ERangeError outside the range of 64 bits, and for NaN.
    TXsInteger<std::int64_t> Trunc() const;
    // To a whole number, halves to the even one, then checked.
    TXsRational Round() const;

    // Null for the empty text; else what StrToFloat reads with a decimal point. Checks no restrictions.
    // Raises EConvertError and changes nothing then.
    void FromString(const TStringArg& AText);
    void Clear() noexcept { // keeps the restrictions
        FValue = 0;
        FHasValue.Clear();
    }
    // Stores a value unless a restriction refuses it. The marker stays as it is.
    void StoreChecked(T AValue) {
        Restrictions.Check(AValue);
        FValue = AValue;
    }

    template <class A, class B>
        requires detail::CXsOperands<A, B, TXsRational>
    friend TXsRational operator/(const A& ALeft, const B& ARight) {
        return detail::XsCombine<detail::TXsDivide, TXsRational>(ALeft, ARight);
    }
    template <detail::CXsOperand<TXsRational> B>
    friend TXsRational& operator/=(TXsRational& ATarget, const B& ARight) {
        detail::XsApply<detail::TXsDivide>(ATarget, ARight);
        return ATarget;
    }
    // Checked; null stays null.
    TXsRational operator-() const;
    TXsRational operator+() const;
    void operator!() const = delete;
};

extern template struct QZ_API TXsRationalRestrictions<float>;
extern template struct QZ_API TXsRationalRestrictions<double>;
extern template struct QZ_API TXsRationalRestrictions<Extended>;
extern template class QZ_API TXsFacets<TXsRationalRestrictions<float>>;
extern template class QZ_API TXsFacets<TXsRationalRestrictions<double>>;
extern template class QZ_API TXsFacets<TXsRationalRestrictions<Extended>>;
extern template class QZ_API TXsRational<float>;
extern template class QZ_API TXsRational<double>;
extern template class QZ_API TXsRational<Extended>;

static_assert(sizeof(TXsRational<float>) == 24 && sizeof(TXsRational<double>) == 24);

} // namespace qz

QZ_TYPE_INFO(qz::TXsRationalRestrictions<float>);
QZ_TYPE_INFO(qz::TXsRationalRestrictions<double>);
QZ_TYPE_INFO(qz::TXsRationalRestrictions<qz::Extended>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsRationalRestrictions<float>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsRationalRestrictions<double>>);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsRationalRestrictions<qz::Extended>>);
QZ_TYPE_INFO(qz::TXsRational<float>);
QZ_TYPE_INFO(qz::TXsRational<double>);
QZ_TYPE_INFO(qz::TXsRational<qz::Extended>);
