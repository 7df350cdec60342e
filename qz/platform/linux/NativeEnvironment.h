// The environment as bytes, for the sources of this layer.
#pragma once

#include <optional>
#include <string>

namespace qz::platform::detail {

// The bytes of a variable, nothing when it is not set. Under the same lock as SetEnvironment.
std::optional<std::string> NativeEnvironment(const char* AName);

} // namespace qz::platform::detail
