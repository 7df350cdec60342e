#include <qz/runtime/components/LinkControlToProperty.h>

#include <qz/runtime/components/Bindings.h>
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

using TLink = TLinkControlToProperty;

constexpr TPropInfo cLinkProps[] = {
    Property<&TLink::Control, &TLink::SetControl>(u"Control"),
    Property<&TLink::Track, &TLink::SetTrack>(u"Track"),
    Property<&TLink::Component, &TLink::SetComponent>(u"Component"),
    Property<&TLink::ComponentProperty, &TLink::SetComponentProperty>(u"ComponentProperty"),
    Property<&TLink::Active, &TLink::SetActive>(u"Active"),
};

detail::TBoundPath PathOf(TComponent* ARoot, const UnicodeString& AProperty) {
    return {ARoot, detail::TBoundPath::Split(AProperty), AProperty};
}

// Stops a change from returning to the link that made it. The flag may outlive the link, which a
// setter may end.
class TUpdating {
public:
    explicit TUpdating(std::shared_ptr<bool> AFlag) noexcept
        : FFlag(std::move(AFlag)),
          FOld(std::exchange(*FFlag, true)) {}
    TUpdating(const TUpdating&) = delete;
    TUpdating& operator=(const TUpdating&) = delete;
    ~TUpdating() { *FFlag = FOld; }

private:
    std::shared_ptr<bool> FFlag;
    bool FOld;
};

} // namespace

QZ_REGISTER_TYPES(TLinkControlToProperty);

constinit const TClassRec TLinkControlToProperty::ClassRec = DescribeComponent<TLinkControlToProperty>(
    u"TLinkControlToProperty",
    {.Unit = u"System",
     .Properties = cLinkProps,
     .Interfaces = Interfaces<TLink, IControlValueObserver, IObserver>()});

TLinkControlToProperty::~TLinkControlToProperty() {
    Disconnect();
}

void TLinkControlToProperty::SetControl(TComponent* AControl) {
    if (AControl != nullptr && !AControl->Observers().CanObserve(TObservers::cControlValueId))
        throw EComponentError(u"The value of '%s' (%s) cannot be observed",
                              {AControl->Name(), AControl->ClassName()});
    SetPart(FControl, AControl);
}

void TLinkControlToProperty::SetComponent(TComponent* AComponent) {
    SetPart(FComponent, AComponent);
}

void TLinkControlToProperty::SetPart(TComponent*& APart, TComponent* AComponent) {
    if (APart == AComponent)
        return;
    Disconnect();
    TComponent* Old = std::exchange(APart, AComponent);
    if (Old != FControl && Old != FComponent)
        RemoveFreeNotification(Old);
    FreeNotification(AComponent);
    Connect();
}

void TLinkControlToProperty::SetComponentProperty(const UnicodeString& AName) {
    if (AName == FComponentProperty)
        return;
    Disconnect();
    FComponentProperty = AName;
    Connect();
}

void TLinkControlToProperty::SetActive(bool AValue) {
    if (AValue == FActive)
        return;
    FActive = AValue;
    if (AValue)
        Connect();
    else
        Disconnect();
}

UnicodeString TLinkControlToProperty::ControlValueMember() const {
    return FControl == nullptr ? UnicodeString() : FControl->GetControlValueMember();
}

void TLinkControlToProperty::Connect() {
    if (!FActive || FConnected || FControl == nullptr || FComponent == nullptr || FComponentProperty.empty())
        return;
    try {
        FillControl();
        FControl->Observers().AddObserver(TObservers::cControlValueId, this);
        FConnected = true;
    } catch (...) {
        FActive = false;
        throw;
    }
}

void TLinkControlToProperty::Disconnect() noexcept {
    if (std::exchange(FConnected, false))
        FControl->Observers().RemoveObserver(TObservers::cControlValueId, this);
}

void TLinkControlToProperty::FillControl() {
    const TUpdating Updating(FUpdating);
    const detail::TBoundPath Source = PathOf(FComponent, FComponentProperty);
    const detail::TBoundPath Target = PathOf(FControl, ControlValueMember());
    for (const bool ToWrite : {false, true}) {
        Source.Check(ToWrite);
        Target.Check(ToWrite);
    }
    TBoundValue Value;
    if (Source.Read(Value))
        Target.Write(Value);
}

void TLinkControlToProperty::WriteProperty() {
    if (*FUpdating || !FConnected)
        return;
    const TUpdating Updating(FUpdating);
    TBoundValue Value;
    if (!PathOf(FControl, ControlValueMember()).Read(Value))
        return;
    // The setter may end this link: nothing of it is looked at from here on.
    const auto [Object, Prop] = PathOf(FComponent, FComponentProperty).Write(Value);
    if (Object != nullptr)
        TBindings::Notify(Object, Prop->Name);
}

void TLinkControlToProperty::Removed() {
    FConnected = false;
    FControl = nullptr;
}

void TLinkControlToProperty::ControlValueModified() {
    if (FTrack)
        WriteProperty();
}

void TLinkControlToProperty::ControlValueUpdate() {
    WriteProperty();
}

void TLinkControlToProperty::Notification(TComponent* AComponent, TOperation AOperation) {
    Inherited::Notification(AComponent, AOperation);
    if (AOperation != opRemove)
        return;
    if (AComponent == FControl) {
        Disconnect();
        FControl = nullptr;
    }
    if (AComponent == FComponent) {
        Disconnect();
        FComponent = nullptr;
    }
}

} // namespace qz
