#include "runtime/objects/InterfacedObject.h"

#include "runtime/errors/Exceptions.h"
#include "runtime/reflection/Describe.h"

namespace qz {

constinit const TClassRec TInterfacedObject::ClassRec = DescribeClass<TInterfacedObject>(
    u"TInterfacedObject", {.Unit = u"System", .Interfaces = Interfaces<TInterfacedObject, IInterface>()});

HRESULT TInterfacedObject::QueryInterface(const TGUID& AIid, void** AObject) {
    return GetInterface(AIid, AObject) ? S_OK_RESULT : E_NOINTERFACE_RESULT;
}

std::uint32_t TInterfacedObject::_AddRef() {
    return static_cast<std::uint32_t>(FRefCount.Increment());
}

std::uint32_t TInterfacedObject::_Release() {
    const std::int32_t Count = FRefCount.Decrement();
    if (Count == 0)
        Free();
    return static_cast<std::uint32_t>(Count);
}

void TInterfacedObject::AfterConstruction() {
    Inherited::AfterConstruction();
    FRefCount.Decrement();
}

void TInterfacedObject::BeforeDestruction() {
    if (FRefCount.Value() != 0)
        throw EInvalidPointer(u"Invalid pointer operation");
    Inherited::BeforeDestruction();
}

} // namespace qz
