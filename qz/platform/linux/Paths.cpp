#include <qz/platform/Paths.h>

#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

std::u16string TextOfPath(const std::filesystem::path& APath) {
    return detail::FromNative(APath.native());
}

std::filesystem::path PathOfText(std::u16string_view AText) {
    return detail::ToNative(AText);
}

} // namespace qz::platform
