// What the examples of this layer use without declaring it.
#pragma once

#include "tests/header_examples/Names.h"
#include <iostream>

#include <qz/common/uQzClasses/TextParser.h>
#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/streams/Streams.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {

inline UnicodeString Name, Text, Host, Title, Query, Extension;
inline RawByteString Bytes;
inline TStringList Lines, Words, Fields;
inline TMemoryStream Stream, Source, Target, Memory;
inline TDateTime Born, Invoice, Received;
inline TObject* Settings;
inline Ref<TQzLogger> Log;
inline char Buffer[16];
inline int Count;
inline bool IsOpen;
extern TQzTextParser& Parser;
extern const Exception& Failure;
inline void Connect() {}
inline void Alarm(const UnicodeString&) {}
inline void Import() {}

} // namespace qz
