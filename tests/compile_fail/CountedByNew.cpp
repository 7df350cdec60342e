// expect: abstract | protected
#include <qz/runtime/objects/InterfacedObject.h>

class TCounted : public qz::TInterfacedObject {
    QZ_CLASS(TCounted, TInterfacedObject)
public:
    TCounted() = default;
};

qz::IInterface* Made() {
    return TCounted::Create();
}

#ifdef QZ_SHOULD_FAIL
TCounted* Allocated() {
    return new TCounted;
}
#endif
