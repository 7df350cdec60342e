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

TResult<std::u16string> NormalizeText(int AForm, std::u16string_view AText) {
    const TNormalizeString Normalize = NormalizeStringFound.load(std::memory_order_acquire);
    if (Normalize == nullptr || AText.empty() || AText.size() > INT_MAX)
        return TError(ERROR_INVALID_PARAMETER);
    const wchar_t* Source = detail::Wide(AText.data());
    const auto Length = static_cast<int>(AText.size());
    std::u16string Result;
    // The first answer is an estimate; when it was too small, the second is the negative of a better one.
    int Needed = Normalize(AForm, Source, Length, nullptr, 0);
    while (Needed > 0) {
        Result.resize(static_cast<std::size_t>(Needed));
        const int Done = Normalize(AForm, Source, Length, detail::Wide(Result.data()), Needed);
        if (Done > 0) {
            Result.resize(static_cast<std::size_t>(Done));
            return Result;
        }
        Needed = GetLastError() == ERROR_INSUFFICIENT_BUFFER && -Done > Needed ? -Done : 0;
    }
    return LastError() != 0 ? TError(LastError()) : ErrorOfInvalidText();
}

} // namespace qz::platform
