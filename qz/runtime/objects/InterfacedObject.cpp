#include <qz/runtime/objects/InterfacedObject.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {

constinit const TClassRec TInterfacedObject::ClassRec = DescribeClass<TInterfacedObject>(
    u"TInterfacedObject", {.Unit = u"System", .Interfaces = Interfaces<TInterfacedObject, IInterface>()});

void TRefCount::RaiseBelowZero() {
    detail::RaiseAssertion(u"An interface was released more often than it was referenced");
}

HRESULT TInterfacedObject::QueryInterface(const TGUID& AIid, void** AObject) {
    return detail::QueryObject(*this, AIid, AObject);
}

std::uint32_t TInterfacedObject::_AddRef() {
    return static_cast<std::uint32_t>(FRefCount.Increment());
}

std::uint32_t TInterfacedObject::_Release() {
    const std::int32_t Count = FRefCount.Decrement();
    if (Count == 0 && !FDestroying)
        Free();
    return static_cast<std::uint32_t>(Count);
}

void TInterfacedObject::FinishCreate() {
    Inherited::FinishCreate();
    FRefCount.Decrement();
}

bool TInterfacedObject::BeginDestruction() noexcept {
    return !FDestroying.exchange(true);
}

void TInterfacedObject::DestructionRefused() noexcept {
    FDestroying = false;
}

void TInterfacedObject::BeforeDestruction() {
    if (FRefCount.Value() != 0)
        throw EInvalidPointer(u"Invalid pointer operation");
    Inherited::BeforeDestruction();
}

} // namespace qz
