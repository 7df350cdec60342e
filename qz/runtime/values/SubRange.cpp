#include <qz/runtime/values/SubRange.h>

namespace qz {

void detail::RaiseOutOfSubRange(std::int64_t AValue, std::int64_t ALow, std::int64_t AHigh) {
    throw ERangeError(u"The value %d is not in the range %d to %d", {AValue, ALow, AHigh});
}

} // namespace qz
