// Opening, reading and writing by file descriptors, whole and not ended by signals. Each leaves errno on failure.
#pragma once

#include <cstddef>
#include <span>

#include <sys/types.h>

namespace qz::platform::detail {

// A descriptor that child processes do not inherit; -1 on failure.
int OpenNative(const char* APath, int AFlags, mode_t AMode = 0666) noexcept;

// The number of bytes that one read gives, 0 at the end, -1 on failure.
ssize_t ReadSome(int AFile, std::span<std::byte> ATarget) noexcept;

// Writes all of ASource; ADone tells how much arrived.
bool WriteAll(int AFile, std::span<const std::byte> ASource, std::size_t& ADone) noexcept;

} // namespace qz::platform::detail
