// The maximum file size of this process.
//
//     if (Size + Count > FileSizeLimit()) {
//         const TNoLimitSignal Quiet;
//         File.Write(...);               // fails with EFBIG; without the object the process would end
//     }
//
// Linux has such a limit (RLIMIT_FSIZE): a write beyond it raises SIGXFSZ, which ends the process by default.
// Windows has none.
#pragma once

#include <cstdint>

#include <qz/platform/Export.h>

namespace qz::platform {

// In bytes; the largest number if there is no limit. The limit may change at any time.
QZ_API std::uint64_t FileSizeLimit() noexcept;

// Blocks the limit's signal for the calling thread while it exists; discards one that was raised meanwhile.
class QZ_API TNoLimitSignal {
public:
    TNoLimitSignal() noexcept;
    TNoLimitSignal(const TNoLimitSignal&) = delete;
    TNoLimitSignal& operator=(const TNoLimitSignal&) = delete;
    ~TNoLimitSignal();

private:
    bool FHasBlocked = false;
};

} // namespace qz::platform
