// Whether the code runs in a designer, where components are drawn rather than used.
//
//     QzSetDesignHost(u"formdesigner");     // at program start
//     if (!IsDesigning()) Connect();
//
#pragma once

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

// Whether the program file of this process has the name set by QzSetDesignHost, ignoring case and the folder,
// with or without the extension. Determined at the first call and cached until another name is set. Any
// thread.
QZ_API bool IsDesigning();

// Sets the name of the designer's program, without folder and extension. Empty, the default: there is none.
QZ_API void QzSetDesignHost(const UnicodeString& AName);

} // namespace qz
