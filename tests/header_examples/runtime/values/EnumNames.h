#include "tests/header_examples/Shapes.h"
#include <qz/runtime/base/Set.h>

namespace qz {
using TColors = TSet<TColor>;
}
QZ_TYPE_INFO(qz::TColors);
