// Format: text built from a pattern and arguments.
//
//     Format("%s took %d ms", {Name, 17});          // "import took 17 ms"
//     Format("%-10s|%8.2f|%.4x", {"a", 3.14159, 255});
//     Format("%1:s %0:s", {"second", "first"});     // arguments by index
//
// A place in the pattern is  % [index ":"] ["-"] [width] ["." precision] type , where width and precision are
// numbers or "*", taken from the arguments. "%%" is one per cent sign. Types, in either case of letter:
//
//     d u x   an integer, signed, unsigned, hexadecimal in capitals; precision is the least number of digits
//     s       any text, character, pointer to text, object's or class's name; precision is the most characters
//     p       a pointer in 16 hexadecimal digits
//     e f g n m   a float: scientific, fixed, general, fixed with thousand separators, money
//
// A pattern or an argument that does not fit raises EConvertError whose text quotes the pattern. All
// functions are pure and may run on any number of threads.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/base/VarRec.h>
#include <qz/runtime/text/FormatSettings.h>

namespace qz {

// By the settings of DefaultFormatSettings().
QZ_API UnicodeString Format(const TStringArg& APattern, TVarRecs AArgs);
QZ_API UnicodeString Format(const TStringArg& APattern, TVarRecs AArgs, const TFormatSettings& ASettings);

// Raises what Format would raise for the pattern and the arguments, without building the text. Narrow
// patterns are UTF-8.
QZ_API void CheckFormat(std::u16string_view APattern, TVarRecs AArgs);
QZ_API void CheckFormat(std::string_view APattern, TVarRecs AArgs);

} // namespace qz
