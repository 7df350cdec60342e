// Names of files that any system takes.
//
//     QzCleanupFileName(u"a:b*c.txt");             // "abc.txt"
//     QzCleanupFileName(u"a:b*c.txt", {'.'});      // "abctxt"
#pragma once

#include "runtime/lists/Set.h"
#include "runtime/text/StringArg.h"

namespace qz {

// What stands in no clean name.
inline constexpr TCharSet cQzInvalidFileNameChars =
    TCharSet::Range('\0', '\x1F') + TCharSet{'"', '*', '/', ':', '<', '>', '?', '\\', '|'};

// The name, which is no path, without those characters and without the ones in AExtra. A character above 255 is in no
// set. Any thread.
QZ_API UnicodeString QzCleanupFileName(const TStringArg& AName, const TCharSet& AExtra = {});

} // namespace qz
