// QZ_API marks what the library exports.
//
//     class QZ_API TThing { ... };
//     QZ_API int Count();
//
// Everything is compiled with hidden visibility, so on ELF systems a class or function without the mark
// cannot be reached from outside the shared library. Templates and inline functions need no mark. A PE
// library exports all of its symbols when it is linked, so there the mark is empty. A class cannot carry both
// the mark and an attribute in brackets; a function can, the brackets first.
#pragma once

#ifdef __ELF__
#define QZ_API __attribute__((visibility("default")))
#else
#define QZ_API
#endif
