// Compiled time zones, the TZif format of RFC 9636 in all its versions.
#pragma once

#include <cstddef>
#include <span>

#include <qz/platform/TimeZone.h>

namespace qz::platform::detail {

// More than any zone needs, less than would do harm.
constexpr std::size_t cLongestZoneFile = std::size_t{1} << 20;

// Fills in all but the Id. False, and AZone unchanged, for data that is cut off or breaks the format before
// its footer. A footer that cannot be read counts as empty. Leap seconds are not counted: the second in which
// a "right/" file changes is that of its own clock.
bool ReadZoneFile(std::span<const std::byte> AData, TSystemZone& AZone);

} // namespace qz::platform::detail
