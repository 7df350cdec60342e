#include <utility>

#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/values/VariantConvert.h>
#include <qz/runtime/values/detail/VariantKinds.h>

namespace qz {
namespace {

using detail::KindOf;
using detail::NumberAsDecimal;
using detail::NumberAsReal;
using detail::TTextOf;
using detail::TVariantAccess;
using detail::TVariantKind;

std::partial_ordering Reversed(std::partial_ordering AOrder) noexcept {
    return std::is_lt(AOrder) ? std::partial_ordering::greater
        : std::is_gt(AOrder)  ? std::partial_ordering::less
                              : AOrder;
}

// Floats by their value; whole numbers and decimals among themselves exactly.
std::partial_ordering CompareNumbers(const Variant& ALeft, const Variant& ARight) noexcept {
    const TVariantKind Left = KindOf(ALeft);
    const TVariantKind Right = KindOf(ARight);
    if (Left == TVariantKind::Real || Right == TVariantKind::Real)
        return NumberAsReal(ALeft) <=> NumberAsReal(ARight);
    if (Left == TVariantKind::Integer && Right == TVariantKind::Integer)
        return TVariantAccess::Integer(ALeft) <=> TVariantAccess::Integer(ARight);
    return NumberAsDecimal(ALeft) <=> NumberAsDecimal(ARight);
}

[[noreturn]] void RaiseText(const UnicodeString& AText, const Variant& ANumber) {
    throw EVariantTypeCastError(u"The text \"%s\" cannot be compared with a value of type %s",
                                {AText, VarTypeAsText(VarType(ANumber))});
}

// The text is read in the form of the other value.
std::partial_ordering CompareWithText(const Variant& ANumber, const Variant& AText) {
    const TTextOf Source(AText);
    const UnicodeString& Text = Source.Text();
    if (VarType(ANumber) == varBoolean) {
        bool Boolean = false;
        if (!TryStrToBool(Text, Boolean))
            RaiseText(Text, ANumber);
        return CompareNumbers(ANumber, Boolean);
    }
    if (TDateTime Date; VarType(ANumber) == varDate && TryStrToDateTime(Text, Date))
        return CompareNumbers(ANumber, Date);
    if (TSysDecimal Decimal; KindOf(ANumber) != TVariantKind::Real && TryStrToDecimal(Text, Decimal))
        return CompareNumbers(ANumber, Decimal);
    double Real = 0;
    if (!TryStrToFloat(Text, Real))
        RaiseText(Text, ANumber);
    return CompareNumbers(ANumber, Real);
}

// The first is of no higher kind than the second, and they are not both texts.
std::partial_ordering CompareInOrder(const Variant& AFirst, const Variant& ASecond) {
    const TVariantKind First = KindOf(AFirst);
    const TVariantKind Second = KindOf(ASecond);
    if (First == TVariantKind::Null || Second == TVariantKind::Null || Second == TVariantKind::Address) {
        const bool IsSame = First == Second && TVariantAccess::Bits(AFirst) == TVariantAccess::Bits(ASecond);
        return IsSame ? std::partial_ordering::equivalent : std::partial_ordering::unordered;
    }
    if (Second == TVariantKind::Empty)
        return std::partial_ordering::equivalent;
    if (First == TVariantKind::Empty)
        return Second == TVariantKind::Text ? 0 <=> TTextOf(ASecond).Text().Length()
                                            : CompareNumbers(0, ASecond);
    return Second == TVariantKind::Text ? CompareWithText(AFirst, ASecond) : CompareNumbers(AFirst, ASecond);
}

} // namespace

std::partial_ordering operator<=>(const Variant& ALeft, const Variant& ARight) {
    const TVariantKind Left = KindOf(ALeft);
    const TVariantKind Right = KindOf(ARight);
    if (Left == TVariantKind::Array || Right == TVariantKind::Array)
        throw EVariantInvalidOpError(u"A variant that is an array cannot be compared");
    if (Left == TVariantKind::Text && Right == TVariantKind::Text)
        return TTextOf(ALeft).Text() <=> TTextOf(ARight).Text();
    return Left <= Right ? CompareInOrder(ALeft, ARight) : Reversed(CompareInOrder(ARight, ALeft));
}

bool operator==(const Variant& ALeft, const Variant& ARight) {
    if (VarIsStr(ALeft) && VarIsStr(ARight)) {
        const TTextOf Left(ALeft);
        return Left.Text() == TTextOf(ARight).Text();
    }
    return std::is_eq(ALeft <=> ARight);
}

TVariantRelationship VarCompareValue(const Variant& ALeft, const Variant& ARight) {
    const std::partial_ordering Order = ALeft <=> ARight;
    return std::is_lt(Order) ? vrLessThan
        : std::is_gt(Order)  ? vrGreaterThan
        : std::is_eq(Order)  ? vrEqual
                             : vrNotEqual;
}

} // namespace qz
