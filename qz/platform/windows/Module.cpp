#include <qz/platform/Module.h>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

std::u16string ExecutablePath() {
    std::u16string Path(MAX_PATH, u'\0');
    for (;;) {
        const auto Size = static_cast<DWORD>(Path.size());
        const DWORD Length = GetModuleFileNameW(nullptr, detail::Wide(Path.data()), Size);
        if (Length < Size) {
            Path.resize(Length);
            return Path;
        }
        Path.resize(Path.size() * 2);
    }
}

void* FindModuleFunction(std::u16string_view AModule, const char* AName) {
    if (AModule.find(u'\0') != std::u16string_view::npos)
        return nullptr;
    const std::u16string Name(AModule);
    HMODULE Module = GetModuleHandleW(Name.empty() ? nullptr : detail::Wide(Name));
    if (Module == nullptr)
        return nullptr;
    return reinterpret_cast<void*>(GetProcAddress(Module, AName));
}

bool PinModule(const void* AAddress) {
    HMODULE Module = nullptr;
    constexpr DWORD cFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
    return GetModuleHandleExW(cFlags, static_cast<LPCWSTR>(AAddress), &Module) != 0 ||
        GetLastError() == ERROR_MOD_NOT_FOUND;
}

} // namespace qz::platform
