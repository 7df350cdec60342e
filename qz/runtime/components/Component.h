// TComponent: an object with a name and an owner that frees it. It is notified when other components come and
// go.
//
//     class TServer : public TComponent {
//         QZ_CLASS(TServer, TComponent)
//     protected:
//         explicit TServer(TComponent* AOwner) : TComponent(AOwner) {}
//     };
//     const TClassRec TServer::ClassRec =                      // in the .cpp, with DescribeComponent.h
//         DescribeComponent<TServer>(u"TServer", {.Unit = u"Demo"});
//
//     TServer* Server = TServer::Create(Application);          // freed with Application
//     Server->SetName(u"Main");
//
// A component, its owner and its partners belong to one thread.
#pragma once

#include <atomic>
#include <memory>
#include <vector>

#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/components/Observers.h>
#include <qz/runtime/objects/Interface.h>
#include <qz/runtime/objects/Persistent.h>

namespace qz {

inline constexpr TTextConstant SInvalidName = u"'%s' is not a valid component name";
inline constexpr TTextConstant SDuplicateName = u"A component named %s already exists";
inline constexpr TTextConstant SCircularOwner = u"A component cannot own itself: '%s' (%s)";

enum class TOperation : std::uint8_t { opInsert, opRemove };
using enum TOperation;

enum class TComponentStateItem : std::uint8_t {
    csDestroying,      // the component or its owner is being destroyed
    csFreeNotification // another component called FreeNotification
};
using enum TComponentStateItem;
using TComponentState = TSet<TComponentStateItem, 8>;

class QZ_API TComponent : public TCreateOnly<TPersistent>, public IInterface {
    QZ_CLASS(TComponent, TPersistent)

public:
    // The way to make a component of a class that is known at run time only.
    using TVirtualCreate = TVirtualConstructor<TComponent, TComponent*(TComponent* AOwner)>;

    TComponent(const TComponent&) = delete;
    TComponent& operator=(const TComponent&) = delete;

    // The interfaces that the class lists. A component is not counted: both operations below give 0xFFFFFFFF
    // and do nothing, until a descendant overrides them.
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override;
    std::uint32_t _AddRef() override;
    std::uint32_t _Release() override;

    TComponent* Owner() const noexcept { return FOwner; }
    // A published property. An empty name, or an identifier of letters, digits and underscores that no other
    // component of the owner has, in either case of letters; anything else raises EComponentError.
    const UnicodeString& Name() const noexcept { return FName; }
    virtual void SetName(const UnicodeString& AName);
    // A published property for free use.
    std::int64_t Tag() const noexcept { return FTag; }
    void SetTag(std::int64_t AValue) noexcept { FTag = AValue; }
    TComponentState ComponentState() const noexcept { return FState; }
    // The name.
    UnicodeString GetNamePath() const override;

    // The components that this one owns, in the order in which they are kept. An index out of range raises
    // EListError.
    int ComponentCount() const noexcept { return static_cast<int>(FComponents.size()); }
    TComponent* Components(int AIndex) const;
    // The owned component of that name, ignoring case; null when there is none, and for an empty name.
    TComponent* FindComponent(std::u16string_view AName) const noexcept;
    // The place among the components of the owner, -1 without an owner.
    int ComponentIndex() const noexcept;
    // Moves there, or to the nearer end.
    void SetComponentIndex(int AIndex);

    // Becomes the owner of AComponent, which leaves its old owner. Raises EComponentError, and changes
    // nothing, when the name is taken here or when AComponent is this one or owns it; also if a notification
    // of the old owner destroys AComponent.
    void InsertComponent(TComponent* AComponent);
    // Lets go of an owned component; ignores one that is not owned by this.
    void RemoveComponent(TComponent* AComponent);
    // Frees the owned components, from the last to the first. If one refuses, its exception reaches the
    // caller; it stays owned, except by an owner that is being destroyed, without which it lives on.
    void DestroyComponents();

    // Requests that each is notified (Notification, opRemove) when the other is destroyed. Idempotent.
    void FreeNotification(TComponent* AComponent);
    void RemoveFreeNotification(TComponent* AComponent) noexcept;

    // Marks this component and all it owns with csDestroying.
    void Destroying() noexcept;
    void BeforeDestruction() override;

    // Made at the first call.
    TObservers& Observers();
    // Of a control: the name of the published property that is its value; empty for any other component.
    virtual UnicodeString GetControlValueMember() const { return {}; }

protected:
    // AOwner may be null. The owner's Notification meets this component before it is complete.
    explicit TComponent(TComponent* AOwner);
    // Notifies the partners, frees the owned components and leaves the owner. Their exceptions are dropped.
    // The descendant's part is destroyed by then: others may compare the address and read the name, no more.
    ~TComponent() override;

    bool BeginDestruction() noexcept override;
    void DestructionRefused() noexcept override;
    TPersistent* GetOwner() const override { return FOwner; }
    // True from the beginning of Free on.
    bool IsEnding() const noexcept { return FEnding; }
    // A component has come to or goes from this one or an owner above it (of which this one hears too), or
    // one that FreeNotification was asked of ends. May end other components. Overrides call the inherited
    // one, which passes the word on to all owned components and then raises the first exception of theirs.
    virtual void Notification(TComponent* AComponent, TOperation AOperation);
    // Whether the component supports this observer id; see TObservers.
    virtual bool CanObserve(int) const { return false; }

private:
    friend class TObservers;
    void CheckName(const TComponent* AComponent, std::u16string_view AName) const;
    void Unlink(TComponent* AComponent) noexcept;
    void LeaveOwner(TComponent& AComponent);
    void TellPartners(bool AAll) noexcept;
    void EndComponents() noexcept;
    void ClearDestroying() noexcept;

    TComponent* FOwner = nullptr;
    UnicodeString FName;
    std::int64_t FTag = 0;
    std::vector<TComponent*> FComponents;
    std::vector<TComponent*> FPartners; // each of them holds this one too
    std::unique_ptr<TObservers> FObservers;
    TComponentState FState;
    std::atomic<bool> FEnding{false}; // also read by the thread that releases the last reference
};

using TComponentClass = ClassRef<TComponent>;

} // namespace qz
