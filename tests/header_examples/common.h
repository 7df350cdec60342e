#pragma once

#include "tests/header_examples/Names.h"

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

inline UnicodeString Name, Text, Host;

} // namespace qz
