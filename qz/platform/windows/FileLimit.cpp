#include <qz/platform/FileLimit.h>

namespace qz::platform {

std::uint64_t FileSizeLimit() noexcept {
    return UINT64_MAX;
}

TNoLimitSignal::TNoLimitSignal() noexcept = default;

TNoLimitSignal::~TNoLimitSignal() = default;

} // namespace qz::platform
