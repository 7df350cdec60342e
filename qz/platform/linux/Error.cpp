#include <qz/platform/Error.h>

#include <cerrno>
#include <cstring>

#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

std::u16string ErrorText(int ACode) {
    char Buffer[256];
    const int Kept = errno;
    // The GNU form, which may give a text of its own instead of the buffer.
    const char* Text = strerror_r(ACode, Buffer, sizeof Buffer);
    errno = Kept;
    return detail::FromNative(Text);
}

int LastError() noexcept {
    return errno;
}

void SetLastError(int ACode) noexcept {
    errno = ACode;
}

TError ErrorOfMemory() noexcept {
    return TError(ENOMEM);
}

TError ErrorOfSmallTarget() noexcept {
    return TError(ENOBUFS);
}

TError ErrorOfInvalidText() noexcept {
    return TError(EILSEQ);
}

} // namespace qz::platform
