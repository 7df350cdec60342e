// Names of files as std::filesystem::path and as the UTF-16 text of this library.
//
//     for (const auto& Entry : std::filesystem::directory_iterator("/var/log"))
//         Show(TextOfPath(Entry.path()));
//
// Every path survives both ways: on Linux a byte that is not valid UTF-8 becomes a lone surrogate, as in
// Files.h. On Windows both are UTF-16. Any thread.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

QZ_API std::u16string TextOfPath(const std::filesystem::path& APath);
QZ_API std::filesystem::path PathOfText(std::u16string_view AText);

} // namespace qz::platform
