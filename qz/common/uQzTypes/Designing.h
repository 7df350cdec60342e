// Whether the code runs in a designer, where components are drawn rather than used.
//
//     QzSetDesignHost(u"formdesigner");     // at program start, told by what knows the designer
//     if (!IsDesigning()) Connect();
//
#pragma once

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

// Whether the file of the process's program bears the name that QzSetDesignHost told, in any case of letters and whatever
// its folder, with its extension or without. Found out at the first question and remembered until another name is told. Any thread.
QZ_API bool IsDesigning();

// Tells the name of the designer's program, without folder and extension. Empty, as it is at first: there is none.
QZ_API void QzSetDesignHost(const UnicodeString& AName);

} // namespace qz
