#include <qz/runtime/components/Component.h>

#include <algorithm>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

constexpr TPropInfo cComponentProps[] = {
    Property<&TComponent::Name, &TComponent::SetName>(u"Name"),
    Property<&TComponent::Tag, &TComponent::SetTag>(u"Tag"),
};

// Runs AWork where an exception can go nowhere.
template <class TWork> void Quietly(TWork AWork) noexcept {
    try {
        AWork();
    } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not raise
    }
}

bool Holds(const std::vector<TComponent*>& AList, const TComponent* AComponent) noexcept {
    return std::find(AList.rbegin(), AList.rend(), AComponent) != AList.rend();
}

// Removes the last occurrence, for the last are the first to go.
void Forget(std::vector<TComponent*>& AList, const TComponent* AComponent) noexcept {
    const auto Found = std::find(AList.rbegin(), AList.rend(), AComponent);
    if (Found != AList.rend())
        AList.erase(std::next(Found).base());
}

// Makes room for one more, so that the next push_back cannot fail.
void Grow(std::vector<TComponent*>& AList) {
    if (AList.size() == AList.capacity())
        AList.reserve(2 * AList.size() + 4);
}

} // namespace

QZ_REGISTER_TYPES(TComponent);

constinit const TClassRec TComponent::ClassRec = DescribeComponent<TComponent>(
    u"TComponent",
    {.Unit = u"System", .Properties = cComponentProps, .Interfaces = Interfaces<TComponent, IInterface>()});

TComponent::TComponent(TComponent* AOwner) {
    if (AOwner != nullptr)
        AOwner->InsertComponent(this);
}

// Notifications of the destruction may create components here; those are destroyed as well.
TComponent::~TComponent() {
    FEnding = true;
    Destroying();
    TellPartners(false);
    EndComponents();
    if (FOwner != nullptr)
        Quietly([this] { FOwner->RemoveComponent(this); });
    TellPartners(true);
    EndComponents();
}

void TComponent::EndComponents() noexcept {
    while (!FComponents.empty())
        Quietly([this] { DestroyComponents(); });
}

HRESULT TComponent::QueryInterface(const TGUID& AIid, void** AObject) {
    return detail::QueryObject(*this, AIid, AObject);
}

std::uint32_t TComponent::_AddRef() {
    return 0xFFFFFFFF;
}

std::uint32_t TComponent::_Release() {
    return 0xFFFFFFFF;
}

void TComponent::SetName(const UnicodeString& AName) {
    if (AName == FName)
        return;
    if (!AName.empty() && !IsValidIdent(AName))
        throw EComponentError(SInvalidName, {AName});
    if (FOwner != nullptr)
        FOwner->CheckName(this, AName);
    FName = AName;
}

UnicodeString TComponent::GetNamePath() const {
    return FName;
}

TComponent* TComponent::Components(int AIndex) const {
    if (AIndex < 0 || AIndex >= ComponentCount())
        throw EListError(u"List index out of bounds (%d)", {AIndex});
    return FComponents[static_cast<std::size_t>(AIndex)];
}

TComponent* TComponent::FindComponent(std::u16string_view AName) const noexcept {
    if (AName.empty())
        return nullptr;
    const auto Found = std::find_if(FComponents.begin(), FComponents.end(), [AName](const TComponent* AEach) {
        return SameText(AEach->FName, AName);
    });
    return Found == FComponents.end() ? nullptr : *Found;
}

int TComponent::ComponentIndex() const noexcept {
    if (FOwner == nullptr)
        return -1;
    const auto& All = FOwner->FComponents;
    return static_cast<int>(std::find(All.begin(), All.end(), this) - All.begin());
}

void TComponent::SetComponentIndex(int AIndex) {
    if (FOwner == nullptr)
        return;
    auto& All = FOwner->FComponents;
    const auto Old = All.begin() + ComponentIndex();
    const auto New = All.begin() + std::clamp(AIndex, 0, FOwner->ComponentCount() - 1);
    if (New < Old)
        std::rotate(New, Old, std::next(Old));
    else
        std::rotate(Old, std::next(Old), std::next(New));
}

void TComponent::InsertComponent(TComponent* AComponent) {
    if (AComponent == nullptr || AComponent->FOwner == this)
        return;
    for (const TComponent* Above = this; Above != nullptr; Above = Above->FOwner)
        if (Above == AComponent)
            throw EComponentError(SCircularOwner, {AComponent->FName, AComponent->ClassName()});
    CheckName(AComponent, AComponent->FName);
    Grow(FComponents);
    if (AComponent->FOwner != nullptr)
        LeaveOwner(*AComponent);
    FComponents.push_back(AComponent);
    AComponent->FOwner = this;
    try {
        Notification(AComponent, opInsert);
    } catch (...) {
        Unlink(AComponent);
        throw;
    }
}

// A notification of the old owner may end the component, which then leaves the partners of this one.
void TComponent::LeaveOwner(TComponent& AComponent) {
    const bool WasPartner = Holds(FPartners, &AComponent);
    FreeNotification(&AComponent);
    AComponent.FOwner->RemoveComponent(&AComponent);
    if (!Holds(FPartners, &AComponent))
        throw EComponentError(u"A component was destroyed while it changed its owner");
    if (!WasPartner)
        RemoveFreeNotification(&AComponent);
}

void TComponent::RemoveComponent(TComponent* AComponent) {
    if (AComponent == nullptr || !Holds(FComponents, AComponent))
        return;
    try {
        Notification(AComponent, opRemove);
    } catch (...) {
        Unlink(AComponent);
        throw;
    }
    Unlink(AComponent);
}

// Notifications may have destroyed AComponent; it is then no longer in the list.
void TComponent::Unlink(TComponent* AComponent) noexcept {
    if (!Holds(FComponents, AComponent))
        return;
    Forget(FComponents, AComponent);
    AComponent->FOwner = nullptr;
}

// A component whose whole tree is going is spared the word to its brothers, which go as well, and must not
// stay here when it refuses; nor must one that is on its way already.
void TComponent::DestroyComponents() {
    while (!FComponents.empty()) {
        TComponent* Last = FComponents.back();
        const bool IsEnding = Last->FEnding;
        if (FState.Contains(csDestroying) || IsEnding)
            Unlink(Last);
        if (!IsEnding)
            Last->Free();
    }
}

void TComponent::FreeNotification(TComponent* AComponent) {
    if (AComponent == nullptr || AComponent == this)
        return;
    if (!Holds(FPartners, AComponent)) {
        Grow(FPartners);
        Grow(AComponent->FPartners);
        FPartners.push_back(AComponent);
        AComponent->FPartners.push_back(this);
        AComponent->FState += csFreeNotification;
    }
    FState += csFreeNotification;
}

void TComponent::RemoveFreeNotification(TComponent* AComponent) noexcept {
    if (AComponent == nullptr || !Holds(FPartners, AComponent))
        return;
    Forget(FPartners, AComponent);
    Forget(AComponent->FPartners, this);
    if (FPartners.empty())
        FState -= csFreeNotification;
    if (AComponent->FPartners.empty())
        AComponent->FState -= csFreeNotification;
}

// At first not those who hear of it from the owner, once and later; then all that did not hear, since one
// before them raised.
void TComponent::TellPartners(bool AAll) noexcept {
    const auto HearsOtherwise = [&](const TComponent* APartner) {
        return !AAll && FOwner != nullptr && (APartner == FOwner || APartner->FOwner == FOwner);
    };
    for (;;) {
        const auto Next = std::find_if_not(FPartners.rbegin(), FPartners.rend(), HearsOtherwise);
        if (Next == FPartners.rend())
            return;
        TComponent* Partner = *Next;
        RemoveFreeNotification(Partner);
        Quietly([&] { Partner->Notification(this, opRemove); });
    }
}

// From the last to the first: one that ends components hides none of the others, though some may hear twice.
void TComponent::Notification(TComponent* AComponent, TOperation AOperation) {
    if (AOperation == opRemove)
        RemoveFreeNotification(AComponent);
    std::exception_ptr Error;
    for (std::size_t I = FComponents.size(); I > 0; I = std::min(I - 1, FComponents.size())) {
        TComponent* Each = FComponents[I - 1];
        if (Each == AComponent)
            continue;
        try {
            Each->Notification(AComponent, AOperation);
        } catch (...) {
            if (!Error)
                Error = std::current_exception();
        }
    }
    if (Error)
        std::rethrow_exception(Error);
}

void TComponent::Destroying() noexcept {
    if (FState.Contains(csDestroying))
        return;
    FState += csDestroying;
    for (TComponent* Each : FComponents)
        Each->Destroying();
}

void TComponent::ClearDestroying() noexcept {
    FState -= csDestroying;
    for (TComponent* Each : FComponents)
        Each->ClearDestroying();
}

void TComponent::BeforeDestruction() {
    Inherited::BeforeDestruction();
    Destroying();
}

bool TComponent::BeginDestruction() noexcept {
    return !FEnding.exchange(true);
}

void TComponent::DestructionRefused() noexcept {
    FEnding = false;
    ClearDestroying();
    Inherited::DestructionRefused();
}

TObservers& TComponent::Observers() {
    if (FObservers == nullptr)
        FObservers = std::make_unique<TObservers>(*this);
    return *FObservers;
}

void TComponent::CheckName(const TComponent* AComponent, std::u16string_view AName) const {
    const TComponent* Found = FindComponent(AName);
    if (Found != nullptr && Found != AComponent)
        throw EComponentError(SDuplicateName, {AName});
}

} // namespace qz
