#include <qz/platform/ShellFolders.h>

#include <windows.h>

#include <shlobj.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

bool ShellFolder(int ANumber, std::u16string& APath) {
    APath.clear();
    char16_t Path[MAX_PATH + 1] = {};
    if (SHGetSpecialFolderPathW(nullptr, detail::Wide(Path), ANumber, TRUE) != 0) {
        APath = Path;
        return true;
    }
    IMalloc* Allocator = nullptr;
    if (SHGetMalloc(&Allocator) != NOERROR)
        return true;
    LPITEMIDLIST List = nullptr;
    const bool Ok = SHGetSpecialFolderLocation(nullptr, ANumber, &List) == NOERROR &&
        SHGetPathFromIDListW(List, detail::Wide(Path)) != 0;
    if (Ok)
        APath = Path;
    if (List != nullptr)
        Allocator->Free(List);
    Allocator->Release();
    return Ok;
}

} // namespace qz::platform
