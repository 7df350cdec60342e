// Text as the Linux system calls take it: bytes that are UTF-8 by custom, though nothing makes them so.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qz::platform::detail {

// UTF-8 to UTF-16. Each byte that is not part of valid UTF-8 gives the lone surrogate U+DC00 plus the byte.
std::u16string FromNative(std::string_view ABytes);

// The way back: U+DC80 to U+DCFF gives its byte. Any other lone surrogate gives the three bytes that UTF-8
// would use for it, so that no two texts give the same bytes unless they came from the same.
std::string ToNative(std::u16string_view AText);

// As ToNative, for a call that takes a text ended by NUL: nothing when AText holds one itself.
std::optional<std::string> ToNativeArgument(std::u16string_view AText);

} // namespace qz::platform::detail
