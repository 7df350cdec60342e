// The environment variables of this process.
//
//     const std::u16string Home = GetEnvironment(u"HOME").value_or(u"/");
//
// Text is UTF-16. Bytes of a Linux variable that are not valid UTF-8 are carried as in file names (Files.h).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

// The value, which may be empty; nothing when AName is not set. Other threads may call SetEnvironment
// meanwhile, but not setenv or putenv.
QZ_API std::optional<std::u16string> GetEnvironment(std::u16string_view AName);

// Sets a variable for this process and for processes started later; removes it when AValue is nothing. False
// if AName is empty or contains "=", if either text contains a NUL, or if memory runs out. The caller must
// prevent C code from reading the environment at the same time.
QZ_API bool SetEnvironment(std::u16string_view AName, std::optional<std::u16string_view> AValue);

} // namespace qz::platform
