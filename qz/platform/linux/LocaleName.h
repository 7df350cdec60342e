// The user's locale as the environment names it, without a look at the process's own locale.
#pragma once

#include <string>
#include <string_view>

namespace qz::platform::detail {

// The value of LC_ALL, else of ACategory ("LC_TIME"), else of LANG, else "C". An empty variable counts as not
// set.
std::string PosixLocaleName(const char* ACategory);

// The name under which ICU knows a POSIX locale: "de_DE.UTF-8@euro" gives "de_DE", "sr_RS@latin" gives
// "sr_Latn_RS". Empty for C, for POSIX, and for a language that ICU knows nothing about.
std::string IcuLocaleName(std::string_view APosixName);

} // namespace qz::platform::detail
