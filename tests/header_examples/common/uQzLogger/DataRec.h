#include <qz/runtime/values/Value.h>

inline qz::TValue Value;
