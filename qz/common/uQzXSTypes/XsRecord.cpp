#include <qz/common/uQzXSTypes/XsRecord.h>

#include <qz/common/uQzXSTypes/XsAnySimpleType.h>
#include <qz/common/uQzXSTypes/detail/XsBreach.h>

namespace qz {
namespace detail {
namespace {

// By TXsBreach.
constexpr std::u16string_view cBreaches[] = {
    u"The length of the specified valaue does not match the specified length!",
    u"The specified value is longer than the max length!",
    u"The specified value is shorter than the max length!",
    u"The specified value does not match the specified pattern!",
    u"The specified value is smaller than, or equal to, the minimal value!",
    u"The specified value is greater than, or equal to, the maximal value!",
    u"The specified value is smaller than the minimal value!",
    u"The specified value is greater than, or equal to, the maximal value!",
    u"The value contains more digits than the maximum amount of allowed digits!",
    u"The value contains more digits than the maximum amount of allowed fraction digits!",
};

} // namespace

void RaiseXsRange() {
    throw ERangeError(u"Range check error");
}

void RaiseXsDivByZero() {
    throw EDivByZero(u"Division by zero");
}

void RaiseXsBreach(TXsBreach ABreach) {
    throw EArgumentOutOfRangeException(UnicodeString(cBreaches[static_cast<std::size_t>(ABreach)]));
}

void CheckXsPattern(const UnicodeString& AText, const UnicodeString& APattern, const TRegEx* ACompiled) {
    if (APattern.IsEmpty())
        return;
    if (!(ACompiled != nullptr ? ACompiled->IsMatch(AText) : TRegEx(APattern).IsMatch(AText)))
        RaiseXsBreach(TXsBreach::Pattern);
}

} // namespace detail

template class TXsAnySimpleType<std::int8_t>;
template class TXsAnySimpleType<std::int16_t>;
template class TXsAnySimpleType<std::int32_t>;
template class TXsAnySimpleType<std::int64_t>;
template class TXsAnySimpleType<std::uint8_t>;
template class TXsAnySimpleType<std::uint16_t>;
template class TXsAnySimpleType<std::uint32_t>;
template class TXsAnySimpleType<std::uint64_t>;
template class TXsAnySimpleType<float>;
template class TXsAnySimpleType<double>;
template class TXsAnySimpleType<Extended>;

} // namespace qz
