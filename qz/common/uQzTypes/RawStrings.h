// Copies of texts as plain zero-terminated buffers, for callers that need one of their own.
//
//     char16_t* Buffer = QzStrNewW(Text);
//     ...
//     QzStrDispose(Buffer);
//
// The caller owns a buffer and frees it by QzStrDispose, on any thread. A C++ literal, such as "x", is taken
// as 16 bits.
#pragma once

#include <qz/runtime/text/AnsiString.h>

namespace qz {

// 8 bits: the bytes of the text up to the first terminator, also of an empty text; 16-bit text is converted
// to the system's code page, and what that lacks is its best fit or "?".
QZ_API char* QzStrNewA(const AnsiString& AText);
QZ_API char* QzStrNewA(const WideString& AText);
// 16 bits: the whole text, null for an empty one.
QZ_API char16_t* QzStrNewW(const WideString& AText);
QZ_API char16_t* QzStrNewW(const AnsiString& AText);
// In the width of the text.
inline char* QzStrNew(const AnsiString& AText) {
    return QzStrNewA(AText);
}
inline char16_t* QzStrNew(const WideString& AText) {
    return QzStrNewW(AText);
}

// Ends a buffer; null is none.
QZ_API void QzStrDispose(char* AText) noexcept;
QZ_API void QzStrDispose(char16_t* AText) noexcept;

} // namespace qz
