// expect: this type has no description
#include <qz/runtime/values/BasicTypes.h>

struct TUnknown {};

qz::PTypeInfo Known() {
    return qz::TypeInfo<int>();
}

#ifdef QZ_SHOULD_FAIL
qz::PTypeInfo Unknown() {
    return qz::TypeInfo<TUnknown>();
}
#endif
