// The program file, and loaded libraries: functions by name, and staying loaded. Any thread.
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

// Keeps the library that holds the address loaded until the program ends. True also for an address of the
// program itself or outside of all libraries, which needs nothing; false if the library is being unloaded.
// The caller holds no lock that the start or end code of a library takes.
QZ_API bool PinModule(const void* AAddress);

} // namespace qz::platform
