#include <qz/platform/linux/NativeFile.h>

#include <algorithm>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

#include <qz/platform/FileLimit.h>

namespace qz::platform::detail {

namespace {

constexpr std::size_t cLargestStep = std::size_t{1} << 30;

} // namespace

int OpenNative(const char* APath, int AFlags, mode_t AMode) noexcept {
    for (;;) {
        const int File = open(APath, AFlags | O_CLOEXEC, AMode);
        if (File >= 0 || errno != EINTR)
            return File;
    }
}

ssize_t ReadSome(int AFile, std::span<std::byte> ATarget) noexcept {
    for (;;) {
        const ssize_t Got = read(AFile, ATarget.data(), std::min(ATarget.size(), cLargestStep));
        if (Got >= 0 || errno != EINTR)
            return Got;
    }
}

bool WriteAll(int AFile, std::span<const std::byte> ASource, std::size_t& ADone) noexcept {
    ADone = 0;
    std::optional<TNoLimitSignal> Quiet; // behind a write that came to the limit of the file
    while (ADone < ASource.size()) {
        if (ADone > 0 && !Quiet)
            Quiet.emplace();
        const std::size_t Step = std::min(ASource.size() - ADone, cLargestStep);
        const ssize_t Written = write(AFile, ASource.data() + ADone, Step);
        if (Written > 0) {
            ADone += static_cast<std::size_t>(Written);
        } else if (Written == 0) {
            errno = EIO; // a device that takes nothing would hold us here for ever
            return false;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace qz::platform::detail
