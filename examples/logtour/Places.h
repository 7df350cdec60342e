// Files of this machine: some to read where none is named, and those that were written.
#pragma once

#include <cstdint>
#include <vector>

#include <qz/runtime/base/UnicodeString.h>

// Text files that most machines have, one of each of a few directories: the largest one, up to 16 MiB. May be empty.
std::vector<qz::UnicodeString> TextFilesOfThisMachine();

struct TWrittenFile {
    qz::UnicodeString Path;
    std::int64_t Bytes;
};

// All files in ADirectory, which ends with a separator, and in the directories below it, by name.
std::vector<TWrittenFile> FilesBelow(const qz::UnicodeString& ADirectory);
