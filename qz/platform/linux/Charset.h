// Code page numbers of the character sets that C libraries name.
#pragma once

#include <cstdint>
#include <string_view>

namespace qz::platform::detail {

// The code page of a locale's character set ("ISO-8859-15", "eucJP"), letter case and punctuation ignored.
// 65001 for UTF-8, for the C locale's ASCII and for a set that has no number.
std::uint32_t CodePageOfCharset(std::string_view AName);

} // namespace qz::platform::detail
