#pragma once

#include "tests/header_examples/Names.h"

namespace {

std::vector<std::byte> Bytes;
std::array<std::byte, 64> Buffer;
std::u16string Text;
void* Address = nullptr;

} // namespace
