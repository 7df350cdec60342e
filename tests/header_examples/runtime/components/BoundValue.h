#include "tests/header_examples/Model.h"
#include <qz/runtime/reflection/Reflection.h>

inline const qz::TPropInfo* Prop;
