// A list of text as one text, each line with a bar behind it.
#pragma once

#include <qz/runtime/lists/Strings.h>

namespace qz {

inline UnicodeString Lines(const TStrings& AList) {
    UnicodeString Result;
    for (const UnicodeString& Each : AList)
        Result += Each + u'|';
    return Result;
}

} // namespace qz
