#pragma once

#include <qz/runtime/values/VariantArray.h>
