#include <utility>

#include "runtime/text/FloatText.h"
#include "runtime/text/NumberText.h"
#include "runtime/values/VariantItems.h"

namespace qz {
namespace {

using detail::TVariantAccess;

enum class TKind : std::uint8_t { Empty, Null, Text, Boolean, Integer, Real };

TKind KindOf(const Variant& AValue) noexcept {
    switch (VarType(AValue)) {
    case varEmpty: return TKind::Empty;
    case varNull: return TKind::Null;
    case varBoolean: return TKind::Boolean;
    default:
        return TVariantAccess::IsText(AValue) ? TKind::Text
            : TVariantAccess::IsReal(AValue)  ? TKind::Real
                                              : TKind::Integer;
    }
}

std::int64_t IntegerOf(const Variant& AValue) noexcept {
    const std::int64_t Value = TVariantAccess::Integer(AValue);
    return VarType(AValue) == varBoolean ? -Value : Value;
}

double RealOf(const Variant& AValue) noexcept {
    if (TVariantAccess::IsReal(AValue))
        return TVariantAccess::Real(AValue);
    const std::int64_t Value = IntegerOf(AValue);
    return VarType(AValue) == varUInt64 ? static_cast<double>(static_cast<std::uint64_t>(Value))
                                        : static_cast<double>(Value);
}

bool SameIntegers(const Variant& ALeft, const Variant& ARight) noexcept {
    const std::int64_t Left = IntegerOf(ALeft);
    const std::int64_t Right = IntegerOf(ARight);
    const bool SameSign = (VarType(ALeft) == varUInt64) == (VarType(ARight) == varUInt64);
    return Left == Right && (SameSign || Left >= 0);
}

// The text is read in the form of the other value.
bool SameAsText(const Variant& AValue, const Variant& AText) {
    const UnicodeString Text = VarToStr(AText);
    if (bool Boolean = false; KindOf(AValue) == TKind::Boolean && TryStrToBool(Text, Boolean))
        return Boolean == (TVariantAccess::Integer(AValue) != 0);
    double Number = 0;
    if (KindOf(AValue) == TKind::Boolean || !TryStrToFloat(Text, Number))
        throw EVariantTypeCastError(u"The text \"%s\" cannot be compared with a value of type %d",
                                    {Text, VarType(AValue)});
    return Number == RealOf(AValue);
}

bool SameAsEmpty(const Variant& AValue) {
    return KindOf(AValue) == TKind::Text ? VarToStr(AValue).empty() : RealOf(AValue) == 0;
}

} // namespace

bool operator==(const Variant& ALeft, const Variant& ARight) {
    if (VarIsArray(ALeft) || VarIsArray(ARight))
        throw EVariantInvalidOpError(u"A variant that is an array cannot be compared");
    const TKind Left = KindOf(ALeft);
    const TKind Right = KindOf(ARight);
    if (Left == TKind::Null || Right == TKind::Null)
        return Left == Right;
    if (Left == TKind::Empty || Right == TKind::Empty)
        return Left == Right || SameAsEmpty(Left == TKind::Empty ? ARight : ALeft);
    if (Left == TKind::Text && Right == TKind::Text)
        return VarToStr(ALeft) == VarToStr(ARight);
    if (Left == TKind::Text || Right == TKind::Text)
        return Left == TKind::Text ? SameAsText(ARight, ALeft) : SameAsText(ALeft, ARight);
    if (Left == TKind::Real || Right == TKind::Real)
        return RealOf(ALeft) == RealOf(ARight);
    return SameIntegers(ALeft, ARight);
}

} // namespace qz
