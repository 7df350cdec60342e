#pragma once

#include <qz/runtime/text/FloatText.h>
