// QZ_API marks what the library exports.
//
//     class QZ_API TThing { ... };
//     QZ_API int Count();
//
// The library is compiled with hidden visibility: on ELF systems a class or function without the mark is not
// visible outside the shared library. Templates and inline functions need no mark. A DLL exports all symbols
// when it is linked, so the mark is empty on Windows. A class cannot have both the mark and an attribute in
// brackets; in a function the brackets come first.
#pragma once

#ifdef __ELF__
#define QZ_API __attribute__((visibility("default")))
#else
#define QZ_API
#endif
