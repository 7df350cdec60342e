#pragma once

#include <qz/runtime/files/FileNames.h>

static qz::UnicodeString Old, New;
