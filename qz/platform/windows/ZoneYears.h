// The rules of a zone of Windows, year by year.
#pragma once

#include <qz/platform/TimeZone.h>

struct _TIME_DYNAMIC_ZONE_INFORMATION; // DYNAMIC_TIME_ZONE_INFORMATION

namespace qz::platform::detail {

TSystemZone ReadZoneYears(const _TIME_DYNAMIC_ZONE_INFORMATION& AZone);

} // namespace qz::platform::detail
