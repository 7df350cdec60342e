// The few kinds that the many types of variants come down to for conversion and comparison. Internal.
#pragma once

#include <qz/runtime/values/detail/VariantItems.h>

namespace qz::detail {

enum class TVariantKind : std::uint8_t {
    Empty,
    Null,
    Integer,  // of up to 64 bits with a sign; booleans and errors too
    Unsigned, // of 64 bits
    Real,     // dates too
    Currency,
    Decimal,
    Text,
    Address, // an interface or object
    Array
};

inline TVariantKind KindOf(const Variant& AValue) noexcept {
    using enum TVariantKind;
    static constexpr TVariantKind cKinds[] = {
        Empty,   Null,  Integer, Integer, Real,  Real,    Currency, Real,    Text,    Address, Integer,
        Integer, Empty, Address, Decimal, Empty, Integer, Integer,  Integer, Integer, Integer, Unsigned};
    const TVarType Type = VarType(AValue);
    if (Type < std::size(cKinds))
        return cKinds[Type];
    return Type == varUString || Type == varString ? Text : Type == varObject ? Address : Array;
}

inline bool IsNumber(TVariantKind AKind) noexcept {
    return AKind >= TVariantKind::Integer && AKind <= TVariantKind::Decimal;
}

// A number of any of the five kinds as the nearest double.
double NumberAsReal(const Variant& ANumber) noexcept;
// A number of any of the five kinds but Real, exactly.
TSysDecimal NumberAsDecimal(const Variant& ANumber) noexcept;

// A text of any type as 16-bit text, without a copy where it is that. The variant outlives it.
class TTextOf {
public:
    explicit TTextOf(const Variant& AText)
        : FText(VarType(AText) == varString ? FOwn : TVariantAccess::Wide(AText)) {
        if (VarType(AText) == varString)
            FOwn = TVariantAccess::Narrow(AText).ToUnicode();
    }
    TTextOf(const TTextOf&) = delete;
    TTextOf& operator=(const TTextOf&) = delete;
    const UnicodeString& Text() const noexcept { return FText; }

private:
    UnicodeString FOwn;
    const UnicodeString& FText;
};

} // namespace qz::detail
