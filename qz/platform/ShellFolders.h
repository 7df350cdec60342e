// The folders in which a system keeps things of a kind, by the numbers that the Windows shell has for them (CSIDL).
//
//     if (const std::optional<std::u16string> Documents = ShellFolder(5))
//         Open(*Documents);
//
// Linux has the folders of the XDG conventions: those that the user chose for documents, pictures and so on (the file
// user-dirs.dirs below $XDG_CONFIG_HOME, else the customary names in the home), and the base directories. HOME is the
// home, without it the one in the database of users. "Shared" is the first of these places that the process may write:
// the first of $STATE_DIRECTORY, which a service is given, /var/lib, and $XDG_STATE_HOME.
//
//      0 16  desktop                         5 12  documents                    13  music
//     14     videos                          21    templates                    39  pictures
//     40     the home                        26    $XDG_CONFIG_HOME             28  $XDG_DATA_HOME
//     32     $XDG_CACHE_HOME                 34    $XDG_STATE_HOME              33  $XDG_STATE_HOME/cookies
//      2 11 48     $XDG_DATA_HOME/applications     7 29  $XDG_CONFIG_HOME/autostart
//      6 8 9       $XDG_DATA_HOME/favorites, /recent, /sendto
//     19 27        $XDG_DATA_HOME/nethood, /printhood
//     59           $XDG_DATA_HOME/burn
//     35 46        shared                         25 31 45     shared/Desktop, /Favorites, /Templates
//     53 54 55     shared/Music, /Pictures, /Videos
//     22 23 47     /usr/local/share/applications, or as 2 where the process may not write it
//     24 30        /etc/xdg/autostart, or as 7 where the process may not write it
//     20 36 37 41 38 42 43 44 56   /usr/share/fonts, /, /usr/lib twice, /opt twice, /opt twice, /usr/share
#pragma once

#include <optional>
#include <string>

#include <qz/platform/Export.h>

namespace qz::platform {

// The whole path, without a separator at its end. The folder is made where it is missing, on Linux with access for its
// owner only unless it lies in a place that is shared; the home is not made, and those that the system brings along
// (/usr/share/fonts and so on) are told as they are. Nothing for a number that stands for no folder of files, and when the
// folder is neither there nor can be made. A child of fork() may call it on Linux as long as HOME is set. On Windows
// an empty path may come out where the shell gives no allocator. Any thread.
QZ_API std::optional<std::u16string> ShellFolder(int ANumber);

} // namespace qz::platform
