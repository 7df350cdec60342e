#include <qz/common/uQzDateTimeUtils/CalendarMonths.h>

#include <algorithm>
#include <utility>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

constexpr double cDayAfterLast = static_cast<int>(MaxDateTime) + 1;

struct TParts {
    std::uint16_t Year, Month, Day;
    explicit TParts(TDateTime ADate) { DecodeDate(ADate, Year, Month, Day); }
};

std::int32_t WholeDays(TDateTime ADate) {
    if (!(ADate > MinDateTime - 1 && ADate < cDayAfterLast))
        RaiseInvalidDateTime();
    return static_cast<std::int32_t>(ADate.Value);
}

} // namespace

namespace detail {

int CalendarYear(std::int64_t AYear) {
    if (!std::in_range<int>(AYear))
        throw EConvertError(u"Invalid argument to date encode");
    return static_cast<int>(AYear);
}

TDateTime FirstOfYear(int AYear) {
    return EncodeDate(AYear, 1, 1);
}

TDateTime LastOfYear(int AYear) {
    return EncodeDate(AYear, 12, QzDaysInMonth(AYear, 12));
}

} // namespace detail

TDateTime QzBOMonth(int AYear, int AMonth) {
    return EncodeDate(AYear, AMonth, 1);
}

TDateTime QzBOMonth(TDateTime ADate) {
    const TParts Parts(ADate);
    return QzBOMonth(Parts.Year, Parts.Month);
}

TDateTime QzEOMonth(int AYear, int AMonth) {
    return EncodeDate(AYear, AMonth, QzDaysInMonth(AYear, AMonth));
}

TDateTime QzEOMonth(TDateTime ADate) {
    const TParts Parts(ADate);
    return QzEOMonth(Parts.Year, Parts.Month);
}

TDateTime QzBOYear(TDateTime ADate) {
    return detail::FirstOfYear(TParts(ADate).Year);
}

TDateTime QzEOYear(TDateTime ADate) {
    return detail::LastOfYear(TParts(ADate).Year);
}

std::uint16_t QzDaysInMonth(int AYear, int AMonth) {
    if (AMonth < 1 || AMonth > 12)
        throw EConvertError(u"Invalid argument to date encode");
    return MonthDays[IsLeapYear(AYear)][AMonth - 1];
}

std::uint16_t QzDaysInMonth(TDateTime ADate) {
    const TParts Parts(ADate);
    return QzDaysInMonth(Parts.Year, Parts.Month);
}

std::uint16_t QzDaysInYear(TDateTime ADate) {
    return QzDaysInYear(TParts(ADate).Year);
}

std::uint16_t QzDayOfMonth(TDateTime ADate) {
    return TParts(ADate).Day;
}

// Less than half a millisecond before New Year a value counts to the new year already, but as a whole day
// before it.
std::uint16_t QzDayOfYear(TDateTime ADate) {
    return static_cast<std::uint16_t>(std::max(QzDateCompare(ADate, QzBOYear(ADate)), 0) + 1);
}

std::int32_t QzDecodeDate(TDateTime ADate, TQzDecodeType APart) {
    switch (APart) {
    case dtYear: return TParts(ADate).Year;
    case dtMonth: return TParts(ADate).Month;
    case dtDayOfYear: return QzDayOfYear(ADate);
    case dtDayOfMonth: return TParts(ADate).Day;
    }
    throw EConvertError(u"Invalid part of a date");
}

std::int32_t QzDateCompare(TDateTime AFirst, TDateTime ASecond) {
    return WholeDays(AFirst) - WholeDays(ASecond);
}

} // namespace qz
