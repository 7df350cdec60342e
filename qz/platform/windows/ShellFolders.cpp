#include <qz/platform/ShellFolders.h>

#include <windows.h>

#include <shlobj.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

std::optional<std::u16string> ShellFolder(int ANumber) {
    char16_t Path[MAX_PATH + 1] = {};
    if (SHGetSpecialFolderPathW(nullptr, detail::Wide(Path), ANumber, TRUE) != 0)
        return Path;
    IMalloc* Allocator = nullptr;
    if (SHGetMalloc(&Allocator) != NOERROR)
        return u"";
    LPITEMIDLIST List = nullptr;
    const bool Ok = SHGetSpecialFolderLocation(nullptr, ANumber, &List) == NOERROR &&
        SHGetPathFromIDListW(List, detail::Wide(Path)) != 0;
    if (List != nullptr)
        Allocator->Free(List);
    Allocator->Release();
    return Ok ? std::optional<std::u16string>(Path) : std::nullopt;
}

} // namespace qz::platform
