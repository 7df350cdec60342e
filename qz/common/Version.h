// The version of the library that is running, for reports and for checks at start-up.
//
//     std::printf("QzCommon %s\n", std::string(qz::Version()).c_str());
#pragma once

#include <string_view>

#include <qz/platform/Export.h>

namespace qz {

// The version as "major.minor.patch" in ASCII, of the library linked to, which with a shared library may be
// newer than the headers compiled against. The text lives as long as the process; any thread may call.
QZ_API std::string_view Version() noexcept;

} // namespace qz
