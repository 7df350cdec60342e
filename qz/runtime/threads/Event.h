// TEvent: a signal that threads wait for, and TSimpleEvent, one that stays until it is reset.
//
//     TSimpleEvent Done;
//     std::thread Worker([&] { Done.SetEvent(); });
//     if (Done.WaitFor(500) == wrSignaled) ...
//
// Any number of threads may use one event at the same time. An event may be freed by the thread that it woke.
#pragma once

#include <condition_variable>
#include <mutex>

#include <qz/runtime/objects/Object.h>

namespace qz {

enum class TWaitResult : std::uint8_t { wrSignaled, wrTimeout, wrAbandoned, wrError };
using enum TWaitResult;

// As a time-out: wait without a limit.
inline constexpr std::uint32_t cInfinite = 0xFFFFFFFF;

class QZ_API TEvent : public TObject {
    QZ_CLASS(TEvent, TObject)

public:
    // AManualReset: a signal stays until ResetEvent; otherwise it ends with the first wait that sees it.
    explicit TEvent(bool AManualReset = true, bool AInitialState = false) noexcept
        : FManualReset(AManualReset),
          FSignalled(AInitialState) {}
    ~TEvent() override;

    // Waits at most ATimeOut milliseconds, cInfinite without limit: wrSignaled or wrTimeout. 0 only tests.
    TWaitResult WaitFor(std::uint32_t ATimeOut = cInfinite);
    void SetEvent();
    void ResetEvent();

private:
    std::mutex FMutex;
    std::condition_variable FChanged;
    const bool FManualReset;
    bool FSignalled;
};

// Manual reset, not signalled at first.
class QZ_API TSimpleEvent : public TEvent {
    QZ_CLASS(TSimpleEvent, TEvent)
};

} // namespace qz
