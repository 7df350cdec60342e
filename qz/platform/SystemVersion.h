// The version of the operating system.
//
//     const TSystemVersion Version = SystemVersion();
//     Write(Version.Major, Version.Minor);
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <qz/platform/Export.h>

namespace qz::platform {

// The version of the kernel. On Linux 6.1.25-rt3 gives 6, 1, 25 and "rt3".
struct TSystemVersion {
    std::uint32_t Major = 0;
    std::uint32_t Minor = 0;
    std::uint32_t Build = 0;
    std::u16string Pack; // the service pack, or the suffix of the kernel version
};

// Any thread.
QZ_API TSystemVersion SystemVersion();

// What Windows reports to the program; the version depends on the program's manifest.
struct TWindowsFacts {
    bool HasKernel = false;  // kernel32 was found
    bool HasVersion = false; // the fields up to Metric89 are valid
    std::uint32_t Major = 0;
    std::uint32_t Minor = 0;
    std::uint32_t ServicePack = 0;
    bool IsWorkstation = false;
    std::u16string CurrentBuild = {}; // from the registry
    std::u16string CurrentVersion = {};
    bool HasLargePages = false;
    int Metric89 = 0; // SM_SERVERR2
    // Whether kernel32 has these functions, which distinguish old versions.
    bool HasOpenThread = false;
    bool HasThreadPriorityBoost = false;
    bool HasIsDebuggerPresent = false;
    bool HasDiskFreeSpaceEx = false;
    bool HasConnectNamedPipe = false;
    bool HasBeep = false;
};

// Nothing on other systems. Any thread.
QZ_API std::optional<TWindowsFacts> WindowsFacts();

} // namespace qz::platform
