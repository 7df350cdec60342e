// expect: abstract | protected
#include <memory>

#include <qz/runtime/components/Component.h>

class TPart : public qz::TComponent {
    QZ_CLASS(TPart, TComponent)
public:
    TPart() : TComponent(nullptr) {}
};

qz::TOwned<TPart> Made() {
    return qz::TOwned<TPart>(TPart::Create());
}

#ifdef QZ_SHOULD_FAIL
std::unique_ptr<TPart> Unique() {
    return std::make_unique<TPart>();
}
#endif
