#include <qz/runtime/threads/Event.h>

#include <chrono>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/threads/CriticalSection.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"System";

} // namespace

QZ_REGISTER_TYPES(TCriticalSection, TEvent, TSimpleEvent);

constinit const TClassRec TCriticalSection::ClassRec =
    DescribeClass<TCriticalSection>(u"TCriticalSection", {.Unit = cUnit});
constinit const TClassRec TEvent::ClassRec = DescribeClass<TEvent>(u"TEvent", {.Unit = cUnit});
constinit const TClassRec TSimpleEvent::ClassRec =
    DescribeClass<TSimpleEvent>(u"TSimpleEvent", {.Unit = cUnit});

// A waiter may free the event as soon as it sees the signal, so SetEvent must not touch it afterwards:
// it notifies under the mutex, and the destructor passes through the mutex once more.
TEvent::~TEvent() {
    const std::lock_guard Hold(FMutex);
}

TWaitResult TEvent::WaitFor(std::uint32_t ATimeOut) {
    std::unique_lock Hold(FMutex);
    const auto IsSignalled = [this] { return FSignalled; };
    if (ATimeOut == cInfinite)
        FChanged.wait(Hold, IsSignalled);
    else if (!FChanged.wait_until(
                 Hold, std::chrono::steady_clock::now() + std::chrono::milliseconds(ATimeOut), IsSignalled))
        return wrTimeout;
    if (!FManualReset)
        FSignalled = false;
    return wrSignaled;
}

void TEvent::SetEvent() {
    const std::lock_guard Hold(FMutex);
    FSignalled = true;
    if (FManualReset)
        FChanged.notify_all();
    else
        FChanged.notify_one();
}

void TEvent::ResetEvent() {
    const std::lock_guard Hold(FMutex);
    FSignalled = false;
}

} // namespace qz
