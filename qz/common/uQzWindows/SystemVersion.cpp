#include <qz/common/uQzWindows/SystemVersion.h>

#include <algorithm>
#include <optional>
#include <string>

#include <qz/common/uQzWindows/VersionNumber.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

using platform::TWindowsFacts;

constexpr std::uint16_t cElsewhere = 640;

std::uint16_t NumberOf5(const TWindowsFacts& AFacts) {
    if (AFacts.Minor >= 2) {
        if (!AFacts.HasLargePages)
            return 521;
        return AFacts.Metric89 != 0 ? 523 : 520;
    }
    if (AFacts.Minor == 0)
        return 500;
    constexpr std::uint16_t cByServicePack[] = {511, 513, 515, 517};
    return cByServicePack[std::min(AFacts.ServicePack, 3U)];
}

std::uint16_t NumberOf6(const TWindowsFacts& AFacts) {
    constexpr int cFirstBuildOf11 = 22000;
    if (AFacts.Minor == 0)
        return AFacts.IsWorkstation ? 601 : 602;
    if (AFacts.Minor == 1)
        return AFacts.IsWorkstation ? 611 : 610;
    if (!AFacts.IsWorkstation)
        return 620;
    if (StrToIntDef(AFacts.CurrentBuild, 0) >= cFirstBuildOf11)
        return 640;
    return AFacts.CurrentVersion == u"6.3" ? 630 : 621;
}

// For a system that reports no version, or one too old for the table.
std::uint16_t NumberByFunctions(const TWindowsFacts& AFacts) {
    if (AFacts.HasOpenThread)
        return 11;
    if (AFacts.HasThreadPriorityBoost)
        return 16;
    if (AFacts.HasIsDebuggerPresent)
        return 7;
    if (AFacts.HasDiskFreeSpaceEx)
        return 5;
    if (AFacts.HasConnectNamedPipe)
        return 14;
    if (AFacts.HasBeep)
        return 3;
    throw Exception(u"Failed to determine the version of the OS!");
}

} // namespace

std::uint16_t detail::VersionNumber(const platform::TWindowsFacts& AFacts) {
    if (!AFacts.HasKernel)
        throw Exception(u"Failed to load Kernel32.dll!");
    if (!AFacts.HasVersion || AFacts.Major < 5)
        return NumberByFunctions(AFacts);
    if (AFacts.Major == 5)
        return NumberOf5(AFacts);
    if (AFacts.Major == 6)
        return NumberOf6(AFacts);
    return AFacts.IsWorkstation ? 621 : 620;
}

std::uint16_t QzGetWindowsVersion() {
    const std::optional<TWindowsFacts> Facts = platform::WindowsFacts();
    return Facts ? detail::VersionNumber(*Facts) : cElsewhere;
}

} // namespace qz
