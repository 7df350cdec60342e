// What a program of the command line asks: its arguments as they were typed, and whether somebody watches what it prints.
//
//     for (const std::u16string& Argument : CommandLineArguments()) ...
//     if (IsTerminal(TStandardStream::Error)) ShowProgress();
//
// Text is UTF-16, whatever the code page of the program; bytes of a Linux argument that aren't valid UTF-8 are carried as in
// file names (platform/Files.h), so that each name that was typed can be opened. Any thread.
#pragma once

#include <string>
#include <vector>

#include <qz/platform/Export.h>

namespace qz::platform {

enum class TStandardStream { Input, Output, Error };

// The arguments of this process, without the program's own name; none if the system doesn't tell.
QZ_API std::vector<std::u16string> CommandLineArguments();

// Whether the stream is a terminal or a console, and no file or pipe.
QZ_API bool IsTerminal(TStandardStream AStream) noexcept;

} // namespace qz::platform
