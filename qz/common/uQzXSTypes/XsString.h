// TXsString: xs:string, a text that may be null and may be restricted.
//
//     TXsString Code;
//     Code.Restrictions = {.MaxLength = 3};
//     Code = u"abc";
//     Code = u"abcd";          // raises; Code is "abc" still
//
// Copies share text and restrictions. A record belongs to one thread at a time; copies may be used by
// different threads.
#pragma once

#include <qz/common/uQzXSTypes/XsAnySimpleType.h>
#include <qz/common/uQzXSTypes/XsArithmetic.h>
#include <qz/common/uQzXSTypes/XsFacets.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

class TRegEx;

// Lengths count 16-bit units.
struct QZ_API TXsStringRestrictions {
    using TChecked = UnicodeString;

    TXsAnySimpleType<std::int32_t> Length{};
    TXsAnySimpleType<std::int32_t> MinLength{};
    TXsAnySimpleType<std::int32_t> MaxLength{};
    UnicodeString Pattern{}; // of TRegEx; empty for none. It may match anywhere in the text

    void Clear() { *this = {}; }
    // Raises EArgumentOutOfRangeException with the message of the first restriction that the text breaks, in
    // the order Length, MaxLength, MinLength, Pattern, and ERegularExpressionError. ACompiled: the pattern
    // compiled, null when the caller has not.
    void CheckLimits(const UnicodeString& AText, const TRegEx* ACompiled = nullptr) const;
};

extern template class QZ_API TXsFacets<TXsStringRestrictions>;

namespace detail {
template <class U>
concept CXsText = std::convertible_to<const U&, UnicodeString> && !CXsRecord<U> && !std::is_null_pointer_v<U>;
}

class QZ_API TXsString : public detail::TXsRecordOrder<TXsString> {
public:
    using TXsValue = UnicodeString;
    template <class U> static constexpr bool cTakes = detail::CXsText<U>;
    template <class U> static constexpr bool cWidens = false;

    UnicodeString FValue;
    UnicodeString FHasValue; // "1" or empty
    TXsFacets<TXsStringRestrictions> Restrictions;

    TXsString() noexcept = default;
    // Any text that becomes a UnicodeString by itself, an optional one, nullopt.
    template <detail::CXsSource<TXsString> U> TXsString(const U& AText) {
        if (detail::XsRead<TXsString>(AText, FValue))
            FHasValue = detail::cXsMarker;
    }
    // Keeps the restrictions and checks them first; raises as CheckLimits does, and changes nothing then.
    template <detail::CXsSource<TXsString> U> TXsString& operator=(const U& AText) {
        UnicodeString Value;
        if (detail::XsRead<TXsString>(AText, Value))
            Assign(std::move(Value));
        else
            Clear();
        return *this;
    }

    static TXsString GetNull() noexcept { return {}; }
    static PTypeInfo GetTypeInfo() noexcept { return TypeInfo<UnicodeString>(); } // of string
    static TTypeKind GetTypeKind() noexcept { return tkString; } // whatever the kind of GetTypeInfo is
    template <class U> static UnicodeString ToValue(const U& AText) { return AText; }

    bool IsNull() const noexcept { return !detail::XsHasValue(FHasValue); }
    // Empty for null.
    template <std::same_as<UnicodeString> U> operator U() const { return IsNull() ? U() : FValue; }
    // Nothing for null. An assignment to an optional, and its constructor, take null for the empty text: use
    // ToOptional.
    std::optional<UnicodeString> ToOptional() const {
        return IsNull() ? std::nullopt : std::optional<UnicodeString>(FValue);
    }
    // NOLINTBEGIN(readability-make-member-function-const): an optional prefers the exact form
    operator std::optional<UnicodeString>() & { return ToOptional(); }
    operator std::optional<UnicodeString>() const& { return ToOptional(); }
    operator std::optional<UnicodeString>() && { return ToOptional(); }
    // NOLINTEND(readability-make-member-function-const)
    Variant ToVariant() const; // a text, or Null
    void PrintOn(std::ostream& AStream) const;

    // Keeps the restrictions.
    void Clear() noexcept;

    // Null for a null operand. The result has the restrictions of the left operand and is checked.
    template <class U>
        requires(cTakes<U> || std::same_as<U, TXsString>)
    friend TXsString operator+(const TXsString& ALeft, const U& ARight) {
        TXsString Result(ALeft);
        Result += ARight;
        return Result;
    }
    template <class U>
        requires(cTakes<U> || std::same_as<U, TXsString>)
    friend TXsString& operator+=(TXsString& ATarget, const U& ARight) {
        UnicodeString Value;
        if (!detail::XsRead<TXsString>(ARight, Value))
            ATarget.Clear();
        else if (!ATarget.IsNull())
            ATarget.Assign(ATarget.FValue + Value);
        return ATarget;
    }
    template <class U>
        requires(cTakes<U>)
    friend UnicodeString operator+(const U& ALeft, const TXsString& ARight) {
        return ToValue(ALeft) + static_cast<UnicodeString>(ARight);
    }
    // False for null.
    template <class U>
        requires(cTakes<U>)
    friend bool operator==(const TXsString& ALeft, const U& ARight) {
        return !ALeft.IsNull() && ALeft.FValue == ARight;
    }

private:
    void Assign(UnicodeString AText);
};

static_assert(sizeof(TXsString) == 24);

} // namespace qz

QZ_TYPE_INFO(qz::TXsStringRestrictions);
QZ_TYPE_INFO(qz::TXsFacets<qz::TXsStringRestrictions>);
QZ_TYPE_INFO(qz::TXsString);
