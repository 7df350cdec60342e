#include <qz/platform/Error.h>

#include <string_view>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

constexpr DWORD cMaxMessage = 4096;

bool IsNoise(char16_t AUnit) {
    return AUnit <= u' ' || AUnit == u'.';
}

// Messages of several lines keep their words.
std::u16string OneLine(std::u16string_view AText) {
    while (!AText.empty() && IsNoise(AText.back()))
        AText.remove_suffix(1);
    std::u16string Result;
    for (const char16_t Unit : AText) {
        if (Unit > u' ')
            Result += Unit;
        else if (!Result.empty() && Result.back() != u' ')
            Result += u' ';
    }
    return Result;
}

std::u16string UnknownText(int ACode) {
    const std::string Number = std::to_string(ACode);
    return u"Unknown error " + std::u16string(Number.begin(), Number.end());
}

} // namespace

std::u16string ErrorText(int ACode) {
    const DWORD Kept = GetLastError();
    std::u16string Buffer(cMaxMessage, u'\0');
    const DWORD Length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                       static_cast<DWORD>(ACode), 0, detail::Wide(Buffer.data()), cMaxMessage, nullptr);
    SetLastError(static_cast<int>(Kept));
    std::u16string Text = OneLine(std::u16string_view(Buffer).substr(0, Length));
    return Text.empty() ? UnknownText(ACode) : Text;
}

int LastError() noexcept {
    return static_cast<int>(GetLastError());
}

void SetLastError(int ACode) noexcept {
    ::SetLastError(static_cast<DWORD>(ACode));
}

TError ErrorOfMemory() noexcept {
    return TError(ERROR_NOT_ENOUGH_MEMORY);
}

TError ErrorOfSmallTarget() noexcept {
    return TError(ERROR_INSUFFICIENT_BUFFER);
}

TError ErrorOfInvalidText() noexcept {
    return TError(ERROR_NO_UNICODE_TRANSLATION);
}

} // namespace qz::platform
