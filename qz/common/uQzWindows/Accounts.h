// The user of this program, the computer and the rights.
//
//     UnicodeString Domain;
//     const UnicodeString User = QzGetUserName(Domain);
//     if (QzGetElevationLevel() == elFull) ...
//
// All functions query the current state and may run on any number of threads. Linux keeps the name of
// a user once it was found.
#pragma once

#include <qz/runtime/base/UnicodeString.h>
#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

enum class TQzElevationLevel : std::uint8_t { elDefault, elFull, elLimited };
using enum TQzElevationLevel;

// elFull with administrator rights, elLimited without, elDefault if the system cannot report it. On
// Linux root has them.
QZ_API TQzElevationLevel QzGetElevationLevel() noexcept;

// The host name, on Windows the NetBIOS name; empty if the system reports none.
QZ_API UnicodeString QzGetComputerName();

// The user as whom the calling thread acts. Linux gives the number of one whose name no database of users
// tells. Empty if the system reports none.
QZ_API UnicodeString QzGetUserName();
// The account of the process, and where it belongs: the computer's name for a local one. Both are empty if
// the system reports none.
QZ_API UnicodeString QzGetUserName(UnicodeString& ADomain);

// The system's number of the calling thread, never 0.
QZ_API std::uint32_t QzGetCurrentThreadId() noexcept;

} // namespace qz

QZ_TYPE_INFO(qz::TQzElevationLevel);
