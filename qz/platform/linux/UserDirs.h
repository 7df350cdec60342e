// The directories of the XDG conventions: the base ones, and those that the user chose.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qz::platform::detail {

// A path without separators at its end, unless it is the root.
std::string WithoutSlash(std::string APath);

// A name below a folder, which may be the root itself; nothing below none.
std::string Below(std::string AFolder, std::string_view AName);

// The user's home: $HOME, or the one in the user database; empty if neither is an absolute path.
std::string HomeDirectory();

// The value of a variable such as XDG_DATA_HOME, or ADefault below the home. A value that is no whole path
// counts as none.
std::string BaseDirectory(const char* AVariable, std::string_view ADefault);

// The path of a directory, such as "MUSIC", in the text of a user-dirs.dirs file. Lines are
// XDG_MUSIC_DIR="$HOME/Music" or XDG_MUSIC_DIR="/srv/music", where a backslash takes the next character as it
// stands; other lines count for nothing, and the last good one counts. Nothing when there is none.
std::optional<std::string> ParseUserDirectory(std::string_view AText, std::string_view AKey,
                                              const std::string& AHome);

// The user's directory by its key; where he chose none, the home and ADefault.
std::string UserDirectory(std::string_view AKey, std::string_view ADefault);

} // namespace qz::platform::detail
