// What happened in a test, in words: "made(a) freed(a) ".
#pragma once

#include <utility>

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

inline UnicodeString GTrace;

inline void Note(const char* AWhat, const UnicodeString& AName) {
    GTrace += UnicodeString(AWhat) + u'(' + AName + u") ";
}

// The trace so far; it begins anew.
inline UnicodeString TakeTrace() {
    return std::exchange(GTrace, UnicodeString());
}

} // namespace qz
