#include "tests/header_examples/Shapes.h"

inline qz::TShape* Shape;
