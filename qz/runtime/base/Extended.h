// Extended: the widest float of the library, 64 bits like double, but a type of its own for reflection.
#pragma once

namespace qz {

struct Extended {
    double Value = 0;

    constexpr Extended() noexcept = default;
    constexpr Extended(double AValue) noexcept : Value(AValue) {}
    constexpr operator double() const noexcept { return Value; }
};

static_assert(sizeof(Extended) == 8);

} // namespace qz
