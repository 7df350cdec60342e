#pragma once

#include <qz/common/uQzXSTypes.h>
