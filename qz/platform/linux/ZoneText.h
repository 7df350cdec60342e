// Time zones in POSIX rule notation, such as "CET-1CEST,M3.5.0,M10.5.0/3" or "<-03>3".
#pragma once

#include <string_view>

#include <qz/platform/TimeZone.h>

namespace qz::platform::detail {

// Appends the rule, and its kinds unless they are there. False, and AZone unchanged, for any other text. As
// the C library takes them: hours beyond 24 and minutes beyond 59 count as these; a daylight name without a
// rule, or with half of one, follows that of the United States; what stands after the rule is not looked at.
bool ReadZoneText(std::string_view AText, TSystemZone& AZone);

} // namespace qz::platform::detail
