#include <qz/common/uQzClasses/QzObject.h>

#include <qz/common/uQzClasses/QzComponent.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzClasses";

TQzObject* MakeObject() {
    return TQzObject::Create();
}

constexpr TMakerEntry cObjectMakers[] = {Maker<TQzObject::TVirtualCreate, &MakeObject>()};

} // namespace

QZ_REGISTER_TYPES(TQzObject, TQzInterfacedObject);

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

// The policy is read first: an owner that sees a count of 0 may free the object at once.
std::uint32_t TQzObject::_Release() {
    const bool EndsByCount = AutoDestroyPolicy() == radTrue;
    const TRefCount::TLeft Left = FRefCount.Decrement();
    if (Left.IsLast && EndsByCount)
        Free();
    return static_cast<std::uint32_t>(Left.Count);
}

void TQzObject::FinishCreate() {
    Inherited::FinishCreate();
    FRefCount.Decrement();
}

// References that are taken and dropped from here on, by notifications, end nothing.
bool TQzObject::BeginDestruction() noexcept {
    return FRefCount.BeginEnd();
}

void TQzObject::BeforeDestruction() {
    FIsRefusedByCount = FRefCount.Value() != 0;
    if (FIsRefusedByCount)
        throw Exception(SObjRefCountNotZero, {ClassName()});
    Inherited::BeforeDestruction();
}

// The last reference may have been released meanwhile without effect, since the destruction had begun.
void TQzObject::DestructionRefused() noexcept {
    const bool EndsByCount = std::exchange(FIsRefusedByCount, false) && AutoDestroyPolicy() == radTrue;
    if (FRefCount.CancelEnd() && EndsByCount)
        detail::FreeQuietly(*this);
}

TQzPolicyHold::TQzPolicyHold(TObject* AObject) noexcept {
    if (auto* Object = dynamic_cast<TQzObject*>(AObject)) {
        FPolicy = &Object->FAutoDestroy;
        FWasReferenced = Object->RefCount() != 0;
    } else if (auto* Component = dynamic_cast<TQzComponent*>(AObject)) {
        FPolicy = &Component->FAutoDestroy;
        FWasReferenced = Component->RefCount() != 0;
    }
    if (FPolicy != nullptr)
        FOld = FPolicy->exchange(radFalse, std::memory_order_relaxed);
}

TQzPolicyHold::~TQzPolicyHold() {
    if (FPolicy != nullptr)
        FPolicy->store(FOld, std::memory_order_relaxed);
}

} // namespace qz
