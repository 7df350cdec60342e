#include <qz/runtime/threads/detail/MainQueue.h>

#include <algorithm>
#include <chrono>
#include <memory>

#include <qz/platform/Fork.h>
#include <qz/platform/Threads.h>

namespace qz {
namespace {

// The address of a thread-local variable identifies a thread, also in the child of a fork.
thread_local char GSelf = 0;

struct TMainThread {
    const char* Self;
    std::uint32_t Id;
};

const TMainThread& MainThread() noexcept {
    static const TMainThread Main{&GSelf, platform::CurrentThreadId()};
    return Main;
}

// Asked once while the library loads, which the main thread does.
[[maybe_unused]] const TMainThread& GLoadedBy = MainThread();

} // namespace

bool TThread::IsMainThread() noexcept {
    return &GSelf == MainThread().Self;
}

std::uint32_t TThread::MainThreadID() noexcept {
    return IsMainThread() ? CurrentThreadID() : MainThread().Id;
}

namespace detail {

TMainQueue& TMainQueue::Instance() {
    static auto* const Queue = new TMainQueue;
    return *Queue;
}

void TMainQueue::BeginChild() {
    std::construct_at(&FChanged);
    FMutex.unlock();
}

[[maybe_unused]] static const bool GIsWatched = [] {
    platform::AroundFork(
        platform::TForkRank::MainQueue, [] { TMainQueue::Instance().BeginFork(); },
        [] { TMainQueue::Instance().EndFork(); }, [] { TMainQueue::Instance().BeginChild(); });
    return true;
}();

// An exception of the wake procedure is dropped; the caller's work is queued.
void TMainQueue::Add(TThread* AThread, TThreadProc AProc) {
    std::shared_ptr<const TThreadProc> Wake;
    {
        const std::lock_guard Hold(FMutex);
        FItems.push_back({AThread, std::move(AProc), FLastNumber + 1});
        ++FLastNumber;
        Wake = FWake;
        FChanged.notify_all();
    }
    if (!Wake || !*Wake)
        return;
    try {
        (*Wake)();
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
}

void TMainQueue::Poke() {
    const std::lock_guard Hold(FMutex);
    ++FPokes;
    FChanged.notify_all();
}

// A dropped procedure is destroyed outside the lock: its destruction may queue again.
void TMainQueue::Remove(TThread* AThread) {
    if (AThread == nullptr)
        return;
    std::deque<TItem> Gone;
    const std::lock_guard Hold(FMutex);
    const auto IsKept = [AThread](const TItem& AItem) { return AItem.Thread != AThread; };
    const auto First = std::find_if_not(FItems.begin(), FItems.end(), IsKept);
    const auto Rest = std::stable_partition(First, FItems.end(), IsKept);
    Gone.insert(Gone.end(), std::make_move_iterator(Rest), std::make_move_iterator(FItems.end()));
    FItems.erase(Rest, FItems.end());
}

bool TMainQueue::Take(std::uint64_t ALast, TItem& AItem) {
    const std::lock_guard Hold(FMutex);
    if (FItems.empty() || FItems.front().Number > ALast)
        return false;
    AItem = std::move(FItems.front());
    FItems.pop_front();
    return true;
}

bool TMainQueue::Run(std::uint32_t ATimeOut) {
    std::uint64_t Last = 0;
    {
        std::unique_lock Hold(FMutex);
        const std::uint64_t Pokes = FPokes;
        if (FItems.empty() && ATimeOut != 0)
            FChanged.wait_for(Hold, std::chrono::milliseconds(ATimeOut),
                              [&] { return !FItems.empty() || FPokes != Pokes; });
        Last = FLastNumber;
    }
    bool DidRun = false;
    for (TItem Item{}; Take(Last, Item); Item = {}) {
        DidRun = true;
        Item.Proc();
    }
    return DidRun;
}

void TMainQueue::SetWake(TThreadProc AProc) {
    auto Wake = std::make_shared<const TThreadProc>(std::move(AProc));
    const std::lock_guard Hold(FMutex);
    FWake.swap(Wake);
}

} // namespace detail
} // namespace qz
