// The ways in which text is converted, one for each kind of machine; Utf.h and UtfForms.h take the best one.
//
//     for (const detail::TUtfPath& Path : detail::UtfPaths())     // a test goes through all of them
//         EXPECT_TRUE(Path.IsValidUtf8("text"));
//
// Each function has the contract of its public namesake. Text shorter than a vector is converted by plain
// code.
#pragma once

#include <bit>
#include <cstddef>
#include <span>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::detail {

struct TUtfPath {
    const char* Name;
    std::size_t (*AsciiBytes)(std::string_view AText) noexcept;
    std::size_t (*AsciiUnits)(std::u16string_view AText) noexcept;
    std::size_t (*Latin1Units)(std::u16string_view AText) noexcept;
    void (*WidenBytes)(std::string_view AText, char16_t* ADest) noexcept;
    void (*NarrowUnits)(std::u16string_view AText, char* ADest) noexcept;
    void (*SwapUnits)(const void* ASource, std::size_t AUnits, void* ADest) noexcept;
    std::size_t (*Utf8ToUtf16Length)(std::string_view AText) noexcept;
    char16_t* (*Utf8ToUtf16)(std::string_view AText, char16_t* ADest) noexcept;
    bool (*IsValidUtf8)(std::string_view AText) noexcept;
    std::size_t (*Utf16ToUtf8Length)(std::u16string_view AText) noexcept;
    char* (*Utf16ToUtf8)(std::u16string_view AText, char* ADest) noexcept;
    bool (*IsValidUtf16)(std::u16string_view AText) noexcept;
    std::size_t (*Utf16ToUtf32Length)(std::u16string_view AText) noexcept;
    std::byte* (*Utf16ToUtf32)(std::u16string_view AText, std::endian AOrder, std::byte* ADest) noexcept;
    std::size_t (*Utf32ToUtf16Length)(std::span<const std::byte> ABytes, std::endian AOrder) noexcept;
    char16_t* (*Utf32ToUtf16)(std::span<const std::byte> ABytes, std::endian AOrder,
                              char16_t* ADest) noexcept;
    bool (*IsValidUtf32)(std::span<const std::byte> ABytes, std::endian AOrder) noexcept;
};

extern const TUtfPath cUtfPortablePath;
#ifdef __x86_64__
extern const TUtfPath cUtfSse4Path;
extern const TUtfPath cUtfAvx2Path;
#endif

// The paths that this machine can go, the best one last.
QZ_API std::span<const TUtfPath* const> UtfPaths() noexcept;

// The best path for this machine. May be called at any time, also during static initialisation.
const TUtfPath& BestUtfPath() noexcept;

} // namespace qz::detail
