#include <qz/platform/Module.h>

#include <optional>

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <qz/platform/linux/NativeText.h>

namespace qz::platform {
namespace {

struct TModuleSearch {
    std::uintptr_t Address;
    std::string Name;
};

// Stops at the module with the address and notes its name.
int FindModuleName(dl_phdr_info* AInfo, std::size_t, void* ASearch) {
    auto& Search = *static_cast<TModuleSearch*>(ASearch);
    for (int Index = 0; Index < AInfo->dlpi_phnum; ++Index) {
        const ElfW(Phdr)& Part = AInfo->dlpi_phdr[Index];
        if (Part.p_type == PT_LOAD && Search.Address - (AInfo->dlpi_addr + Part.p_vaddr) < Part.p_memsz) {
            Search.Name = AInfo->dlpi_name;
            return 1;
        }
    }
    return 0;
}

} // namespace

std::u16string ExecutablePath() {
    std::string Path(256, '\0');
    for (;;) {
        const ssize_t Length = readlink("/proc/self/exe", Path.data(), Path.size());
        if (Length < 0)
            return {};
        if (static_cast<std::size_t>(Length) < Path.size())
            return detail::FromNative(std::string_view(Path).substr(0, static_cast<std::size_t>(Length)));
        Path.resize(Path.size() * 2);
    }
}

void* FindModuleFunction(std::u16string_view AModule, const char* AName) {
    if (AModule.empty())
        return dlsym(RTLD_DEFAULT, AName);
    const std::optional<std::string> File = detail::ToNativeArgument(AModule);
    if (!File)
        return nullptr;
    void* Module = dlopen(File->c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (Module == nullptr)
        return nullptr;
    void* Result = dlsym(Module, AName);
    dlclose(Module);
    return Result;
}

bool PinModule(const void* AAddress) {
    TModuleSearch Search{reinterpret_cast<std::uintptr_t>(AAddress), {}};
    dl_iterate_phdr(FindModuleName, &Search);
    if (Search.Name.empty()) // the program has no name
        return true;
    // The handle is never closed.
    return dlopen(Search.Name.c_str(), RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE) != nullptr;
}

} // namespace qz::platform
