#include <qz/common/Version.h>

namespace qz {

std::string_view Version() noexcept {
    return "2.1.0";
}

} // namespace qz
