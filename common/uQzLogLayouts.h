// Unit uQzLogLayouts: messages as text.
#pragma once

// TQzSimpleLayout: a line of text.
#include "common/uQzLogLayouts/SimpleLayout.h"
