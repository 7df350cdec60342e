// Unit uQzTypes: the vocabulary of code pages and the conversions between them.
#pragma once

// QzCodePage and QzGetCodePage: code pages by number, by name
// and by the first bytes of a text.
#include "common/uQzTypes/QzCodePage.h"
// TQzEncoding, every conversion of text
// between code pages.
#include "common/uQzTypes/QzEncoding.h"
// QzNormalizeString and QzSimplifyString: normal forms
// and text without its accents.
#include "common/uQzTypes/QzNormalize.h"
