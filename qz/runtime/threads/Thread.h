// TThread: a thread of the program as an object, and the queue of work for the main thread.
//
//     class TLoader : public TThread {
//         QZ_CLASS(TLoader, TThread)
//     protected:
//         void Execute() override {
//             while (!Terminated()) ...
//             Queue(nullptr, [] { ShowResult(); });       // runs on the main thread
//         }
//     };
//     TLoader* Loader = TLoader::Create();                // runs at once
//     ... main loop: TThread::CheckSynchronize(100);
//     Loader->Free();                                     // asks it to end and waits
//
// The main thread is the one that loaded the library. It runs queued work whenever it calls CheckSynchronize.
#pragma once

#include <atomic>
#include <exception>
#include <functional>
#include <memory>
#include <thread>

#include <qz/runtime/objects/Object.h>
#include <qz/runtime/threads/Event.h>

namespace qz {

using TThreadProc = std::function<void()>;

class QZ_API TThread : public TCreateOnly<TObject> {
    QZ_CLASS(TThread, TObject)

public:
    // Runs AProc on a new thread that frees itself when it ends; it starts with Start.
    static TThread* CreateAnonymousThread(TThreadProc AProc);

    // Starts a thread that was made suspended. Raises EThread when it has started before or the system has none.
    void Start();
    // Asks the thread to end; Execute is to look at Terminated.
    void Terminate() noexcept { FTerminated.store(true, std::memory_order_release); }
    bool Terminated() const noexcept { return FTerminated.load(std::memory_order_acquire); }
    // True when Execute has returned.
    bool Finished() const noexcept { return FFinished.load(std::memory_order_acquire); }
    // Waits for the end of Execute. The main thread runs queued work while it waits, so that the thread's
    // Synchronize does not wait for ever; an exception of such work waits for the next CheckSynchronize. Not for a
    // thread that frees itself. Raises EThread on the thread itself; returns at once when it was not started.
    void WaitFor();
    // Whether the object frees itself when Execute has returned; nobody may touch it after its start then.
    bool FreeOnTerminate() const noexcept { return FFreeOnTerminate; }
    void SetFreeOnTerminate(bool AValue) noexcept { FFreeOnTerminate = AValue; }
    // What Execute ended with, if it ended with an exception. Read it when Finished is true.
    std::exception_ptr FatalException() const noexcept { return FFatalException; }

    // Asks the thread to end and waits for it. Raises EThread on the thread itself while it runs.
    void BeforeDestruction() override;

    // Has AProc run on the main thread at its next CheckSynchronize, in the order of the calls; also when the main
    // thread itself calls. AThread, which may be null, is the thread that the work belongs to: it is dropped when
    // that thread's object is freed.
    static void Queue(TThread* AThread, TThreadProc AProc);
    // Runs AProc on the main thread and waits for its end; at once on the main thread itself. An exception of
    // AProc is raised here. Returns without having run it when RemoveQueuedEvents dropped it.
    static void Synchronize(TThread* AThread, const TThreadProc& AProc);
    // Drops the queued work of AThread.
    static void RemoveQueuedEvents(TThread* AThread);
    // Runs the queued work, on the main thread only (EThread elsewhere). Waits at most ATimeOut milliseconds for
    // some to come. True when some was run. An exception of a procedure ends the round and goes to the caller; what
    // is still queued stays.
    static bool CheckSynchronize(std::uint32_t ATimeOut = 0);
    // Called, on any thread, whenever work was queued, so that a main loop of another kind can be woken. What it
    // raises is dropped.
    static void SetWakeMainThread(TThreadProc AProc);

    static bool IsMainThread() noexcept;
    static std::uint32_t MainThreadID() noexcept;
    static std::uint32_t CurrentThreadID() noexcept;

protected:
    explicit TThread(bool ACreateSuspended = false) noexcept : FSuspended(ACreateSuspended) {}
    ~TThread() override;

    // The work. Must end by returning or by an exception, not by pthread_exit or a cancellation.
    virtual void Execute() = 0;
    // Starts the thread unless it was made suspended.
    void FinishCreate() override;

private:
    void Run() noexcept;

    std::thread FThread;
    TSimpleEvent FDone;
    std::exception_ptr FFatalException;
    std::atomic<bool> FTerminated{false};
    std::atomic<bool> FFinished{false};
    bool FSuspended;
    bool FFreeOnTerminate = false;
};

} // namespace qz
