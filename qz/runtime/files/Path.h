// File names of the standard library, for the functions of this library and from them.
//
//     const std::filesystem::path Folder = "/etc/app";
//     const UnicodeString FileName = FromPath(Folder / "app.conf");
//     std::filesystem::remove(ToPath(FileName));
//
// Every name survives both ways, also one that is not valid UTF-8 (platform/Paths.h). Any thread.
#pragma once

#include <qz/platform/Paths.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

inline UnicodeString FromPath(const std::filesystem::path& APath) {
    return platform::TextOfPath(APath);
}
inline std::filesystem::path ToPath(const TStringArg& AFileName) {
    return platform::PathOfText(AFileName);
}

} // namespace qz
