// TLinkControlToProperty: lets a property of a component follow the value of a control.
//
//     TLinkControlToProperty* Link = TLinkControlToProperty::Create(Model);
//     Link->SetControl(Edit);
//     Link->SetComponent(Model);
//     Link->SetComponentProperty(u"Name");
//     Link->SetTrack(true);
//     Link->SetActive(true);               // Edit shows the name; input changes the name
//
// A control is any component that can be observed for its value; see TObservers. The link belongs to the
// thread of its control and its component.
#pragma once

#include <memory>

#include <qz/runtime/components/Component.h>
#include <qz/runtime/objects/InterfacedObject.h>

namespace qz {

class QZ_API TLinkControlToProperty : public TComponent, public IControlValueObserver {
    QZ_CLASS(TLinkControlToProperty, TComponent)
    QZ_INTERFACE_COUNTING(TComponent)

public:
    // The control, not owned; null if none is set or it was destroyed. Raises EComponentError for a component
    // whose value cannot be observed.
    TComponent* Control() const noexcept { return FControl; }
    void SetControl(TComponent* AControl);
    // Whether the property follows each change, or only those that the control has accepted.
    bool Track() const noexcept { return FTrack; }
    void SetTrack(bool AValue) noexcept { FTrack = AValue; }
    // The component with the property, not owned; null if none is set or it was destroyed.
    TComponent* Component() const noexcept { return FComponent; }
    void SetComponent(TComponent* AComponent);
    // A published property, or several with points between.
    const UnicodeString& ComponentProperty() const noexcept { return FComponentProperty; }
    void SetComponentProperty(const UnicodeString& AName);

    // An active link works as soon as it has all of the above. It then writes the property to the control,
    // once, and from then on writes each changed value of the control to the property and notifies the
    // bindings. Raises EEvaluatorError, and becomes inactive, when a property is unknown or cannot be read
    // and written.
    bool Active() const noexcept { return FActive; }
    void SetActive(bool AValue);

    // The published property that is the control's value; empty without a control.
    UnicodeString ControlValueMember() const;

    void Removed() override;
    void ControlValueModified() override;
    void ControlValueUpdate() override;

protected:
    explicit TLinkControlToProperty(TComponent* AOwner) : TComponent(AOwner) {}
    ~TLinkControlToProperty() override;

    void Notification(TComponent* AComponent, TOperation AOperation) override;

private:
    void SetPart(TComponent*& APart, TComponent* AComponent);
    void Connect();
    void Disconnect() noexcept;
    void FillControl();
    void WriteProperty();

    TComponent* FControl = nullptr;
    TComponent* FComponent = nullptr;
    UnicodeString FComponentProperty;
    bool FTrack = false;
    bool FActive = false;
    bool FConnected = false;
    std::shared_ptr<bool> FUpdating = std::make_shared<bool>(false);
};

} // namespace qz
