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

// The numbers as the system's core tells them: those of the kernel on Linux, where 6.1.25-rt3 gives 6, 1, 25 and "rt3".
struct TSystemVersion {
    std::uint32_t Major = 0;
    std::uint32_t Minor = 0;
    std::uint32_t Build = 0;
    std::u16string Pack; // what was put on it later, such as the name of a service pack
};

// Any thread.
QZ_API TSystemVersion SystemVersion();

// What Windows tells a program of itself, which depends on what the program's manifest claims to know.
struct TWindowsFacts {
    bool HasKernel = false;  // the module of the kernel's functions was found
    bool HasVersion = false; // the fields below are known, up to Metric89
    std::uint32_t Major = 0;
    std::uint32_t Minor = 0;
    std::uint32_t ServicePack = 0;
    bool IsWorkstation = false;
    std::u16string CurrentBuild = {}; // as the registry has them
    std::u16string CurrentVersion = {};
    bool HasLargePages = false;
    int Metric89 = 0; // of the second release of a server
    // Functions of the kernel, which tell systems apart that do not tell their version.
    bool HasOpenThread = false;
    bool HasThreadPriorityBoost = false;
    bool HasIsDebuggerPresent = false;
    bool HasDiskFreeSpaceEx = false;
    bool HasConnectNamedPipe = false;
    bool HasBeep = false;
};

// Nothing on another system. Any thread.
QZ_API std::optional<TWindowsFacts> WindowsFacts();

} // namespace qz::platform
