// Writing by file handles. Plain types, so that other headers need not know those of the system.
#pragma once

#include <cstddef>
#include <span>

namespace qz::platform::detail {

// Writes all of ASource; ADone tells how much arrived. Leaves the last error on failure.
bool WriteAll(void* AFile, std::span<const std::byte> ASource, std::size_t& ADone) noexcept;

} // namespace qz::platform::detail
