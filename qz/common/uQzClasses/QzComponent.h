// TQzComponent: a component whose life may be that of the references to it, and whose properties can follow
// others.
//
//     Ref<IQzComponent> Server = TQzServer::Create(nullptr); // no owner: destroyed with its last reference
//     TQzServer::Create(Application);                          // with an owner: only the owner frees it
//
//     View->Bind(u"Title", Model, u"Name", {});                // Title follows Name, and Name follows Title
//     void TView::SetTitle(const UnicodeString& ATitle) {
//         FTitle = ATitle;
//         NotifyBindings(u"Title");
//     }
//
// The count is safe on any number of threads; all else belongs to one thread, as with any component.
#pragma once

#include <atomic>

#include <qz/common/uQzClasses/QzObject.h>
#include <qz/runtime/components/Bindings.h>
#include <qz/runtime/components/LinkControlToProperty.h>
#include <qz/runtime/lists/ObjectList.h>

namespace qz {

class IQzComponent : public IInterface {
public:
    static constexpr TGUID IID = Guid("{9BA338F4-38EC-4174-9B8B-6D6B6A9BA328}");

    virtual bool GetAutoDestroy() const = 0;
    virtual void SetAutoDestroy(bool AValue) = 0;
    virtual TComponent* _GetOwner() const = 0;

protected:
    ~IQzComponent() = default;
};

inline constexpr TTextConstant SCompRefCountNotZero =
    u"An instance of %s with the name %s is destroyed while it's refcount is not 0!";

class QZ_API TQzComponent : public TComponent, public IQzComponent, public IQzObject {
    QZ_CLASS(TQzComponent, TComponent)

public:
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override;
    // The first reference to a component without owner decides that the last one destroys it.
    std::uint32_t _AddRef() override;
    std::uint32_t _Release() override;

    // True if the last reference destroys the component.
    bool GetAutoDestroy() const override;
    void SetAutoDestroy(bool AValue) override;
    TQzAutoDestroy AutoDestroyPolicy() const noexcept { return FAutoDestroy.load(std::memory_order_relaxed); }
    int RefCount() const noexcept { return FRefCount.Value(); }
    TObject* Implementor() override { return this; }
    TComponent* _GetOwner() const override { return Owner(); }

    // Binds two published properties to each other: a change of either, reported by NotifyBindings or
    // TBindings::Notify, is written to the other. Property paths may have points. Errors of the binding
    // engine go to the caller, and no binding is left after then.
    void Bind(const UnicodeString& ASrcProperty, TObject* ADest, const UnicodeString& ADestProperty,
              TBindings::TCreateOptions AOptions = {});
    // The same with the value of a control, whose changes reach the property without a notification: a link
    // that this component owns brings them. EAssertionFailed, "Assertion failure", when ADest cannot be
    // observed for its value.
    void Bind(const UnicodeString& ASrcProperty, TComponent* ADest, TBindings::TCreateOptions AOptions = {});
    // Notifies the bindings of a changed property of this component. A setter calls it.
    void NotifyBindings(const UnicodeString& APropertyName);
    // Ends all bindings that Bind made, the links to controls included.
    void ClearBindings();

    // Raises Exception with SCompRefCountNotZero while references remain; the component then lives on. One
    // whose owner is destroyed meanwhile has no owner, and is destroyed with its last reference.
    void BeforeDestruction() override;

protected:
    // Releases the reference that guards the component during its construction.
    void FinishCreate() override;
    bool BeginDestruction() noexcept override;
    void DestructionRefused() noexcept override;
    explicit TQzComponent(TComponent* AOwner);
    ~TQzComponent() override;

    void Notification(TComponent* AComponent, TOperation AOperation) override;
    // Takes a reference back; true when the component has to end now. For a _Release that does more than
    // that.
    bool DropReference(std::int32_t& ACount);
    // Counts a reference unless there is none left, as of a component that ends; false then.
    bool TryAddReference() noexcept { return FRefCount.IncrementUnlessZero(); }

private:
    void AddBinding(TObject* ASource, const UnicodeString& ASourceProperty, TObject* ADest,
                    const UnicodeString& ADestProperty, TBindings::TCreateOptions AOptions);
    void DropBindings(int ACount);

    friend class TQzPolicyHold;
    TRefCount FRefCount{1};
    bool FIsRefusedByCount = false; // used by the thread that destroys the component
    std::atomic<TQzAutoDestroy> FAutoDestroy{radComputed};
    TObjectList<TBindingExpression> FBindings{false}; // the binding engine ends them
    std::vector<TComponent*> FLinks;                  // the links among the owned components
};

} // namespace qz
