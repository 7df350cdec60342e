#include <qz/common/uQzClasses/QzComponent.h>

#include <algorithm>

#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzComponent);

constinit const TClassRec TQzComponent::ClassRec = DescribeComponent<TQzComponent>(
    u"TQzComponent",
    {.Unit = u"uQzClasses", .Interfaces = Interfaces<TQzComponent, IQzComponent, IQzObject>()});

TQzComponent::TQzComponent(TComponent* AOwner) : TComponent(AOwner) {}

TQzComponent::~TQzComponent() {
    ClearBindings();
}

HRESULT TQzComponent::QueryInterface(const TGUID& AIid, void** AObject) {
    return TComponent::QueryInterface(AIid, AObject);
}

std::uint32_t TQzComponent::_AddRef() {
    const std::int32_t Count = FRefCount.Increment();
    if (Owner() == nullptr) {
        TQzAutoDestroy Undecided = radComputed;
        FAutoDestroy.compare_exchange_strong(Undecided, radTrue, std::memory_order_relaxed);
    }
    return static_cast<std::uint32_t>(Count);
}

// References that notifications take and release do not destroy a component that is being destroyed already.
// All else is read first: an owner that sees a count of 0 may free the component at once.
bool TQzComponent::DropReference(std::int32_t& ACount) {
    const bool GoesWithOwner = Owner() != nullptr && ComponentState().Contains(csDestroying);
    const bool EndsByCount = AutoDestroyPolicy() == radTrue && !GoesWithOwner;
    const TRefCount::TLeft Left = FRefCount.Decrement();
    ACount = Left.Count;
    return Left.IsLast && EndsByCount;
}

std::uint32_t TQzComponent::_Release() {
    std::int32_t Count = 0;
    if (DropReference(Count))
        Free();
    return static_cast<std::uint32_t>(Count);
}

bool TQzComponent::GetAutoDestroy() const {
    return AutoDestroyPolicy() == radTrue;
}

void TQzComponent::SetAutoDestroy(bool AValue) {
    FAutoDestroy.store(AValue ? radTrue : radFalse, std::memory_order_relaxed);
}

void TQzComponent::FinishCreate() {
    Inherited::FinishCreate();
    FRefCount.Decrement();
}

bool TQzComponent::BeginDestruction() noexcept {
    if (!Inherited::BeginDestruction())
        return false;
    FRefCount.BeginEnd();
    return true;
}

void TQzComponent::BeforeDestruction() {
    FIsRefusedByCount = FRefCount.Value() != 0;
    if (FIsRefusedByCount)
        throw Exception(SCompRefCountNotZero, {ClassName(), Name()});
    Inherited::BeforeDestruction();
}

// An owner that is destroyed releases a component with references; its last reference destroys it then.
// The last reference may have been released meanwhile without effect, since the destruction had begun.
void TQzComponent::DestructionRefused() noexcept {
    const bool IsByCount = std::exchange(FIsRefusedByCount, false);
    FRefCount.Increment();
    Inherited::DestructionRefused();
    TQzAutoDestroy Undecided = radComputed;
    if (Owner() == nullptr && FRefCount.Value() > 1)
        FAutoDestroy.compare_exchange_strong(Undecided, radTrue, std::memory_order_relaxed);
    FRefCount.CancelEnd();
    std::int32_t Count = 0;
    if (DropReference(Count) && IsByCount)
        detail::FreeQuietly(*this);
}

void TQzComponent::AddBinding(TObject* ASource, const UnicodeString& ASourceProperty, TObject* ADest,
                              const UnicodeString& ADestProperty, TBindings::TCreateOptions AOptions) {
    TBindingExpression* Binding = TBindings::CreateManagedBinding(
        {TBindings::CreateAssociationScope({Associate(ASource, u"src")})}, u"src." + ASourceProperty,
        {TBindings::CreateAssociationScope({Associate(ADest, u"dst")})}, u"dst." + ADestProperty, AOptions);
    try {
        FBindings.Add(Binding);
    } catch (...) {
        TBindings::RemoveBinding(Binding);
        throw;
    }
}

// Removes the bindings from index ACount on.
void TQzComponent::DropBindings(int ACount) {
    while (FBindings.Count() > ACount) {
        TBindings::RemoveBinding(FBindings.Last());
        FBindings.Delete(FBindings.Count() - 1);
    }
}

void TQzComponent::Bind(const UnicodeString& ASrcProperty, TObject* ADest, const UnicodeString& ADestProperty,
                        TBindings::TCreateOptions AOptions) {
    const int Before = FBindings.Count();
    try {
        AddBinding(this, ASrcProperty, ADest, ADestProperty, AOptions);
        AddBinding(ADest, ADestProperty, this, ASrcProperty, AOptions);
    } catch (...) {
        DropBindings(Before);
        throw;
    }
}

void TQzComponent::Bind(const UnicodeString& ASrcProperty, TComponent* ADest,
                        TBindings::TCreateOptions AOptions) {
    Assert(ADest != nullptr && ADest->Observers().CanObserve(TObservers::cControlValueId));
    FLinks.push_back(nullptr);
    TLinkControlToProperty* Link = nullptr;
    try {
        Link = TLinkControlToProperty::Create(this);
        FLinks.back() = Link;
        Link->SetControl(ADest);
        Link->SetTrack(true);
        Link->SetComponent(this);
        Link->SetComponentProperty(ASrcProperty);
        Link->SetActive(true);
        AddBinding(this, ASrcProperty, ADest, Link->ControlValueMember(), AOptions);
    } catch (...) {
        if (Link == nullptr)
            FLinks.pop_back();
        else
            Link->Free();
        throw;
    }
}

void TQzComponent::NotifyBindings(const UnicodeString& APropertyName) {
    TBindings::Notify(this, APropertyName);
}

void TQzComponent::ClearBindings() {
    DropBindings(0);
    while (!FLinks.empty())
        FLinks.back()->Free();
}

void TQzComponent::Notification(TComponent* AComponent, TOperation AOperation) {
    Inherited::Notification(AComponent, AOperation);
    if (AOperation == opRemove)
        if (const auto Found = std::find(FLinks.rbegin(), FLinks.rend(), AComponent); Found != FLinks.rend())
            FLinks.erase(std::next(Found).base());
}

} // namespace qz
