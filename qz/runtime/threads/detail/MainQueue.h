// The work that waits for the main thread. Internal: TThread is the way to it.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>

#include <qz/runtime/threads/Thread.h>

namespace qz::detail {

class TMainQueue {
public:
    // Never destroyed, so that a thread may queue while the program ends.
    static TMainQueue& Instance();

    void Add(TThread* AThread, TThreadProc AProc);
    void Remove(TThread* AThread);
    // Runs what was queued when the call began, waiting at most ATimeOut milliseconds for something to come
    // or for a Poke.
    bool Run(std::uint32_t ATimeOut);
    // Wakes a Run that waits.
    void Poke();
    void SetWake(TThreadProc AProc);

    void BeginFork() { FMutex.lock(); }
    void EndFork() { FMutex.unlock(); }
    // The threads that waited are not in the child, and what counted them is not valid there.
    void BeginChild();

private:
    struct TItem {
        TThread* Thread;
        TThreadProc Proc;
        std::uint64_t Number;
    };
    bool Take(std::uint64_t ALast, TItem& AItem);

    std::mutex FMutex;
    std::condition_variable FChanged;
    std::deque<TItem> FItems;
    std::uint64_t FLastNumber = 0;
    std::uint64_t FPokes = 0;
    std::shared_ptr<const TThreadProc> FWake;
};

} // namespace qz::detail
