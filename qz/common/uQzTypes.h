// Unit uQzTypes: code pages and the conversions between them; the kinds of types; variants as plain values.
#pragma once

// QzCodePage and QzGetCodePage: code pages by number, by name
// and by the first bytes of a text.
#include <qz/common/uQzTypes/QzCodePage.h>
// TQzEncoding, every conversion of text
// between code pages.
#include <qz/common/uQzTypes/QzEncoding.h>
// QzNormalizeString and QzSimplifyString: normal forms
// and text without its accents.
#include <qz/common/uQzTypes/QzNormalize.h>
// The vocabularies of types: kinds, schema types, JSON types.
#include <qz/common/uQzTypes/TypeKinds.h>
// The conversions among them and the
// codes of variants.
#include <qz/common/uQzTypes/KindConversions.h>
// Texts of XML and JSON, arrays, and pointers to the value records, as
// types with names of their own.
#include <qz/common/uQzTypes/NamedTypes.h>
// TQzTypes: those conversions, and what the library knows of each type.
#include <qz/common/uQzTypes/registry/QzTypes.h>
// QzVarInt and its kin: variants read
// without conversion.
#include <qz/common/uQzTypes/VarStrict.h>
// QzVarToInt and its kin: variants converted,
// texts included.
#include <qz/common/uQzTypes/VarTolerant.h>
// QzVarIsEmpty, QzVarArrayCount,
// QzNullableBool.
#include <qz/common/uQzTypes/VarQueries.h>
// Booleans and floats as text.
#include <qz/common/uQzTypes/TextValues.h>
// Copies of texts as plain buffers.
#include <qz/common/uQzTypes/RawStrings.h>
// IsDesigning.
#include <qz/common/uQzTypes/Designing.h>
