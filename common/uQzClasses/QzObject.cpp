#include "common/uQzClasses/QzObject.h"

#include "runtime/errors/Exceptions.h"
#include "runtime/reflection/Describe.h"
#include "runtime/text/Format.h"

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzClasses";

TQzObject* MakeObject() {
    return TQzObject::Create();
}

constexpr TMakerEntry cObjectMakers[] = {Maker<TQzObject::TVirtualCreate, &MakeObject>()};

} // namespace

constinit const TClassRec TQzObject::ClassRec = DescribeClass<TQzObject>(
    u"TQzObject", {.Unit = cUnit, .Interfaces = Interfaces<TQzObject, IQzObject>(), .Makers = cObjectMakers});
constinit const TClassRec TQzInterfacedObject::ClassRec =
    DescribeClass<TQzInterfacedObject>(u"TQzInterfacedObject", {.Unit = cUnit});

bool TQzObject::GetAutoDestroy() const {
    return AutoDestroyPolicy() == radTrue;
}

void TQzObject::SetAutoDestroy(bool AValue) noexcept {
    FAutoDestroy.store(AValue ? radTrue : radFalse, std::memory_order_relaxed);
}

HRESULT TQzObject::QueryInterface(const TGUID& AIid, void** AObject) {
    return detail::QueryObject(*this, AIid, AObject);
}

std::uint32_t TQzObject::_AddRef() {
    const std::int32_t Count = FRefCount.Increment();
    if (AutoDestroyPolicy() == radComputed) {
        TQzAutoDestroy Undecided = radComputed;
        FAutoDestroy.compare_exchange_strong(Undecided, radTrue, std::memory_order_relaxed);
    }
    return static_cast<std::uint32_t>(Count);
}

std::uint32_t TQzObject::_Release() {
    const std::int32_t Count = FRefCount.Decrement();
    if (Count == 0 && AutoDestroyPolicy() == radTrue && !FDestroying)
        Free();
    return static_cast<std::uint32_t>(Count);
}

void TQzObject::AfterConstruction() {
    Inherited::AfterConstruction();
    FRefCount.Decrement();
}

// References that are taken and dropped from here on, by notifications, end nothing.
bool TQzObject::BeginDestruction() noexcept {
    return !FDestroying.exchange(true);
}

void TQzObject::BeforeDestruction() {
    if (FRefCount.Value() != 0)
        throw Exception(SObjRefCountNotZero, {ClassName()});
    Inherited::BeforeDestruction();
}

void TQzObject::DestructionRefused() noexcept {
    FDestroying = false;
}

TQzPolicyHold::TQzPolicyHold(TObject* AObject) noexcept : FObject(dynamic_cast<TQzObject*>(AObject)) {
    if (FObject != nullptr)
        FOld = FObject->FAutoDestroy.exchange(radFalse, std::memory_order_relaxed);
}

TQzPolicyHold::~TQzPolicyHold() {
    if (FObject != nullptr)
        FObject->FAutoDestroy.store(FOld, std::memory_order_relaxed);
}

} // namespace qz
