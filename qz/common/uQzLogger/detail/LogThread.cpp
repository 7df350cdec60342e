#include <qz/common/uQzLogger/detail/LogThread.h>

#include <cstddef>
#include <memory>
#include <new>

namespace qz::detail {
namespace {

TQzCriticalSection*& TreeSection() {
    static auto* Result = new TQzCriticalSection;
    return Result;
}

} // namespace

TLogThread& ThisLogThread() noexcept {
    constinit static thread_local TLogThread Result;
    return Result;
}

void BeginBusy() noexcept {
    ++ThisLogThread().Busy;
}

void EndBusy() noexcept {
    TLogThread& Thread = ThisLogThread();
    if (--Thread.Busy == 0 && Thread.Queue != nullptr)
        Settle();
}

TCriticalSection& TStateHold::Section() noexcept {
    // Never destroyed: threads may log during program exit.
    alignas(TCriticalSection) static std::byte Storage[sizeof(TCriticalSection)];
    static auto* const Result = new (Storage) TCriticalSection;
    return *Result;
}

void TTreeLock::Enter() noexcept {
    TreeSection()->Enter();
    ++ThisLogThread().Trees;
}

bool TTreeLock::TryEnter(std::uint32_t ATimeOut) noexcept {
    const bool Result = TreeSection()->TryEnter(ATimeOut);
    ThisLogThread().Trees += Result ? 1 : 0;
    return Result;
}

void TTreeLock::Leave() noexcept {
    TreeSection()->Leave();
    TLogThread& Thread = ThisLogThread();
    if (--Thread.Trees == 0 && Thread.Queue != nullptr)
        Settle();
}

void TTreeLock::BeginChild() {
    if (TryEnter(0))
        Leave();
    else
        TreeSection() = new TQzCriticalSection;
}

TTreeHold::TTreeHold() noexcept {
    FIsHeld = !ThisLogThread().MayWait() ? TTreeLock::TryEnter(0) : (TTreeLock::Enter(), true);
}

TTreeHold::~TTreeHold() {
    if (FIsHeld)
        TTreeLock::Leave();
}

} // namespace qz::detail
