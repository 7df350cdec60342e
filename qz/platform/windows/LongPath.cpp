#include <qz/platform/windows/LongPath.h>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform::detail {

namespace {

// A directory must leave room for a short name of a file in it.
constexpr DWORD cShortEnough = 248;

std::u16string FullPath(const std::u16string& APath, DWORD ASize) {
    std::u16string Result(ASize, u'\0');
    const DWORD Length = GetFullPathNameW(Wide(APath), ASize, Wide(Result.data()), nullptr);
    if (Length == 0 || Length >= ASize)
        return APath; // the current directory changed meanwhile
    Result.resize(Length);
    return Result;
}

} // namespace

std::optional<std::u16string> SystemPath(std::u16string_view APath) {
    if (APath.find(u'\0') != std::u16string_view::npos)
        return std::nullopt;
    std::u16string Path(APath);
    if (Path.starts_with(u"\\\\?\\") || Path.starts_with(u"\\\\.\\"))
        return Path;
    const DWORD Size = GetFullPathNameW(Wide(Path), 0, nullptr, nullptr);
    if (Size <= cShortEnough + 1)
        return Path;
    const std::u16string Full = FullPath(Path, Size);
    if (Full.starts_with(u"\\\\"))
        return u"\\\\?\\UNC" + Full.substr(1);
    return u"\\\\?\\" + Full;
}

} // namespace qz::platform::detail
