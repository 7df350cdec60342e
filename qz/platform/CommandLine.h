// The command-line arguments of this process, and whether a standard stream is a terminal.
//
//     for (const std::u16string& Argument : CommandLineArguments())
//         Open(Argument);
//     if (IsTerminal(TStandardStream::Error))
//         ShowProgress();
//
// Text is UTF-16, whatever the code page of the program. Bytes of a Linux argument that are not valid UTF-8
// are carried as in file names (Files.h), so that every file name on the command line can be opened. Any
// thread.
#pragma once

#include <string>
#include <vector>

#include <qz/platform/Export.h>

namespace qz::platform {

enum class TStandardStream { Input, Output, Error };

// The arguments without the program name; empty if the system reports none.
QZ_API std::vector<std::u16string> CommandLineArguments();

// Whether the stream is a terminal or a console.
QZ_API bool IsTerminal(TStandardStream AStream) noexcept;

} // namespace qz::platform
