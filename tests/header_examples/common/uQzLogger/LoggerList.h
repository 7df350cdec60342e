#pragma once

#include <qz/common/uQzLogger.h>

inline qz::Ref<qz::TQzLogger> Log;
