#pragma once

#include <qz/platform/FileHandle.h>

static qz::platform::TFileHandle File;
static qz::platform::TWritten Written;
static std::uint64_t Size, Count;
