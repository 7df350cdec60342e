#include <qz/platform/SystemVersion.h>

#include <charconv>
#include <string_view>

#include <sys/utsname.h>

#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

namespace {

// The number at the start of the text, 0 without one, and the dot behind it.
std::uint32_t TakeNumber(std::string_view& AText) {
    std::uint32_t Number = 0;
    const auto [Next, Failure] = std::from_chars(AText.data(), AText.data() + AText.size(), Number);
    AText.remove_prefix(static_cast<std::size_t>(Next - AText.data()));
    if (Failure == std::errc() && AText.starts_with('.'))
        AText.remove_prefix(1);
    return Number;
}

} // namespace

TSystemVersion SystemVersion() {
    utsname Name;
    if (uname(&Name) != 0)
        return {};
    std::string_view Release = Name.release;
    TSystemVersion Result;
    Result.Major = TakeNumber(Release);
    Result.Minor = TakeNumber(Release);
    Result.Build = TakeNumber(Release);
    if (Release.starts_with('-') || Release.starts_with('+'))
        Release.remove_prefix(1);
    Result.Pack = detail::FromNative(Release);
    return Result;
}

std::optional<TWindowsFacts> WindowsFacts() {
    return std::nullopt;
}

} // namespace qz::platform
