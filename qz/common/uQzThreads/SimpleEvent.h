// IQzSimpleEvent: a reference-counted event that a thread shares with its waiters.
//
//     Ref<IQzSimpleEvent> Done = TQzSimpleEvent::Create();
//     std::thread Worker([Done] { Done->SetEvent(); });
//     if (Done->WaitFor(500) == wrSignaled) ...
//
// Manual reset: after SetEvent every WaitFor returns at once, until ResetEvent. Any number of threads may use
// one.
#pragma once

#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/threads/Event.h>

namespace qz {

class IQzSimpleEvent : public IInterface {
public:
    static constexpr TGUID IID = Guid("{3E6C3974-3559-4114-A07F-60B03539C614}");

    // Waits at most ATimeOut milliseconds: wrSignaled or wrTimeout.
    virtual TWaitResult WaitFor(std::uint32_t ATimeOut) = 0;
    virtual void SetEvent() = 0;
    virtual void ResetEvent() = 0;

protected:
    ~IQzSimpleEvent() = default;
};

class QZ_API TQzSimpleEvent : public TInterfacedObject, public IQzSimpleEvent {
    QZ_CLASS(TQzSimpleEvent, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    TWaitResult WaitFor(std::uint32_t ATimeOut) override;
    void SetEvent() override;
    void ResetEvent() override;

protected:
    TQzSimpleEvent() = default;
    ~TQzSimpleEvent() override = default;

private:
    TSimpleEvent FSimpleEvent;
};

} // namespace qz
