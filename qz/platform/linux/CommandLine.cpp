#include <qz/platform/CommandLine.h>

#include <cstddef>
#include <string_view>

#include <unistd.h>

#include <qz/platform/Files.h>
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

// Each argument, the name of the program first, is ended by a NUL there.
std::vector<std::u16string> CommandLineArguments() {
    // Empty where /proc is not mounted.
    const TResult<std::vector<std::byte>> Bytes = ReadWholeFile(u"/proc/self/cmdline");
    std::vector<std::u16string> Result;
    std::string_view Rest(reinterpret_cast<const char*>(Bytes->data()), Bytes->size());
    for (bool IsProgram = true; !Rest.empty(); IsProgram = false) {
        const std::string_view Argument = Rest.substr(0, Rest.find('\0'));
        if (!IsProgram)
            Result.push_back(detail::FromNative(Argument));
        Rest.remove_prefix(Argument.size() + (Argument.size() < Rest.size() ? 1 : 0));
    }
    return Result;
}

bool IsTerminal(TStandardStream AStream) noexcept {
    return isatty(AStream == TStandardStream::Input        ? STDIN_FILENO
                      : AStream == TStandardStream::Output ? STDOUT_FILENO
                                                           : STDERR_FILENO) != 0;
}

} // namespace qz::platform
