#include <qz/platform/Module.h>

#include <optional>

#include <dlfcn.h>
#include <unistd.h>

#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

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

} // namespace qz::platform
