// Zones told by the rule texts of POSIX, such as "CET-1CEST,M3.5.0,M10.5.0/3" or "<-03>3".
#pragma once

#include <string_view>

#include <qz/platform/TimeZone.h>

namespace qz::platform::detail {

// Appends the rule, and its kinds unless they are there. False, and AZone unchanged, for what is no such text. As the C
// library takes them: hours beyond 24 and minutes beyond 59 count as these; a daylight name without a rule, or with half
// of one, follows that of the United States; what stands behind the rule is not looked at.
bool ReadZoneText(std::string_view AText, TSystemZone& AZone);

} // namespace qz::platform::detail
