// Queries and simple changes of the file system. Each change returns whether it succeeded.
//
//     if (FileExists(Old) && !RenameFile(Old, New))
//         ...                                             // it stays where it was
//     ForceDirectories(ExtractFilePath(New));
//
// Names are as in platform/Files.h. Nothing is raised but std::bad_alloc. Any thread.
#pragma once

#include <qz/runtime/base/StringArg.h>

namespace qz {

// Whether there is a file, or a directory, of that name.
QZ_API bool FileExists(const TStringArg& AFileName);
QZ_API bool DirectoryExists(const TStringArg& ADirectory);
// Removes a file or a link, never a directory.
QZ_API bool DeleteFile(const TStringArg& AFileName);
// Fails where the new name is taken.
QZ_API bool RenameFile(const TStringArg& AFileName, const TStringArg& ANewName);
// Creates the directory and its missing parents. True if it exists afterwards.
QZ_API bool ForceDirectories(const TStringArg& ADirectory);
// The path from its root, with the current directory before a relative one; the name itself if that cannot be
// determined.
QZ_API UnicodeString ExpandFileName(const TStringArg& AFileName);
// The whole path of the running program.
QZ_API UnicodeString ProgramFileName();

} // namespace qz
