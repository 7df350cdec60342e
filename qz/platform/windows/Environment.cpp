#include <qz/platform/Environment.h>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

bool HasNul(std::u16string_view AText) {
    return AText.find(u'\0') != std::u16string_view::npos;
}

bool IsName(std::u16string_view AName) {
    return !AName.empty() && AName.find(u'=') == std::u16string_view::npos && !HasNul(AName);
}

} // namespace

std::optional<std::u16string> GetEnvironment(std::u16string_view AName) {
    if (!IsName(AName))
        return std::nullopt;
    const std::u16string Name(AName);
    std::u16string Value(128, u'\0');
    for (;;) {
        // An empty value has the length 0, as a failure has.
        SetLastError(ERROR_SUCCESS);
        const auto Size = static_cast<DWORD>(Value.size());
        const DWORD Length = GetEnvironmentVariableW(detail::Wide(Name), detail::Wide(Value.data()), Size);
        if (Length == 0 && GetLastError() != ERROR_SUCCESS)
            return std::nullopt;
        Value.resize(Length);
        if (Length < Size)
            return Value;
    }
}

bool SetEnvironment(std::u16string_view AName, std::optional<std::u16string_view> AValue) {
    if (!IsName(AName) || (AValue && HasNul(*AValue)))
        return false;
    const std::u16string Name(AName);
    if (AValue)
        return SetEnvironmentVariableW(detail::Wide(Name), detail::Wide(std::u16string(*AValue))) != 0;
    return SetEnvironmentVariableW(detail::Wide(Name), nullptr) != 0 ||
        GetLastError() == ERROR_ENVVAR_NOT_FOUND;
}

} // namespace qz::platform
