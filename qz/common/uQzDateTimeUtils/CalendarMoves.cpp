#include <qz/common/uQzDateTimeUtils/CalendarMoves.h>

#include <algorithm>
#include <limits>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {

// Twelve months clip exactly 29 February, and more of them than fit would leave the years 1 to 9999 anyway.
static TDateTime MoveMonths(TDateTime ADate, std::int64_t AMonths) {
    using TLimits = std::numeric_limits<std::int32_t>;
    return IncMonth(
        ADate, static_cast<std::int32_t>(std::clamp<std::int64_t>(AMonths, TLimits::min(), TLimits::max())));
}

TDateTime QzAddYears(TDateTime ADate, std::int32_t ACount) {
    return MoveMonths(ADate, std::int64_t{ACount} * 12);
}

TDateTime QzAddMonths(TDateTime ADate, std::int32_t ACount) {
    const TDateTime Result = MoveMonths(ADate, ACount);
    return ACount == 0 ? ADate : Result;
}

TDateTime QzAddQuarters(TDateTime ADate, std::int32_t ACount) {
    return ACount == 0 ? QzAddMonths(ADate, 0) : MoveMonths(ADate, std::int64_t{ACount} * 3);
}

TDateTime QzRoundTime(TDateTime ADate, std::int32_t AInterval) {
    if (AInterval == 0)
        throw EDivByZero(u"Division by zero");
    if (AInterval < 0)
        throw EConvertError(u"Invalid interval");
    std::uint16_t Year, Month, Day, Hours, Minutes, Seconds, MSecs;
    DecodeDateTime(ADate, Year, Month, Day, Hours, Minutes, Seconds, MSecs);
    int Hour = Hours;
    int Minute = Minutes;
    if (Minute % AInterval != 0)
        Minute = (Minute / AInterval + 1) * AInterval;
    if (Minute == 60) {
        ++Hour;
        Minute = 0;
    }
    return EncodeDateTime(Year, Month, Day, Hour, Minute, 0, 0);
}

} // namespace qz
