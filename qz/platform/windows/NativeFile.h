// Writing by file handles. Plain types, so that other headers need not know those of the system.
#pragma once

#include <cstddef>
#include <span>

namespace qz::platform::detail {

// Writes all of ASource; ADone receives the number of bytes written. Leaves the last error on failure.
bool WriteAll(void* AFile, std::span<const std::byte> ASource, std::size_t& ADone) noexcept;

} // namespace qz::platform::detail
