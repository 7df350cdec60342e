#include <qz/platform/SystemVersion.h>

#include <windows.h>

#include <qz/platform/Module.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

std::u16string RegistryText(const char16_t* AName) {
    constexpr const char16_t* cKey = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
    char16_t Text[128];
    DWORD Size = sizeof Text;
    if (RegGetValueW(HKEY_LOCAL_MACHINE, detail::Wide(cKey), detail::Wide(AName), RRF_RT_REG_SZ, nullptr,
                     Text, &Size) != ERROR_SUCCESS)
        return {};
    return Text;
}

void FillVersion(TWindowsFacts& AFacts) {
    OSVERSIONINFOEXW Version{};
    Version.dwOSVersionInfoSize = sizeof Version;
    if (GetVersionExW(reinterpret_cast<OSVERSIONINFOW*>(&Version)) == 0)
        return;
    AFacts.HasVersion = true;
    AFacts.Major = Version.dwMajorVersion;
    AFacts.Minor = Version.dwMinorVersion;
    AFacts.ServicePack = Version.wServicePackMajor;
    AFacts.IsWorkstation = Version.wProductType == VER_NT_WORKSTATION;
    AFacts.CurrentBuild = RegistryText(u"CurrentBuild");
    AFacts.CurrentVersion = RegistryText(u"CurrentVersion");
    AFacts.Metric89 = GetSystemMetrics(SM_SERVERR2);
}

} // namespace

TSystemVersion SystemVersion() {
    OSVERSIONINFOW Version{};
    Version.dwOSVersionInfoSize = sizeof Version;
    // Unlike GetVersionExW it gives all programs the same answer. The toolchain's headers lack it.
    using TGetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
    const auto Get = reinterpret_cast<TGetVersion>(FindModuleFunction(u"ntdll.dll", "RtlGetVersion"));
    if (Get == nullptr || Get(&Version) != 0)
        return {};
    return {.Major = Version.dwMajorVersion,
            .Minor = Version.dwMinorVersion,
            .Build = Version.dwBuildNumber,
            .Pack = std::u16string(detail::FromWide(Version.szCSDVersion))};
}

std::optional<TWindowsFacts> WindowsFacts() {
    TWindowsFacts Facts;
    HMODULE Kernel = GetModuleHandleW(L"kernel32.dll");
    if (Kernel == nullptr)
        return Facts;
    const auto Has = [Kernel](const char* AName) { return GetProcAddress(Kernel, AName) != nullptr; };
    Facts.HasKernel = true;
    if (Has("GetVersionExA"))
        FillVersion(Facts);
    Facts.HasLargePages = Has("GetLargePageMinimum");
    Facts.HasOpenThread = Has("OpenThread");
    Facts.HasThreadPriorityBoost = Has("GetThreadPriorityBoost");
    Facts.HasIsDebuggerPresent = Has("IsDebuggerPresent");
    Facts.HasDiskFreeSpaceEx = Has("GetDiskFreeSpaceEx");
    Facts.HasConnectNamedPipe = Has("ConnectNamedPipe");
    Facts.HasBeep = Has("Beep");
    return Facts;
}

} // namespace qz::platform
