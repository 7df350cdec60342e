#pragma once

#include <qz/common/uQzLogger.h>

extern qz::UnicodeString Query;
extern const qz::Exception& Failure;
