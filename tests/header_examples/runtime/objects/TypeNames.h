#pragma once

#include "tests/header_examples/Shapes.h"
