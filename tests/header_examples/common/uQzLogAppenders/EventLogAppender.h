#pragma once

#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>
