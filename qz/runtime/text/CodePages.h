// Text between UTF-16 and any code page by its number: what the 8-bit strings, TEncoding and the units above convert
// by.
//
//     UnicodeString Wide = CodePageToUnicode(1252, Bytes);
//     std::size_t Length =
//         RequireConverted(65001, EncodeCodePage(65001, u"Zoë", Buffer, platform::TComposing::Plain));
//
// Code page 0 is the system's, 1200 and 1201 are UTF-16 (lowest, highest byte first), 12000 and 12001 UTF-32 in the same
// orders, 65001 is UTF-8. These, Latin-1 and ASCII are converted here, alike on all systems; every other page is
// converted by the system or ICU (docs/code-pages.md). What is ill-formed in UTF-8, UTF-16 or UTF-32 gives U+FFFD.
// All functions may run on any number of threads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include <qz/platform/CodePages.h>
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

inline constexpr std::uint16_t cSystemCodePage = 0; // what the system says
inline constexpr std::uint16_t cUtf16CodePage = 1200;
inline constexpr std::uint16_t cUtf16SwappedCodePage = 1201;
inline constexpr std::uint16_t cUtf32CodePage = 12000;
inline constexpr std::uint16_t cUtf32SwappedCodePage = 12001;
inline constexpr std::uint16_t cAsciiCodePage = 20127;
inline constexpr std::uint16_t cLatin1CodePage = 28591;
inline constexpr std::uint16_t cUtf8CodePage = 65001;
inline constexpr std::uint16_t cNoCodePage = 0xFFFF; // bytes without a known page

// The code page that code page 0 stands for: what the system's locale says, UTF-8 in the C locale on Linux, unless
// the application chose another.
QZ_API std::uint16_t DefaultSystemCodePage() noexcept;
// The page that is meant: the system's for code page 0 and for bytes without a known page, else ACodePage itself.
QZ_API std::uint16_t RealCodePage(std::uint16_t ACodePage) noexcept;
// Chooses another for the whole process; for the start of a program, before the first conversion. Raises EOSError when
// the system cannot convert the page, and EArgumentException for a page of 16 or 32 bits.
QZ_API void SetDefaultSystemCodePage(std::uint16_t ACodePage);

// Bytes to UTF-16. Gives the number of units written to ATarget, or with an empty ATarget the number it needs. No
// source gives 0. On failure ATarget holds anything. Strict refuses bytes that mean nothing in the page. UTF-8 is always
// lenient, and UTF-16 takes its units as they are.
QZ_API platform::TResult<std::size_t> DecodeCodePage(std::uint16_t ACodePage,
                                                     std::span<const std::byte> ASource,
                                                     std::span<char16_t> ATarget,
                                                     platform::TDecoding ADecoding);
// UTF-16 to bytes, in the same way.
QZ_API platform::TResult<std::size_t> EncodeCodePage(std::uint16_t ACodePage, std::u16string_view ASource,
                                                     std::span<char> ATarget,
                                                     platform::TComposing AComposing);

// The mark that opens a text in the page: of UTF-8, UTF-16 and UTF-32; empty for any other.
QZ_API std::string_view ByteOrderMark(std::uint16_t ACodePage) noexcept;
// The page whose mark ABytes begin with, 0 without one.
QZ_API std::uint16_t CodePageOfMark(std::string_view ABytes) noexcept;

// The whole text, leniently. Raises EOSError naming the page when the system cannot convert it.
QZ_API UnicodeString CodePageToUnicode(std::uint16_t ACodePage, std::span<const std::byte> ASource);

// Raises EOSError for a failed conversion: the system's reason and "Code page: 12345".
[[noreturn]] QZ_API void RaiseCodePageError(std::uint16_t ACodePage, platform::TError AError);
// The count of a conversion; raises as RaiseCodePageError where it failed.
inline std::size_t RequireConverted(std::uint16_t ACodePage,
                                    const platform::TResult<std::size_t>& AConverted) {
    if (!AConverted) [[unlikely]]
        RaiseCodePageError(ACodePage, AConverted.Error());
    return *AConverted;
}

} // namespace qz
