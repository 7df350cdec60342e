// The version number of Windows, from the facts that the system reports.
#pragma once

#include <qz/platform/SystemVersion.h>

namespace qz::detail {

// As QzGetWindowsVersion.
QZ_API std::uint16_t VersionNumber(const platform::TWindowsFacts& AFacts);

} // namespace qz::detail
