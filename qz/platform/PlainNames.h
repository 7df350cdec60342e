// Undefines the macros of <windows.h> that collide with names of this library. For a source that includes
// both:
//
//     #include <windows.h>
//     #include <qz/platform/PlainNames.h>
//     #include <qz/common/uQzClasses.h>
//
// After it the system functions are called by their full names, such as RegisterClassW.
#pragma once

#undef GetObject
#undef RegisterClass
#undef DeleteFile
