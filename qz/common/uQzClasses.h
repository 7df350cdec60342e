// Unit uQzClasses: objects with a destruction policy, and the building blocks of the other units.
#pragma once

// TQzObject, an object for direct use or through interfaces,
// and its destruction policy.
#include <qz/common/uQzClasses/QzObject.h>
// TQzObjectEx, an object that notifies others of its destruction
// and is notified of theirs.
#include <qz/common/uQzClasses/QzObjectEx.h>
// TQzFreeNotifies, the same for any object,
// on any number of threads.
#include <qz/common/uQzClasses/QzFreeNotifies.h>
// TQzObjectAdapter, which carries any object
// through an interface variable.
#include <qz/common/uQzClasses/QzObjectAdapter.h>
// TQzComponent, a component whose life may be that of the references to it,
// and whose properties can follow others.
#include <qz/common/uQzClasses/QzComponent.h>
// TQzMemoryStream, a stream over one block of memory
// that it owns or borrows.
#include <qz/common/uQzClasses/QzMemoryStream.h>
// QzStreamToReadBuf and QzStreamToWriteBuf,
// streams as blocks of memory.
#include <qz/common/uQzClasses/StreamBuf.h>
// TQzBytes, an array of bytes as a value
// with operators and text forms.
#include <qz/common/uQzClasses/QzBytes.h>
// TQzMemoryBuffer and IQzMemoryBuffer,
// blocks of memory that know their size.
#include <qz/common/uQzClasses/MemoryBuffer.h>
// QzBufToHex, QzStringToBuf and the like,
// bytes between memory, arrays, streams and text.
#include <qz/common/uQzClasses/BufferText.h>
// QzIncPtr, QzPtrDiff and the like,
// pointers as numbers.
#include <qz/common/uQzClasses/Pointers.h>
// TQzStringStream, a stream of text
// in one code page.
#include <qz/common/uQzClasses/QzStringStream.h>
// TQzUTF8StreamAdapter, a stream of UTF-8
// shown as 16-bit text.
#include <qz/common/uQzClasses/Utf8StreamAdapter.h>
// QzStreamToWideString, QzUTF8Decode and the like,
// whole streams as text.
#include <qz/common/uQzClasses/StreamText.h>
// TQzTextParser, the scanner for text
// of any 8-bit code page, UTF-16 and UTF-8.
#include <qz/common/uQzClasses/TextParser.h>
// cQzSpace, cQzComma and the like,
// the characters that parsers meet, by name.
#include <qz/common/uQzClasses/Characters.h>
// TQzFileStream, a file as a stream,
// to which texts are written as they stand.
#include <qz/common/uQzClasses/QzFileStream.h>
// TQzStringList, a string list
// that takes the pieces of a text.
#include <qz/common/uQzClasses/QzStringList.h>
// TQzKeyDescStringList, keys paired with descriptions,
// for lists to choose from.
#include <qz/common/uQzClasses/QzKeyDescStringList.h>
// TQzObjectList, a list of objects
// that holds references to those that count them.
#include <qz/common/uQzClasses/QzObjectList.h>
// TQzMemoList, texts of many lines,
// each under a code of its own.
#include <qz/common/uQzClasses/QzMemoList.h>
// TQzDN, a distinguished name,
// as in the subject of a certificate.
#include <qz/common/uQzClasses/DistinguishedName.h>
