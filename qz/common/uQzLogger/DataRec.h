// Values of messages as text.
//
//     QzDataRecToString(&Value);      // "17"; for an object its published properties, a line each
#pragma once

#include <qz/common/uQzLogger/LogTypes.h>

namespace qz {

// The text of TValue::ToString, or the dump of an object that is not null: a line with its class, for a component also
// with its name, then a line for each published property that can be read and written, two spaces further in. Enumerations
// show their names. Objects that are TPersistent follow as dumps of their own; one that is being dumped already is left
// out. Texts of 16 bits, integers of 64, events and all other types are left out too. A property that raises gives a line
// that says so. Every line ends with CR LF. The value's own text may raise; AValue is not null.
QZ_API UnicodeString QzDataRecToString(PQzDataRec AValue);

} // namespace qz
