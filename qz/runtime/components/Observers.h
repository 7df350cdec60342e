// TObservers: the observers of a component's changes, above all of the value that a control shows.
//
//     class TEdit : public TComponent {
//         ...
//         void SetText(const UnicodeString& AText) {
//             FText = AText;
//             Observers().ControlValueUpdate();
//         }
//         UnicodeString GetControlValueMember() const override { return u"Text"; }
//     protected:
//         bool CanObserve(int AId) const override { return AId == TObservers::cControlValueId; }
//     };
//
// Observers belong to the thread of their component.
#pragma once

#include <memory>
#include <vector>

#include <qz/runtime/objects/Interface.h>

namespace qz {

class TComponent;

class IObserver : public IInterface {
public:
    static constexpr TGUID IID = Guid("{7C1A50E3-2D3F-4E0B-9C58-61B7F0D9A3E4}");

    // The component ends and has already forgotten this observer.
    virtual void Removed() = 0;
};

class IControlValueObserver : public IObserver {
public:
    static constexpr TGUID IID = Guid("{B95F3C0E-8A41-4C67-A0D2-3E9B1C5D7F26}");

    // The value is being changed by the user and not yet accepted, as with each key.
    virtual void ControlValueModified() = 0;
    // The value has changed and was accepted.
    virtual void ControlValueUpdate() = 0;
};

class QZ_API TObservers {
public:
    static constexpr int cEditLinkId = 1;
    static constexpr int cEditGridLinkId = 2;
    static constexpr int cPositionLinkId = 3;
    static constexpr int cControlValueId = 4;

    explicit TObservers(const TComponent& AOwner) noexcept : FOwner(AOwner) {}
    TObservers(const TObservers&) = delete;
    TObservers& operator=(const TObservers&) = delete;
    // Calls Removed of each observer.
    ~TObservers();

    // True when the component offers to be observed for that id.
    bool CanObserve(int AId) const;
    bool IsObserving(int AId) const noexcept;

    // Keeps AObserver without counting it, so an observer removes itself before it ends. Under
    // cControlValueId it is an IControlValueObserver. Adding twice changes nothing. Raises EInvalidOperation
    // when the component does not offer the id.
    void AddObserver(int AId, IObserver* AObserver);
    void RemoveObserver(int AId, IObserver* AObserver) noexcept;

    // Called by a control when its value changes; notifies the observers of cControlValueId. An observer may
    // remove itself or others meanwhile, or free the control: the others are then not notified.
    void ControlValueModified() { Tell(&IControlValueObserver::ControlValueModified); }
    void ControlValueUpdate() { Tell(&IControlValueObserver::ControlValueUpdate); }

private:
    struct TEntry {
        int Id;
        IObserver* Observer;
        friend bool operator==(const TEntry&, const TEntry&) noexcept = default;
    };
    void Tell(void (IControlValueObserver::*AOperation)());

    const TComponent& FOwner;
    // Shared with a round of telling, which the end of the component outlives.
    std::shared_ptr<std::vector<TEntry>> FEntries = std::make_shared<std::vector<TEntry>>();
};

} // namespace qz
