// WordBool: a truth value of 16 bits, as records of other systems hold it.
//
//     WordBool IsOpen = true;      // stored as -1
//     if (IsOpen) ...              // any number but 0 is true
#pragma once

#include <concepts>

#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

struct WordBool {
    std::int16_t Value = 0;

    constexpr WordBool() noexcept = default;
    constexpr WordBool(std::same_as<bool> auto AValue) noexcept : Value(AValue ? -1 : 0) {}
    constexpr operator bool() const noexcept { return Value != 0; }
};

static_assert(sizeof(WordBool) == 2);

} // namespace qz

QZ_TYPE_INFO(qz::WordBool);
