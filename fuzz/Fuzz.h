// What the fuzz targets share.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

inline void Require(bool ACondition) {
    if (!ACondition)
        std::abort();
}

inline std::string_view TextOf(const std::uint8_t* AData, std::size_t ASize) {
    return {reinterpret_cast<const char*>(AData), ASize};
}
