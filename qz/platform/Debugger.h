// Questions about the desktop and the debugger around the process. Any thread.
#pragma once

#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

// Whether a debugger is attached to this process. False where the system has no way to tell.
QZ_API bool IsDebuggerPresent() noexcept;

// Whether a top-level window with this class name and this title exists, letter case ignored. An empty text
// stands for any; a text with a NUL in it matches nothing. Always false on Linux, which has no such desktop
// to ask.
QZ_API bool HasTopLevelWindow(std::u16string_view AClass, std::u16string_view ATitle);

} // namespace qz::platform
