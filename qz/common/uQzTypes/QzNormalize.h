// Normal forms of Unicode, and text without its accents.
//
//     QzNormalizeString(u"é", TNorm_Form::NormalizationC);   // one character for the letter and its accent
//     QzSimplifyString(u"Übergröße");                        // "Ubergroße"
//
// Both raise Exception where the system cannot normalise: "Failed to load normaliz.dll!" and "Failed to find
// the "NormalizeString" function!", on Windows alone. They may run on any number of threads.
#pragma once

#include <cstdint>

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

enum class TNorm_Form : std::uint8_t {
    NormalizationC = 1,  // composed
    NormalizationD = 2,  // decomposed
    NormalizationKC = 5, // composed, with compatible characters for special ones
    NormalizationKD = 6  // decomposed, the same
};
using enum TNorm_Form;

// The text in that form. In NormalizationD each unit above 127 that the system's 8-bit code page has, or has
// a best fit for, as one byte gives the character of that byte's number. Raises Exception, "Failed to
// normalize the given value", for an empty text, one with a lone surrogate, and an unknown form.
QZ_API WideString QzNormalizeString(const WideString& AValue, TNorm_Form AForm);

// Each unit as the first of its decomposition, so that letters lose their accents and the length stays.
// Surrogates stay as they are.
QZ_API WideString QzSimplifyString(const WideString& AValue);

} // namespace qz
