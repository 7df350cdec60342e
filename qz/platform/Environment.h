// The environment variables of this process. Text is UTF-16; bytes of a Linux variable that aren't valid
// UTF-8 are carried as in file names (platform/Files.h).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

// The value, which may be empty; nothing when AName isn't set. Safe against SetEnvironment in other threads,
// but not against setenv and putenv called past it.
QZ_API std::optional<std::u16string> GetEnvironment(std::u16string_view AName);

// Sets, or without a value removes, a variable of this process and of the processes that it starts from now
// on. False when AName is empty or holds a "=", either text holds a NUL, or memory ran out. C code that reads
// the environment at the same time must be kept away by the caller.
QZ_API bool SetEnvironment(std::u16string_view AName, std::optional<std::u16string_view> AValue);

} // namespace qz::platform
