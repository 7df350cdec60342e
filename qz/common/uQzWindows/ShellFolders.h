// Where the system keeps documents, settings and other things of a kind.
//
//     const UnicodeString Folder = QzGetShellFolder(46);      // the documents that all users share
#pragma once

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

// The folder with a number of the Windows shell (CSIDL); platform/ShellFolders.h lists them for Linux. A
// folder that is missing is made. Raises Exception, "Invalid pidl", for a number without a folder and for one
// that can neither be found nor made. Any thread.
QZ_API UnicodeString QzGetShellFolder(std::int32_t AFolder);

// The user's own documents, as QzGetShellFolder(5).
QZ_API UnicodeString QzGetMyDocumentsFolder();

} // namespace qz
