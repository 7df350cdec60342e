#pragma once

#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogger.h>
