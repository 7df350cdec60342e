// The folders for documents, settings and the like, by the numbers of the Windows shell (CSIDL).
//
//     if (const std::optional<std::u16string> Documents = ShellFolder(5))
//         Open(*Documents);
//
// Linux maps them to the XDG base directories and the XDG user directories (user-dirs.dirs in
// $XDG_CONFIG_HOME, else the default names in the home). The home is $HOME, or the one in the user database.
// "Shared" is the first of these that the process may write: the first entry of $STATE_DIRECTORY, which a
// service receives; /var/lib; $XDG_STATE_HOME.
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
//     22 23 47     /usr/local/share/applications, or as 2 if that is not writable
//     24 30        /etc/xdg/autostart, or as 7 if that is not writable
//     20 36 37 41 38 42 43 44 56   /usr/share/fonts, /, /usr/lib twice, /opt twice, /opt twice, /usr/share
#pragma once

#include <optional>
#include <string>

#include <qz/platform/Export.h>

namespace qz::platform {

// The full path, without a trailing separator. Creates a missing folder; on Linux only its owner has access
// unless it is a shared one. The home and system folders such as /usr/share/fonts are never created, nor
// is a folder of a home that does not exist. Nothing
// for a number without a folder in the file system, and if the folder is missing and cannot be created. On
// Linux a child of fork() may call it while HOME is set. On Windows the path may be empty if the shell
// provides no allocator. Any thread.
QZ_API std::optional<std::u16string> ShellFolder(int ANumber);

} // namespace qz::platform
