#include <qz/runtime/threads/Thread.h>

#include <system_error>

#include <qz/platform/Threads.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/threads/detail/MainQueue.h>

namespace qz {
namespace {

// How long the main thread sleeps between checks while it waits for another thread.
constexpr std::uint32_t cMainPause = 10;

class TAnonymousThread : public TThread {
    QZ_CLASS(TAnonymousThread, TThread)

protected:
    explicit TAnonymousThread(TThreadProc AProc) : TThread(true), FProc(std::move(AProc)) {}
    void Execute() override { FProc(); }

private:
    TThreadProc FProc;
};

QZ_REGISTER_TYPES(TThread);

constinit const TClassRec TAnonymousThread::ClassRec =
    DescribeClass<TAnonymousThread>(u"TAnonymousThread", {.Unit = u"System", .IsPublic = false});

} // namespace

constinit const TClassRec TThread::ClassRec = DescribeClass<TThread>(u"TThread", {.Unit = u"System"});

TThread::~TThread() {
    if (FThread.joinable()) {
        if (FThread.get_id() == std::this_thread::get_id())
            FThread.detach();
        else
            FThread.join();
    }
    RemoveQueuedEvents(this);
}

void TThread::FinishCreate() {
    Inherited::FinishCreate();
    if (!FSuspended) {
        FSuspended = true;
        Start();
    }
}

void TThread::Start() {
    if (!FSuspended)
        throw EThread(u"Cannot call Start on a running or suspended thread");
    // The new thread waits at the gate until this function needs the object no more: a thread that frees
    // itself may be destroyed at once.
    const auto Gate = std::make_shared<TSimpleEvent>();
    try {
        FThread = std::thread([this, Gate] {
            Gate->WaitFor();
            Run();
        });
    } catch (const std::system_error& E) {
        throw EThread(u"Thread creation error: %s", {E.what()});
    }
    FSuspended = false;
    Gate->SetEvent();
}

void TThread::Run() noexcept {
    try {
        if (!Terminated())
            Execute();
    } catch (...) {
        FFatalException = std::current_exception();
    }
    FFinished.store(true, std::memory_order_release);
    if (FFreeOnTerminate) {
        Free();
        return;
    }
    FDone.SetEvent();
    detail::TMainQueue::Instance().Poke();
}

void TThread::WaitFor() {
    if (FSuspended)
        return;
    if (FThread.get_id() == std::this_thread::get_id())
        throw EThread(u"A thread cannot wait for itself");
    if (!IsMainThread()) {
        FDone.WaitFor();
        return;
    }
    std::exception_ptr Error;
    while (FDone.WaitFor(0) != wrSignaled) {
        try {
            detail::TMainQueue::Instance().Run(cMainPause);
        } catch (...) {
            if (!Error)
                Error = std::current_exception();
        }
    }
    if (Error)
        Queue(nullptr, [Error] { std::rethrow_exception(Error); });
}

void TThread::BeforeDestruction() {
    const bool IsSelf = FThread.get_id() == std::this_thread::get_id();
    if (IsSelf && !Finished())
        throw EThread(u"A thread cannot be freed by itself while it runs");
    if (!FSuspended && !IsSelf) {
        Terminate();
        WaitFor();
    }
    Inherited::BeforeDestruction();
}

TThread* TThread::CreateAnonymousThread(TThreadProc AProc) {
    TThread* Result = TAnonymousThread::Create(std::move(AProc));
    Result->SetFreeOnTerminate(true);
    return Result;
}

void TThread::Queue(TThread* AThread, TThreadProc AProc) {
    detail::TMainQueue::Instance().Add(AThread, std::move(AProc));
}

void TThread::Synchronize(TThread* AThread, const TThreadProc& AProc) {
    if (IsMainThread()) {
        AProc();
        return;
    }
    struct TState {
        TSimpleEvent Done;
        std::exception_ptr Error;
    };
    // Signals when the queue has no copy of the work any more, whether it was run or dropped. The state stays
    // with the caller, so that the exception is let go by the thread that it is raised in.
    struct TSignal {
        explicit TSignal(TState& AState) : State(AState) {}
        TSignal(const TSignal&) = delete;
        TSignal& operator=(const TSignal&) = delete;
        ~TSignal() { State.Done.SetEvent(); }
        TState& State;
    };
    TState State;
    Queue(AThread, [Signal = std::make_shared<TSignal>(State), &AProc] {
        try {
            AProc();
        } catch (...) {
            Signal->State.Error = std::current_exception();
        }
    });
    State.Done.WaitFor();
    if (State.Error)
        std::rethrow_exception(State.Error);
}

void TThread::RemoveQueuedEvents(TThread* AThread) {
    detail::TMainQueue::Instance().Remove(AThread);
}

bool TThread::CheckSynchronize(std::uint32_t ATimeOut) {
    if (!IsMainThread())
        throw EThread(u"CheckSynchronize called from thread $%x, which is NOT the main thread",
                      {CurrentThreadID()});
    return detail::TMainQueue::Instance().Run(ATimeOut);
}

void TThread::SetWakeMainThread(TThreadProc AProc) {
    detail::TMainQueue::Instance().SetWake(std::move(AProc));
}

std::uint32_t TThread::CurrentThreadID() noexcept {
    return platform::CurrentThreadId();
}

} // namespace qz
