#pragma once

#include <qz/common/uQzSysUtils/Strings.h>

inline int Count;
