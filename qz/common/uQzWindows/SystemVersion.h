// The version of Windows as one number.
//
//     if (QzGetWindowsVersion() >= 601) ...     // programs run with limited rights until they are elevated
//
//     640   11                        621   8 and 10, and 10 and 11 to a program that claims to know them
//     630   8.1, and 10 to others     620   servers from 2012 on      611, 610   7, Server 2008 R2
//     601, 602   Vista, Server 2008   523, 521, 520, 517, 515, 513, 511, 500   before
//     11, 16, 7, 5, 14, 3   a system that reports no version, by the functions that it has
#pragma once

#include <cstdint>

#include <qz/platform/Export.h>

namespace qz {

// 640 on any other system. Raises Exception, "Failed to load Kernel32.dll!" or "Failed to determine the
// version of the OS!". Any thread.
QZ_API std::uint16_t QzGetWindowsVersion();

} // namespace qz
