// expect: a GUID is written | is not a constant expression | call to consteval function
#include <qz/runtime/base/Guid.h>

constexpr qz::TGUID cGood = qz::Guid("{0417F540-9CCC-4DE6-B2C4-1063D0508346}");

#ifdef QZ_SHOULD_FAIL
constexpr qz::TGUID cBad = qz::Guid("{0417F540-9CCC-4DE6-B2C4-1063D050834}");
#endif
