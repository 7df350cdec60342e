#include <qz/platform/Debugger.h>

#include <cerrno>
#include <cstddef>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace qz::platform {

namespace {

// The head of a file under /proc, which is read without allocation: this may be asked while memory is short.
std::string_view ReadHead(const char* APath, char* ABuffer, std::size_t ASize) noexcept {
    const int File = open(APath, O_RDONLY | O_CLOEXEC);
    if (File < 0)
        return {};
    std::size_t Length = 0;
    while (Length < ASize) {
        const ssize_t Got = read(File, ABuffer + Length, ASize - Length);
        if (Got > 0)
            Length += static_cast<std::size_t>(Got);
        else if (Got == 0 || errno != EINTR)
            break;
    }
    close(File);
    return {ABuffer, Length};
}

} // namespace

bool IsDebuggerPresent() noexcept {
    constexpr std::string_view cField = "\nTracerPid:\t";
    char Buffer[2048];
    const std::string_view Status = ReadHead("/proc/self/status", Buffer, sizeof Buffer);
    const std::size_t Position = Status.find(cField);
    if (Position == std::string_view::npos)
        return false;
    const std::string_view Tracer = Status.substr(Position + cField.size(), 1);
    return !Tracer.empty() && Tracer != "0";
}

bool HasTopLevelWindow(std::u16string_view, std::u16string_view) {
    return false;
}

} // namespace qz::platform
