#pragma once

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

struct TItem {
    std::uint64_t Hash;
    UnicodeString Name;
};
inline TItem Item;
inline std::uint64_t Hash;

} // namespace qz
