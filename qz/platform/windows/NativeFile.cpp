#include <qz/platform/windows/NativeFile.h>

#include <algorithm>

#include <windows.h>

namespace qz::platform::detail {

bool WriteAll(void* AFile, std::span<const std::byte> ASource, std::size_t& ADone) noexcept {
    constexpr std::size_t cLargestStep = std::size_t{1} << 30;
    ADone = 0;
    while (ADone < ASource.size()) {
        const auto Step = static_cast<DWORD>(std::min(ASource.size() - ADone, cLargestStep));
        DWORD Written = 0;
        if (WriteFile(AFile, ASource.data() + ADone, Step, &Written, nullptr) == 0)
            return false;
        if (Written == 0) {
            SetLastError(ERROR_WRITE_FAULT); // a device that takes nothing would hold us here for ever
            return false;
        }
        ADone += Written;
    }
    return true;
}

} // namespace qz::platform::detail
