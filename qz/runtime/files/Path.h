// File names of the standard library, for the functions of this library and from them.
//
//     const std::filesystem::path Folder = ToPath(ExtractFilePath(ProgramFileName()));
//     if (FileExists(FromPath(Folder / "app.conf")))
//         Load(FromPath(Folder / "app.conf"));
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
