#include <qz/runtime/objects/InterfacedObject.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TInterfacedObject);

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
    const TRefCount::TLeft Left = FRefCount.Decrement();
    if (Left.IsLast)
        Free();
    return static_cast<std::uint32_t>(Left.Count);
}

void TInterfacedObject::FinishCreate() {
    Inherited::FinishCreate();
    FRefCount.Decrement();
}

bool TInterfacedObject::BeginDestruction() noexcept {
    return FRefCount.BeginEnd();
}

void TInterfacedObject::DestructionRefused() noexcept {
    const bool IsByCount = std::exchange(FIsRefusedByCount, false);
    if (FRefCount.CancelEnd() && IsByCount)
        detail::FreeQuietly(*this);
}

void TInterfacedObject::BeforeDestruction() {
    FIsRefusedByCount = FRefCount.Value() != 0;
    if (FIsRefusedByCount)
        throw EInvalidPointer(u"Invalid pointer operation");
    Inherited::BeforeDestruction();
}

} // namespace qz
