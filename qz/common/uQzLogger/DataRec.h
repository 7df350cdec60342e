// QzDataRecToString: the value of a message as text.
//
//     QzDataRecToString(&Value);      // "17"; for an object a line for each published property
#pragma once

#include <qz/common/uQzLogger/LogTypes.h>
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

// The text of TValue::ToString. For an object that is not null it is a dump: a line with its class, for a
// component also with its name, then a line for each published property that can be read and written,
// indented by two spaces. Enumerations show their names. A TPersistent is dumped in its place, unless it is
// being dumped already. Left out are 16-bit texts, 64-bit integers, events and all other types. A property
// that raises gives a line that says so. Every line ends with CR LF. Raises what the value's own text raises;
// AValue is not null.
QZ_API UnicodeString QzDataRecToString(PQzDataRec AValue);

} // namespace qz
