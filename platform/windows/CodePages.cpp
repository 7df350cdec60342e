#include "platform/CodePages.h"

#include <climits>

#include <windows.h>

#include "platform/windows/WideText.h"

namespace qz::platform {

namespace {

// Writes the outcome of a step that gives a length, where 0 stands for failure.
bool Succeeded(int ALength, TError& AError) {
    AError.Code = ALength > 0 ? 0 : LastError();
    return ALength > 0;
}

// Measures, makes room and converts: AStep fills the buffer that it is given and gives the length needed.
template <class TOut, class TStep> bool Convert(TOut& AOut, TError& AError, const TStep& AStep) {
    const int Length = AStep(nullptr, 0);
    if (!Succeeded(Length, AError))
        return false;
    AOut.resize(static_cast<size_t>(Length));
    if (Succeeded(AStep(AOut.data(), Length), AError))
        return true;
    AOut.clear();
    return false;
}

// Whether there is work to do. An unknown page is an error without any text, too.
bool Prepare(uint32_t APage, size_t ALength, TError& AError) {
    const bool Ok = ALength <= INT_MAX && (APage == CP_ACP || IsValidCodePage(APage) != 0);
    AError.Code = Ok ? 0 : ERROR_INVALID_PARAMETER;
    return Ok && ALength != 0;
}

} // namespace

uint32_t SystemCodePage() {
    return GetACP();
}

bool CodePageToUtf16(uint32_t APage, std::span<const std::byte> ABytes, std::u16string& AOut,
                     TError& AError) {
    AOut.clear();
    if (!Prepare(APage, ABytes.size(), AError))
        return AError.Code == 0;
    const auto* Source = reinterpret_cast<const char*>(ABytes.data());
    const auto Length = static_cast<int>(ABytes.size());
    return Convert(AOut, AError, [&](char16_t* ATarget, int ASize) {
        return MultiByteToWideChar(APage, 0, Source, Length, detail::Wide(ATarget), ASize);
    });
}

bool Utf16ToCodePage(uint32_t APage, std::u16string_view AText, std::string& AOut, TError& AError) {
    AOut.clear();
    if (!Prepare(APage, AText.size(), AError))
        return AError.Code == 0;
    const wchar_t* Source = detail::Wide(AText.data());
    const auto Length = static_cast<int>(AText.size());
    return Convert(AOut, AError, [&](char* ATarget, int ASize) {
        return WideCharToMultiByte(APage, 0, Source, Length, ATarget, ASize, nullptr, nullptr);
    });
}

} // namespace qz::platform
