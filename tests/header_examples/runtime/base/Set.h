#pragma once

#include <qz/runtime/base/StringUtils.h>
