#include "tests/header_examples/Shapes.h"
#include <qz/runtime/values/BasicTypes.h>
