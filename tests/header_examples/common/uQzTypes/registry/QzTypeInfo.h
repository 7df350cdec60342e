#pragma once

#include <qz/common/uQzTypes/registry/QzTypes.h>
