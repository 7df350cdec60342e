#pragma once

#include "tests/header_examples/Names.h"

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

inline UnicodeString Name, Text;
template <class... T> void Log(const T&...) {}

} // namespace qz
