// Conversion by the tables of a page.
#pragma once

#include <qz/platform/CodePages.h>
#include <qz/platform/linux/CodePageTables.h>

namespace qz::platform::detail {

// As the functions of platform/CodePages.h.
TResult<std::size_t> TablesToUtf16(const TCodePage& APage, std::span<const std::byte> ASource,
                                   std::span<char16_t> ATarget, TDecoding ADecoding) noexcept;
TResult<std::size_t> TablesFromUtf16(const TCodePage& APage, std::u16string_view ASource,
                                     std::span<char> ATarget, TComposing AComposing) noexcept;

} // namespace qz::platform::detail
