#include <qz/platform/Environment.h>

#include <cstdlib>
#include <mutex>

#include <qz/platform/Fork.h>
#include <qz/platform/linux/NativeEnvironment.h>
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

namespace {

// Has no destructor that does anything: threads may ask while the program ends.
constinit std::mutex GEnvironmentLock;

[[maybe_unused]] const bool GIsWatched =
    HoldAroundFork(TForkRank::Environment, [] { return &GEnvironmentLock; });

std::optional<std::string> NativeName(std::u16string_view AName) {
    if (AName.empty() || AName.find(u'=') != std::u16string_view::npos)
        return std::nullopt;
    return detail::ToNativeArgument(AName);
}

} // namespace

namespace detail {

std::optional<std::string> NativeEnvironment(const char* AName) {
    const std::lock_guard Guard(GEnvironmentLock);
    const char* Value = std::getenv(AName);
    if (Value == nullptr)
        return std::nullopt;
    return Value;
}

} // namespace detail

std::optional<std::u16string> GetEnvironment(std::u16string_view AName) {
    const std::optional<std::string> Name = NativeName(AName);
    if (!Name)
        return std::nullopt;
    const std::optional<std::string> Value = detail::NativeEnvironment(Name->c_str());
    if (!Value)
        return std::nullopt;
    return detail::FromNative(*Value);
}

bool SetEnvironment(std::u16string_view AName, std::optional<std::u16string_view> AValue) {
    const std::optional<std::string> Name = NativeName(AName);
    if (!Name)
        return false;
    if (!AValue) {
        const std::lock_guard Guard(GEnvironmentLock);
        return unsetenv(Name->c_str()) == 0;
    }
    const std::optional<std::string> Value = detail::ToNativeArgument(*AValue);
    if (!Value)
        return false;
    const std::lock_guard Guard(GEnvironmentLock);
    return setenv(Name->c_str(), Value->c_str(), 1) == 0;
}

} // namespace qz::platform
