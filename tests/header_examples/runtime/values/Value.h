#include "tests/header_examples/Shapes.h"

inline std::unique_ptr<qz::TShape> Shape;
inline qz::TValue Other;
namespace qz {
using ::Other;
}
