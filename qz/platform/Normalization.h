// The normal forms of Unicode. ICU makes them on Linux, the system's own library on Windows.
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

// Whether text can be normalised here; binds what that needs on the first call and keeps it. Any thread.
QZ_API TNormalizer PrepareNormalizer();

// AText in a normal form: 1 for C, 2 for D, 5 for KC, 6 for KD. Fails for another form, for an
// empty text and for one with a lone surrogate. PrepareNormalizer must have said Ready. Any thread.
QZ_API TResult<std::u16string> NormalizeText(int AForm, std::u16string_view AText);

} // namespace qz::platform
