// TQzObjectEx: a TQzObject that notifies others of its destruction and is notified of theirs.
//
//     class TView : public TQzObjectEx {
//         ...
//         void OnObjectDestroyed(TObject* AObject) override { if (AObject == FModel) FModel = nullptr; }
//     };
//     View->FreeNotification(Model);     // a link in both directions, until one of the two is freed
//
// Links on one object are made and removed by one thread at a time.
#pragma once

#include <vector>

#include <qz/common/uQzClasses/QzObject.h>

namespace qz {

class TFiler;

class IQzObjectFreeNotificationEvent : public IQzObject {
public:
    static constexpr TGUID IID = Guid("{BBECB66F-1397-4FFA-AFE5-C7BD63A1EAC6}");

    // AObject is about to be destroyed and must not be kept. It is still complete, unless it ends because its
    // construction failed: then only the part that is a TQzObjectEx is left.
    virtual void OnObjectDestroyed(TObject* AObject) = 0;

protected:
    ~IQzObjectFreeNotificationEvent() = default;
};

class IQzObjectEx : public IQzObject {
public:
    static constexpr TGUID IID = Guid("{66D757F3-6274-47EC-95A9-39B144271EA9}");

    // Forgets AObject on this side.
    virtual void RemoveNotification(TObject* AObject) = 0;
    // Links this object and the one after AObject.
    virtual void FreeNotificationEx(IQzObjectFreeNotificationEvent* AObject) = 0;
    // Removes the link on both sides.
    virtual void RemoveFreeNotificationEx(IQzObject* AObject) = 0;

protected:
    ~IQzObjectEx() = default;
};

class QZ_API TQzObjectEx : public TQzObject, public IQzObjectFreeNotificationEvent, public IQzObjectEx {
    QZ_CLASS(TQzObjectEx, TQzObject)
    QZ_INTERFACE_COUNTING(TQzObject)

public:
    TObject* Implementor() override { return this; }

    // Does nothing here. The object called is held by a reference meanwhile, so it cannot free itself; one
    // that loses the last of its other references in here ends when the call is over.
    void OnObjectDestroyed(TObject* AObject) override;

    // Links the two: each is notified of the destruction of the other. Idempotent.
    void FreeNotification(TQzObjectEx* AObject);
    void FreeNotificationEx(IQzObjectFreeNotificationEvent* AObject) override;
    void RemoveFreeNotification(TQzObjectEx* AObject);
    void RemoveFreeNotificationEx(IQzObject* AObject) override;
    void RemoveNotification(TObject* AObject) override;

    // Copies from ASource by its AssignTo. A null source, and a class that overrides neither, raise
    // EConvertError that names both classes.
    virtual void Assign(TQzObjectEx* ASource);
    virtual void AssignTo(TQzObjectEx* ADest);
    virtual void DefineProperties(TFiler& AFiler);
    // The object that this one belongs to; null here.
    virtual TObject* GetOwner() const { return nullptr; }
    // The class name; after the owner's name path and a dot if the owner has one.
    virtual UnicodeString GetNamePath() const;

    // Notifies all linked objects, from the last to the first, and removes the links. An exception of one of
    // them keeps this object, and the links not yet dealt with.
    void BeforeDestruction() override;

protected:
    TQzObjectEx() noexcept = default;
    ~TQzObjectEx() override;

private:
    bool AddNotification(TObject* AObject);
    void NotifyLast();
    void DropLast() noexcept;
    [[noreturn]] static void AssignError(const TQzObjectEx* ASource, const TQzObjectEx* ADest);

    std::vector<TObject*> FFreeNotifies; // the linked objects, not owned
};

} // namespace qz
