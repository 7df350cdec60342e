// The error of an operating system call: its number and its text.
//
//     TError Error;
//     std::vector<std::byte> Data;
//     if (!ReadWholeFile(u"settings.xml", Data, Error))
//         Show(ErrorText(Error.Code));
#pragma once

#include <string>

#include <qz/platform/Export.h>

namespace qz::platform {

// The outcome of an operation, given by an out parameter. Operations of this layer write it on every call:
// 0 on success, the system's number on failure (errno on Linux, the last error on Windows).
struct TError {
    int Code = 0;
};

// The system's message for ACode on one line, without line end, final dot or blanks around it. The language
// is the system's choice. A number that the system doesn't know gives "Unknown error <number>". Any thread.
QZ_API std::u16string ErrorText(int ACode);

// The calling thread's last error: errno or GetLastError.
QZ_API int LastError() noexcept;
QZ_API void SetLastError(int ACode) noexcept;

} // namespace qz::platform
