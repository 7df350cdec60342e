// The program file, and functions of loaded libraries by name. Any thread.
//
//     using TVersion = int (*)();
//     void* Address = FindModuleFunction(u"libfoo.so.2", "foo_version");
//     if (Address != nullptr)
//         reinterpret_cast<TVersion>(Address)();
#pragma once

#include <string>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

// The full path of the running program; empty if the system reports none.
QZ_API std::u16string ExecutablePath();

// The address of AName in the loaded library AModule; null if either is missing. An empty AModule is the
// program itself, on Linux with everything loaded with it.
QZ_API void* FindModuleFunction(std::u16string_view AModule, const char* AName);

} // namespace qz::platform
