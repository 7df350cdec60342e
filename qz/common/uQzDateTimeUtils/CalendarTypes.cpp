#include <qz/common/uQzDateTimeUtils/CalendarTypes.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/EnumItems.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzDateTimeUtils";

constexpr auto cWeekFormats = EnumItems({u"wfYearWeek", u"wfWeek"});
constexpr auto cDatePeriods = EnumItems(
    {u"dpNone", u"dpYear", u"dpHalfYear", u"dpQuarter", u"dpFourWeeks", u"dpMonth", u"dpWeek", u"dpDay"});
constexpr auto cWorkDayAdjustments = EnumItems({u"wdLast", u"wdNext"});
constexpr auto cDecodeTypes = EnumItems({u"dtYear", u"dtMonth", u"dtDayOfYear", u"dtDayOfMonth"});
constexpr auto cTimeZoneFormats = EnumItems({u"tzfNA", u"tzfOffset", u"tzfUTC"});

constexpr TFieldInfo cDurationFields[] = {Field<&TQzDuration::Negative>(u"Negative"),
                                          Field<&TQzDuration::Months>(u"Months"),
                                          Field<&TQzDuration::Seconds>(u"Seconds")};

} // namespace

QZ_REGISTER_TYPES(TQzWeekFormat, TQzDatePeriod, TQzWorkDayAdjustment, TQzDecodeType, TQzTimeZoneFormat,
                  TQzUTCDate, TQzUTCTime, TQzUTCDateTime, TQzDuration);

template <class T> using TInfo = TTypeDescription<T>;

constinit const TTypeInfo TInfo<TQzWeekFormat>::Info =
    DescribeEnum<TQzWeekFormat>(u"TQzWeekFormat", cUnit, cWeekFormats);
constinit const TTypeInfo TInfo<TQzDatePeriod>::Info =
    DescribeEnum<TQzDatePeriod>(u"TQzDatePeriod", cUnit, cDatePeriods);
constinit const TTypeInfo TInfo<TQzWorkDayAdjustment>::Info =
    DescribeEnum<TQzWorkDayAdjustment>(u"TQzWorkDayAdjustment", cUnit, cWorkDayAdjustments);
constinit const TTypeInfo TInfo<TQzDecodeType>::Info =
    DescribeEnum<TQzDecodeType>(u"TQzDecodeType", cUnit, cDecodeTypes);
constinit const TTypeInfo TInfo<TQzTimeZoneFormat>::Info =
    DescribeEnum<TQzTimeZoneFormat>(u"TQzTimeZoneFormat", cUnit, cTimeZoneFormats);
constinit const TTypeInfo TInfo<TQzUTCDate>::Info = DescribeType<TQzUTCDate>(tkFloat, u"TQzUTCDate", cUnit);
constinit const TTypeInfo TInfo<TQzUTCTime>::Info = DescribeType<TQzUTCTime>(tkFloat, u"TQzUTCTime", cUnit);
constinit const TTypeInfo TInfo<TQzUTCDateTime>::Info =
    DescribeType<TQzUTCDateTime>(tkFloat, u"TQzUTCDateTime", cUnit);
constinit const TTypeInfo TInfo<TQzDuration>::Info =
    DescribeRecord<TQzDuration>(u"TQzDuration", cUnit, cDurationFields);

} // namespace qz
