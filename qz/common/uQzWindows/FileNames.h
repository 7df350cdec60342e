// Names of files without the characters that some system refuses.
//
//     QzCleanupFileName(u"a:b*c.txt");             // "abc.txt"
//     QzCleanupFileName(u"a:b*c.txt", {'.'});      // "abctxt"
#pragma once

#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

// What stands in no clean name.
inline constexpr TCharSet cQzInvalidFileNameChars =
    TCharSet::Range('\0', '\x1F') + TCharSet{'"', '*', '/', ':', '<', '>', '?', '\\', '|'};

// The name, which is no path, without those characters and without the ones in AExtra. A character above 255
// is in no set. Nothing else is looked at: an empty name, "..", "nul.txt" and a point at the end stay, which
// systems read in their own way. Any thread.
QZ_API UnicodeString QzCleanupFileName(const TStringArg& AName, const TCharSet& AExtra = {});

} // namespace qz
