// This layer's 16-bit text as the system's functions take it. Both kinds of unit have the same size and
// encoding here.
#pragma once

#include <string>
#include <string_view>

namespace qz::platform::detail {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* Wide(const char16_t* AText) noexcept {
    return reinterpret_cast<const wchar_t*>(AText);
}

inline wchar_t* Wide(char16_t* AText) noexcept {
    return reinterpret_cast<wchar_t*>(AText);
}

inline const wchar_t* Wide(const std::u16string& AText) noexcept {
    return Wide(AText.c_str());
}

inline std::u16string_view FromWide(const wchar_t* AText) noexcept {
    return reinterpret_cast<const char16_t*>(AText);
}

} // namespace qz::platform::detail
