// The classes of the program that can be found by name.
//
//     RegisterClass(ClassOf<TServer>());
//     TClass Class = FindClass(u"tserver");          // names in either case of letters
//     TComponent* Server = TComponent::TVirtualCreate::Find(Class)(Owner);
//
// All functions may be called from any thread, also before main.
#pragma once

#include <qz/runtime/objects/Class.h>

namespace qz {

inline constexpr TTextConstant SClassNotFound = u"Class %s not found";
inline constexpr TTextConstant SDuplicateClass = u"A class named %s already exists";

// Makes a class known by its name. Registering it again changes nothing; another class of the same name
// raises EInvalidOperation.
QZ_API void RegisterClass(TClass AClass);
// Ignores a class that is not registered.
QZ_API void UnRegisterClass(TClass AClass);
// Null when no class of that name is registered.
QZ_API TClass GetClass(std::u16string_view AName);
// Raises EClassNotFound instead.
QZ_API TClass FindClass(std::u16string_view AName);

} // namespace qz
