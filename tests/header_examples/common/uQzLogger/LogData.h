#pragma once

#include <qz/common/uQzLogger.h>
