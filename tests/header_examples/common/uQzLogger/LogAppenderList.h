#pragma once

#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>

inline qz::Ref<qz::TQzLogger> Log;
