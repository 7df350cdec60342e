#include <qz/platform/Debugger.h>

#include <string>

#include <windows.h>

#include <qz/platform/Module.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {

bool IsDebuggerPresent() noexcept {
    using TIsDebuggerPresent = BOOL(WINAPI*)();
    static const auto Ask =
        reinterpret_cast<TIsDebuggerPresent>(FindModuleFunction(u"kernel32.dll", "IsDebuggerPresent"));
    return Ask != nullptr && Ask() != 0;
}

bool HasTopLevelWindow(std::u16string_view AClass, std::u16string_view ATitle) {
    if (AClass.find(u'\0') != std::u16string_view::npos || ATitle.find(u'\0') != std::u16string_view::npos)
        return false;
    const std::u16string Class(AClass);
    const std::u16string Title(ATitle);
    return FindWindowW(Class.empty() ? nullptr : detail::Wide(Class),
                       Title.empty() ? nullptr : detail::Wide(Title)) != nullptr;
}

} // namespace qz::platform
