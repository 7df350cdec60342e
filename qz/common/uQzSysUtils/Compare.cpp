#include <qz/common/uQzSysUtils/Compare.h>

#include <algorithm>

#include <qz/runtime/base/StringUtils.h>

namespace qz {
namespace {

bool SameElements(const Variant& ALeft, const Variant& ARight) {
    const int Last = VarArrayHighBound(ALeft);
    for (int I = VarArrayLowBound(ALeft); I <= Last; ++I) {
        if (!(VarArrayGet(ALeft, I) == VarArrayGet(ARight, I)))
            return false;
        if (I == INT32_MAX)
            break;
    }
    return true;
}

} // namespace

bool QzSameText(const TStringArg& ALeft, const TStringArg& ARight) noexcept {
    const std::u16string_view Left = ALeft;
    const std::u16string_view Right = ARight;
    return Left.size() == Right.size() &&
        std::equal(Left.begin(), Left.end(), Right.begin(), [](char16_t A, char16_t B) {
               return A == B || detail::UpperUnit(A) == detail::UpperUnit(B);
           });
}

bool QzSameText(const AnsiString& ALeft, const AnsiString& ARight) {
    return QzSameText(ALeft.ToUnicode(), ARight.ToUnicode());
}

bool QzSameTrimmedText(const TStringArg& ALeft, const TStringArg& ARight) {
    return QzSameText(Trim(ALeft), Trim(ARight));
}

bool QzSameGuid(const TGUID& ALeft, const TGUID& ARight) noexcept {
    return ALeft == ARight;
}

bool QzSameVar(const Variant& ALeft, const Variant& ARight) {
    return VarType(ALeft) == VarType(ARight) && ALeft == ARight;
}

bool QzSameArray(const Variant& ALeft, const Variant& ARight) noexcept {
    try {
        return SameElements(ALeft, ARight);
    } catch (...) {
        return false;
    }
}

} // namespace qz
