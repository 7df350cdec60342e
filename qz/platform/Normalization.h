// Unicode normalization, by ICU on Linux and by the system library on Windows.
//
//     if (PrepareNormalizer() == TNormalizer::Ready)
//         if (const TResult<std::u16string> Decomposed = NormalizeText(2, Text))
//             Use(*Decomposed);
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <qz/platform/Error.h>
#include <qz/platform/Export.h>

namespace qz::platform {

enum class TNormalizer : std::uint8_t { Ready, NoLibrary, NoFunction };

// Whether NormalizeText can work. The first successful call loads the library for the life of the process.
// Any thread.
QZ_API TNormalizer PrepareNormalizer();

// AText in a normal form: 1 for NFC, 2 for NFD, 5 for NFKC, 6 for NFKD. Fails for another form, for an empty
// text and for one with a lone surrogate. Call PrepareNormalizer first; it must give Ready. Any thread.
QZ_API TResult<std::u16string> NormalizeText(int AForm, std::u16string_view AText);

} // namespace qz::platform
