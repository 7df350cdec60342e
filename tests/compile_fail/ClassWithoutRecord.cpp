// expect: this class lacks a QZ_CLASS line of its own
#include <qz/runtime/objects/Object.h>

class TPlain : public qz::TObject {};

qz::TClass Known() {
    return qz::ClassOf<qz::TObject>();
}

#ifdef QZ_SHOULD_FAIL
qz::TClass Unknown() {
    return qz::ClassOf<TPlain>();
}
#endif
