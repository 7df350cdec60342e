#include "common/uQzDateTimeUtils/CalendarTypes.h"

#include "runtime/reflection/BasicTypes.h"
#include "runtime/reflection/Describe.h"

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzDateTimeUtils";

constexpr TEnumItem cWeekFormats[] = {{u"wfYearWeek", 0}, {u"wfWeek", 1}};
constexpr TEnumItem cDatePeriods[] = {{u"dpNone", 0},    {u"dpYear", 1},      {u"dpHalfYear", 2},
                                      {u"dpQuarter", 3}, {u"dpFourWeeks", 4}, {u"dpMonth", 5},
                                      {u"dpWeek", 6},    {u"dpDay", 7}};
constexpr TEnumItem cWorkDayAdjustments[] = {{u"wdLast", 0}, {u"wdNext", 1}};
constexpr TEnumItem cDecodeTypes[] = {
    {u"dtYear", 0}, {u"dtMonth", 1}, {u"dtDayOfYear", 2}, {u"dtDayOfMonth", 3}};
constexpr TEnumItem cTimeZoneFormats[] = {{u"tzfNA", 0}, {u"tzfOffset", 1}, {u"tzfUTC", 2}};

constexpr TFieldInfo cDurationFields[] = {Field<&TQzDuration::Negative>(u"Negative"),
                                          Field<&TQzDuration::Months>(u"Months"),
                                          Field<&TQzDuration::Seconds>(u"Seconds")};

} // namespace

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
