// Ages in whole years.
//
//     QzAge(EncodeDate(2024, 2, 28), EncodeDate(2000, 2, 29));    // 23
//     QzAge(Born);                                                // today
//
// Who was born on 29 February turns a year older on 1 March where a year has no such day. The functions have
// no state but the clock and may run on any number of threads.
#pragma once

#include <qz/runtime/time/DateTime.h>

namespace qz {

// The years from ABirth to AReference, below 0 when ABirth lies in the later year; the times of day do not
// count. A birth that is not greater than 0 gives 0. Raises EConvertError for a date outside the years 1 to
// 9999 and for a reference that is no number.
QZ_API std::int32_t QzAge(TDateTime AReference, TDateTime ABirth);
// Now, in the system's time zone.
QZ_API std::int32_t QzAge(TDateTime ABirth);

} // namespace qz
