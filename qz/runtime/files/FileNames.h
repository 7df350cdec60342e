// The parts of a file name. Text functions only; they do not access the file system.
//
//     ExtractFileName("/var/log/app.log");               // app.log
//     ExtractFileExt("/var/log/app.log");                // .log
//     ChangeFileExt("/var/log/app.log", ".xml");         // /var/log/app.xml
//
// Directories end at the system's separators: "/" on Linux; "\", "/" and the ":" of a drive on Windows. An
// extension begins with the last point of the name, which may be its first character. Any thread.
#pragma once

#include <qz/runtime/base/StringArg.h>

namespace qz {

// With the separator at its end; empty for a name without directory.
QZ_API UnicodeString ExtractFilePath(const TStringArg& AFileName);
QZ_API UnicodeString ExtractFileName(const TStringArg& AFileName);
// With its point; empty for a name without one.
QZ_API UnicodeString ExtractFileExt(const TStringArg& AFileName);
// Replaces the extension by AExtension, or appends it. AExtension is empty or includes its dot.
QZ_API UnicodeString ChangeFileExt(const TStringArg& AFileName, const TStringArg& AExtension);
// The name with a separator at its end; an empty one gets one too.
QZ_API UnicodeString IncludeTrailingPathDelimiter(const TStringArg& AFileName);

// Whether both names are equal; ignores case on Windows.
QZ_API bool SameFileName(const TStringArg& ALeft, const TStringArg& ARight);

} // namespace qz
