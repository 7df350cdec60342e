// Paths as the system's file functions take them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qz::platform::detail {

// APath, made absolute and given the prefix that lifts the limit on its length where it would be longer than
// 248 units. Nothing for a path with a NUL in it.
std::optional<std::u16string> SystemPath(std::u16string_view APath);

} // namespace qz::platform::detail
