// How large this process may make a file.
//
//     if (Size + Count > FileSizeLimit()) {
//         const TNoLimitSignal Quiet;
//         File.Write(...);               // fails with EFBIG; without the object the process would end
//     }
//
// Linux has such a limit (RLIMIT_FSIZE) and ends a process that writes behind it by SIGXFSZ, unless told otherwise. On Windows
// there is none.
#pragma once

#include <cstdint>

#include <qz/platform/Export.h>

namespace qz::platform {

// In bytes; the largest number when there is no limit. The limit may change at any time.
QZ_API std::uint64_t FileSizeLimit() noexcept;

// Keeps the signal of the limit from the calling thread as long as it lives; a signal that arose meanwhile is dropped.
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
