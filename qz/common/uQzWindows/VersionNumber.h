// The number of a version of Windows, from what the system tells of itself.
#pragma once

#include <qz/platform/SystemVersion.h>

namespace qz::detail {

// As QzGetWindowsVersion.
QZ_API std::uint16_t VersionNumber(const platform::TWindowsFacts& AFacts);

} // namespace qz::detail
