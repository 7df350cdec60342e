// What the examples of this layer use without declaring it.
#pragma once

#include "tests/header_examples/Names.h"

#include <qz/platform/FileHandle.h>

namespace {

std::vector<std::byte> Bytes;
std::array<std::byte, 64> Buffer;
std::u16string Text;
void* Address = nullptr;
std::uint64_t Size, Count;
qz::platform::TFileHandle File;
qz::platform::TWritten Written;
void ShowProgress() {}
void ShowDetails() {}
void TakeLocks() {}
void ReleaseLocks() {}

} // namespace
