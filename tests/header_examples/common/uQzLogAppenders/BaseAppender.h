#pragma once

#include <qz/runtime/lists/StringList.h>

inline qz::TStringList Lines;
