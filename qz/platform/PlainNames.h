// Takes back the macros of <windows.h> that bear names of this library, for a source that includes both:
//
//     #include <windows.h>
//     #include <qz/platform/PlainNames.h>
//     #include <qz/common/uQzClasses.h>
//
// Behind it the system's own functions of these names are called with their full names, such as RegisterClassW.
#pragma once

#undef GetObject
#undef RegisterClass
#undef DeleteFile
