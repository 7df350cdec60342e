#include <qz/common/uQzWindows/ShellFolders.h>

#include <qz/platform/ShellFolders.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {

UnicodeString QzGetShellFolder(std::int32_t AFolder) {
    const std::optional<std::u16string> Path = platform::ShellFolder(AFolder);
    if (!Path)
        throw Exception(u"Invalid pidl");
    return *Path;
}

UnicodeString QzGetMyDocumentsFolder() {
    constexpr std::int32_t cMyDocuments = 5;
    return QzGetShellFolder(cMyDocuments);
}

} // namespace qz
