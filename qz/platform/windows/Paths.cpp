#include <qz/platform/Paths.h>

namespace qz::platform {

std::u16string TextOfPath(const std::filesystem::path& APath) {
    return {APath.native().begin(), APath.native().end()};
}

std::filesystem::path PathOfText(std::u16string_view AText) {
    return std::wstring(AText.begin(), AText.end());
}

} // namespace qz::platform
