#include <qz/runtime/time/Chrono.h>

namespace qz {

using std::chrono::days;
using std::chrono::milliseconds;

milliseconds detail::SinceUnixEpoch(TDateTime ADate) {
    const TDayAndTime Parts = SplitDateTime(ADate);
    return days(Parts.Day) - cUnixEpoch + milliseconds(Parts.MSecs);
}

TDateTime detail::AtUnixEpoch(milliseconds ASince) {
    const milliseconds Since = ASince + cUnixEpoch;
    const days Day = std::chrono::floor<days>(Since);
    if (Day < days(static_cast<int>(MinDateTime)) || Day > days(static_cast<int>(MaxDateTime)))
        RaiseInvalidDateTime();
    return JoinDateTime(
        {static_cast<std::int32_t>(Day.count()), static_cast<std::int32_t>((Since - Day).count())});
}

} // namespace qz
