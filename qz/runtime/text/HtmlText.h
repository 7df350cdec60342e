// Text with the special characters of HTML escaped, and back.
//
//     EscapeHtml(u"a < b & c");                 // "a &lt; b &amp; c"
//     UnescapeHtml(u"&eacute;&#233;&#xE9;");    // "ééé"
#pragma once

#include <qz/runtime/base/StringArg.h>

namespace qz {

// Writes & < > " as &amp; &lt; &gt; &quot; and any other character as it stands.
QZ_API UnicodeString EscapeHtml(const TStringArg& AText);

// Replaces character references: the 252 names of HTML 4.01 and &apos;, decimal &#233; and hexadecimal
// &#xE9;. Names are case-sensitive. A reference ends with a semicolon. The number 0, a surrogate and a number
// above 10FFFF give U+FFFD. What is no such reference stays as it stands; nothing is decoded twice.
QZ_API UnicodeString UnescapeHtml(const TStringArg& AText);

} // namespace qz
