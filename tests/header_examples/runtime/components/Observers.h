#pragma once

#include <qz/runtime/components/Components.h>

static qz::UnicodeString FText;
