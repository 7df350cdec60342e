// TXsBoolean: xs:boolean, a Boolean that may be null, and the result of the comparisons of value records.
//
//     TXsBoolean Done, Failed = false;    // Done is null
//     Done.FromString("1");
//     if (Done) ...                       // false for null
//     (Done & !Failed).IsNull();          // & | ^ ! give null where an operand is null
//
// && and || are those of C++, which take null for false. A record belongs to one thread at a time.
#pragma once

#include <qz/common/uQzXSTypes/XsArithmetic.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

class QZ_API TXsBoolean : public detail::TXsRecordOrder<TXsBoolean>,
                          public detail::TXsEquality<TXsBoolean, TXsBoolean>,
                          public detail::TXsBits<TXsBoolean> {
public:
    using TXsValue = bool;
    template <class U> static constexpr bool cTakes = std::same_as<U, bool>;
    template <class U> static constexpr bool cWidens = false;

    bool FValue = false;
    UnicodeString FHasValue; // "1" or empty

    TXsBoolean() noexcept = default;
    template <detail::CXsSource<TXsBoolean> U> TXsBoolean(const U& AValue) {
        if (detail::XsRead<TXsBoolean>(AValue, FValue))
            FHasValue = detail::cXsMarker;
    }

    static TXsBoolean GetNull() noexcept { return {}; }
    static PTypeInfo GetTypeInfo() noexcept { return TypeInfo<bool>(); } // of Boolean
    static TTypeKind GetTypeKind() noexcept { return tkEnumeration; }
    static bool ToValue(bool AValue) noexcept { return AValue; }
    static bool Operand(bool AValue) noexcept { return AValue; }

    bool IsNull() const noexcept { return !detail::XsHasValue(FHasValue); }
    template <std::same_as<bool> U> operator U() const noexcept { return FValue && !IsNull(); }
    // Nothing for null. An assignment to an optional, and its constructor, take null for false: use
    // ToOptional.
    std::optional<bool> ToOptional() const { return IsNull() ? std::nullopt : std::optional<bool>(FValue); }
    // NOLINTBEGIN(readability-make-member-function-const): an optional prefers the exact form
    operator std::optional<bool>() & { return ToOptional(); }
    operator std::optional<bool>() const& { return ToOptional(); }
    operator std::optional<bool>() && { return ToOptional(); }
    // NOLINTEND(readability-make-member-function-const)
    Variant ToVariant() const;      // a Boolean, or Null
    UnicodeString ToString() const; // "true", or "false", also for null
    void PrintOn(std::ostream& AStream) const;

    // True where the first character is "1", "T" or "t"; null for the empty text. Raises nothing.
    void FromString(const TStringArg& AText);
    void Clear() noexcept { *this = {}; }
    void StoreChecked(bool AValue) noexcept { FValue = AValue; } // nothing restricts a Boolean

    friend TXsBoolean operator!(const TXsBoolean& AValue) {
        return AValue.IsNull() ? TXsBoolean() : TXsBoolean(!AValue.FValue);
    }
};

static_assert(sizeof(TXsBoolean) == 16);

} // namespace qz

QZ_TYPE_INFO(qz::TXsBoolean);
