#include <qz/runtime/time/TimeZone.h>

#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/EnumItems.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/time/detail/ZoneState.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"System";
constexpr auto cLocalTimeTypes = EnumItems({u"ltStandard", u"ltDaylight", u"ltAmbiguous", u"ltInvalid"});

constexpr std::int64_t cFirstDay = 1 - DateDelta;
constexpr auto cLastDay = static_cast<std::int64_t>(MaxDateTime);
// Moves far days into the range of the unsigned division, and back.
constexpr std::int64_t cDaysAside = 800'000;
static_assert(cDaysAside > DateDelta);

[[noreturn]] void RaiseInvalid(TDateTime ALocal) {
    throw ELocalTimeInvalid(
        u"The given \"%s\" local time is invalid (situated within the missing period prior to DST).",
        {DateTimeToStr(ALocal)});
}

std::int64_t MSecsOf(TDateTime AValue) {
    const TDayAndTime Parts = SplitDateTime(AValue);
    return Parts.Day * detail::cMSecsPerDay + Parts.MSecs;
}

TDateTime DateTimeOf(std::int64_t AMSecs) {
    const auto Moved = static_cast<std::uint64_t>(AMSecs + cDaysAside * detail::cMSecsPerDay);
    const auto Day = static_cast<std::int64_t>(Moved / detail::cMSecsPerDay) - cDaysAside;
    if (Day < cFirstDay || Day > cLastDay) [[unlikely]]
        RaiseInvalidDateTime();
    return JoinDateTime(
        {static_cast<std::int32_t>(Day), static_cast<std::int32_t>(Moved % detail::cMSecsPerDay)});
}

const detail::TZonePeriod& PeriodOf(const detail::TZoneTable& ATable, TDateTime ALocal, std::int64_t AMSecs,
                                    bool AForceDaylight) {
    const detail::TZoneMatch Match = ATable.AtLocal(AMSecs);
    if (Match.Standard == nullptr) [[unlikely]]
        RaiseInvalid(ALocal);
    return *(AForceDaylight ? Match.Daylight : Match.Standard);
}

TTimeSpan SpanOf(const detail::TZonePeriod& APeriod) noexcept {
    return {APeriod.Offset * TTimeSpan::TicksPerMillisecond};
}

} // namespace

QZ_REGISTER_TYPES(ELocalTimeInvalid, TLocalTimeType);

const TClassRec ELocalTimeInvalid::ClassRec =
    DescribeException<ELocalTimeInvalid>(u"ELocalTimeInvalid", cUnit);
constinit const TTypeInfo TTypeDescription<TLocalTimeType>::Info =
    DescribeEnum<TLocalTimeType>(u"TLocalTimeType", cUnit, cLocalTimeTypes);

const TTimeZone& TTimeZone::Local() noexcept {
    static const TTimeZone cLocal;
    return cLocal;
}

void TTimeZone::Refresh() noexcept {
    detail::RefreshZone();
}

TTimeSpan TTimeZone::UtcOffset() const noexcept {
    const std::int64_t Now = platform::UtcNow100ns();
    return SpanOf(detail::ZoneAtClock(Now));
}

TTimeSpan TTimeZone::GetUtcOffset(TDateTime ALocal, bool AForceDaylight) const {
    return SpanOf(PeriodOf(detail::CurrentZone(), ALocal, MSecsOf(ALocal), AForceDaylight));
}

std::int64_t TTimeZone::GetUtcOffsetMSecs(std::int64_t AUtcMSecs) const noexcept {
    return detail::CurrentZone().AtUtc(AUtcMSecs).Offset;
}

TDateTime TTimeZone::ToUniversalTime(TDateTime ALocal, bool AForceDaylight) const {
    const std::int64_t MSecs = MSecsOf(ALocal);
    return DateTimeOf(MSecs - PeriodOf(detail::CurrentZone(), ALocal, MSecs, AForceDaylight).Offset);
}

TDateTime TTimeZone::ToLocalTime(TDateTime AUniversal) const {
    const std::int64_t MSecs = MSecsOf(AUniversal);
    return DateTimeOf(MSecs + detail::CurrentZone().AtUtc(MSecs).Offset);
}

TLocalTimeType TTimeZone::GetLocalTimeType(TDateTime ALocal) const {
    const detail::TZoneMatch Match = detail::CurrentZone().AtLocal(MSecsOf(ALocal));
    if (Match.Standard == nullptr)
        return ltInvalid;
    if (Match.Standard != Match.Daylight)
        return ltAmbiguous;
    return Match.Standard->IsDaylight ? ltDaylight : ltStandard;
}

UnicodeString TTimeZone::ID() const {
    return detail::CurrentZone().Zone().Id;
}

UnicodeString TTimeZone::GetDisplayName(TDateTime ALocal, bool AForceDaylight) const {
    const detail::TZoneTable& Table = detail::CurrentZone();
    return Table.Zone().Kinds[PeriodOf(Table, ALocal, MSecsOf(ALocal), AForceDaylight).Kind].Name;
}

void TTimeZone::GetYearChanges(int AYear, TZoneYearDay& AToStandard, TZoneYearDay& AToDaylight) const {
    EncodeDate(AYear, 1, 1);
    const detail::TZoneYear Year = detail::CurrentZone().YearAt(AYear);
    AToStandard = Year.ToStandard;
    AToDaylight = Year.ToDaylight;
}

} // namespace qz
