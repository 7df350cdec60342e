#include <qz/platform/Normalization.h>

#include <atomic>
#include <climits>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

using TNormalizeString = int(WINAPI*)(int AForm, const wchar_t* ASource, int ALength, wchar_t* ATarget,
                                      int ASize);

std::atomic<TNormalizeString> NormalizeStringFound{nullptr};

} // namespace

TNormalizer PrepareNormalizer() {
    if (NormalizeStringFound.load(std::memory_order_acquire) != nullptr)
        return TNormalizer::Ready;
    // Two threads may both bind it, with the same outcome. The library stays for the life of the process.
    const HMODULE Library = LoadLibraryExW(L"normaliz.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (Library == nullptr)
        return TNormalizer::NoLibrary;
    const auto Function = reinterpret_cast<TNormalizeString>(
        reinterpret_cast<void*>(GetProcAddress(Library, "NormalizeString")));
    if (Function == nullptr)
        return TNormalizer::NoFunction;
    NormalizeStringFound.store(Function, std::memory_order_release);
    return TNormalizer::Ready;
}

bool NormalizeText(int AForm, std::u16string_view AText, std::u16string& AOut, TError& AError) {
    const TNormalizeString Normalize = NormalizeStringFound.load(std::memory_order_acquire);
    AOut.clear();
    if (Normalize == nullptr || AText.empty() || AText.size() > INT_MAX) {
        AError.Code = ERROR_INVALID_PARAMETER;
        return false;
    }
    const wchar_t* Source = detail::Wide(AText.data());
    const auto Length = static_cast<int>(AText.size());
    // The first answer is an estimate; when it was too small, the second is the negative of a better one.
    int Needed = Normalize(AForm, Source, Length, nullptr, 0);
    while (Needed > 0) {
        AOut.resize(static_cast<size_t>(Needed));
        const int Done = Normalize(AForm, Source, Length, detail::Wide(AOut.data()), Needed);
        if (Done > 0) {
            AOut.resize(static_cast<size_t>(Done));
            AError.Code = 0;
            return true;
        }
        Needed = GetLastError() == ERROR_INSUFFICIENT_BUFFER && -Done > Needed ? -Done : 0;
    }
    AError.Code = LastError() != 0 ? LastError() : ERROR_NO_UNICODE_TRANSLATION;
    AOut.clear();
    return false;
}

} // namespace qz::platform
