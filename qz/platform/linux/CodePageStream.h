// Conversion by ICU's streaming converters, for the pages that keep a state or take more than two bytes for a
// character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include <qz/platform/CodePages.h>

namespace qz::platform::detail {

// As the functions of platform/CodePages.h, for a page other than 0.
TResult<std::size_t> StreamToUtf16(std::uint32_t APage, std::span<const std::byte> ASource,
                                   std::span<char16_t> ATarget, TDecoding ADecoding);
TResult<std::size_t> StreamFromUtf16(std::uint32_t APage, std::u16string_view ASource,
                                     std::span<char> ATarget);
std::uint32_t StreamMaxCharSize(std::uint32_t APage);

} // namespace qz::platform::detail
