// Which handles of this library may be open on one file at a time, kept by open-file-description locks.
#pragma once

#include <qz/platform/FileHandle.h>

namespace qz::platform::detail {

// Announces what the open file AFile does and denies, for as long as it is open. False when another handle is
// in the way; nothing is announced then. True for what is no regular file and where the file system has no
// locks.
bool ShareFile(int AFile, TFileAccess AAccess, TFileSharing ASharing);

// Whether another handle denies such access (Read or Write) to the open file AFile.
bool IsDenied(int AFile, TFileAccess AAccess);

} // namespace qz::platform::detail
