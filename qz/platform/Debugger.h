// Whether a debugger is attached, and whether a window exists on the desktop. Any thread.
//
//     if (IsDebuggerPresent())
//         ShowDetails();
#pragma once

#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

// Whether a debugger is attached to this process. False if the system cannot report it.
QZ_API bool IsDebuggerPresent() noexcept;

// Whether a top-level window with this class name and title exists, ignoring case. An empty text matches any;
// a text that contains a NUL matches none. Always false on Linux.
QZ_API bool HasTopLevelWindow(std::u16string_view AClass, std::u16string_view ATitle);

} // namespace qz::platform
