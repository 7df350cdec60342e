#include <qz/common/uQzThreads.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "tests/support/Message.h"
#include <qz/platform/Threads.h>
#include <qz/runtime/threads/Thread.h>

namespace qz {
namespace {

constexpr int cThreads = 8;

// Runs AWork on cThreads threads while this one, the main thread, serves its queue until all have ended.
void RunOnThreads(const std::function<void(int)>& AWork) {
    std::atomic<int> Running{cThreads};
    std::vector<std::thread> Threads;
    for (int I = 0; I < cThreads; ++I)
        Threads.emplace_back([&, I] {
            AWork(I);
            --Running;
        });
    while (Running != 0)
        TThread::CheckSynchronize(1);
    for (std::thread& Thread : Threads)
        Thread.join();
    TThread::CheckSynchronize();
}

// Holds a lock on a thread of its own until Release.
template <class TLock> class THolder {
public:
    explicit THolder(TLock& ALock)
        : FThread([this, &ALock] {
              ALock.Enter();
              FHeld.SetEvent();
              FRelease.WaitFor();
              ALock.Leave();
          }) {
        FHeld.WaitFor();
    }
    ~THolder() {
        FRelease.SetEvent();
        FThread.join();
    }
    void Release() { FRelease.SetEvent(); }

private:
    TSimpleEvent FHeld;
    TSimpleEvent FRelease;
    std::thread FThread;
};

TEST(QzCriticalSection, CountsItsDepthAndTellsTheHolder) {
    TQzCriticalSection Lock;
    const auto Self = static_cast<std::int32_t>(platform::CurrentThreadId());
    EXPECT_FALSE(Lock.IsLocked());
    Lock.Enter();
    EXPECT_TRUE(Lock.TryEnter(0)) << "the holder may go deeper";
    EXPECT_EQ(Lock.GetLockCount(), 2);
    Lock.Leave();
    EXPECT_TRUE(Lock.IsLocked());
    EXPECT_EQ(Lock.GetLockedBy(), Self);
    Lock.Leave();
    EXPECT_EQ(Lock.GetLockedBy(), 0);
}

TEST(QzCriticalSection, TryFailsOnAHeldLockUntilItComesFree) {
    TQzCriticalSection Lock;
    THolder<TQzCriticalSection> Holder(Lock);
    const std::int32_t HeldBy = Lock.GetLockedBy();
    EXPECT_NE(HeldBy, 0);
    EXPECT_FALSE(Lock.TryEnter(0));
    const std::uint32_t Start = platform::TickCount();
    EXPECT_FALSE(Lock.TryEnter(50));
    EXPECT_GE(platform::TickCount() - Start, 50u);
    EXPECT_EQ(Lock.GetLockedBy(), HeldBy);
    EXPECT_EQ(Lock.GetLockCount(), 1);
    Holder.Release();
    EXPECT_TRUE(Lock.TryEnter(60000)) << "the lock comes free in time";
    EXPECT_NE(Lock.GetLockedBy(), HeldBy);
    Lock.Leave();
}

TEST(QzCriticalSection, LetsOneThreadInAtATime) {
    TQzCriticalSection Lock;
    int Count = 0;
    RunOnThreads([&](int AThread) {
        for (int I = 0; I < 2000; ++I) {
            if (AThread % 2 == 0)
                Lock.Enter();
            else if (!Lock.TryEnter(0xFFFFFFFF))
                continue;
            ++Count;
            Lock.Leave();
            (void)Lock.IsLocked();
        }
    });
    EXPECT_EQ(Count, cThreads * 2000);
}

TEST(QzSimpleEvent, StaysSignalledUntilItIsReset) {
    const Ref<IQzSimpleEvent> Event = TQzSimpleEvent::Create();
    EXPECT_EQ(Event->WaitFor(0), wrTimeout);
    Event->SetEvent();
    EXPECT_EQ(Event->WaitFor(0), wrSignaled);
    EXPECT_EQ(Event->WaitFor(0), wrSignaled);
    Event->ResetEvent();
    EXPECT_EQ(Event->WaitFor(1), wrTimeout);
    EXPECT_EQ(As<IQzSimpleEvent>(As<IInterface>(Event)), Event);
}

class MultiReadLock : public testing::TestWithParam<bool> {
protected:
    TOwned<TQzMultiReadSingleWrite> FLock = GetParam()
        ? TQzMultiReadSingleWrite::Create(TQzMultiReadSingleWrite::TFallback::Use)
        : TQzMultiReadSingleWrite::Create();
    // What ATry gives on another thread.
    template <class TTry> static bool Elsewhere(TTry ATry) {
        bool Result = false;
        std::thread([&] { Result = ATry(); }).join();
        return Result;
    }
    bool TryReadElsewhere() {
        return Elsewhere([this] { return FLock->TryBeginRead() && (FLock->EndRead(), true); });
    }
    bool TryWriteElsewhere() {
        return Elsewhere([this] { return FLock->TryBeginWrite() && (FLock->EndWrite(), true); });
    }
};

TEST_P(MultiReadLock, ReadersShareAndAWriterIsAlone) {
    FLock->BeginRead();
    EXPECT_TRUE(TryReadElsewhere());
    FLock->EndRead();
    FLock->BeginRead();
    EXPECT_FALSE(TryWriteElsewhere());
    FLock->EndRead();
    ASSERT_TRUE(FLock->TryBeginWrite());
    EXPECT_FALSE(TryReadElsewhere());
    EXPECT_FALSE(TryWriteElsewhere());
    FLock->EndWrite();
    EXPECT_TRUE(TryReadElsewhere());
    EXPECT_TRUE(TryWriteElsewhere());
}

TEST_P(MultiReadLock, ThreadsNeverSeeAHalfWrittenPair) {
    int First = 0;
    int Second = 0;
    std::atomic<int> Torn{0};
    std::atomic<int> Writes{0};
    RunOnThreads([&](int AThread) {
        for (int I = 0; I < 500; ++I) {
            const bool Try = I % 3 == 0;
            if (AThread % 4 == 0) {
                if (Try ? !FLock->TryBeginWrite() : (FLock->BeginWrite(), false))
                    continue;
                ++First;
                ++Second;
                ++Writes;
                FLock->EndWrite();
            } else {
                if (Try ? !FLock->TryBeginRead() : (FLock->BeginRead(), false))
                    continue;
                Torn += First != Second;
                FLock->EndRead();
            }
        }
    });
    EXPECT_EQ(Torn, 0);
    EXPECT_EQ(First, Writes);
}

INSTANTIATE_TEST_SUITE_P(Kinds, MultiReadLock, testing::Bool(),
                         [](const auto& AInfo) { return AInfo.param ? "Fallback" : "Platform"; });

TEST(MultiReadLockSlots, AreThePlatformsOwnAndComplete) {
    EXPECT_EQ(&TQzMultiReadSingleWrite::Slots(), platform::SystemSlimLock());
    EXPECT_NE(&TQzMultiReadSingleWrite::Slots(), &TQzMultiReadSingleWrite::FallbackSlots());
}

TEST(ThreadName, BelongsToOneThreadAndIsCutWithoutTearingACharacter) {
    const std::pair<UnicodeString, UnicodeString> Cases[] = {
        {u"worker", u"worker"},
        {UnicodeString(300, u'x'), UnicodeString(255, u'x')},
        {UnicodeString(200, u'\u00E9'), UnicodeString(127, u'\u00E9')},
        {UnicodeString(100, u'\u20AC'), UnicodeString(85, u'\u20AC')},
        {u"", u""},
    };
    std::thread([&] {
        EXPECT_EQ(QzGetThreadName(), u"");
        for (const auto& [Given, Kept] : Cases) {
            QzSetThreadName(Given);
            EXPECT_EQ(QzGetThreadName(), Kept);
            std::thread([] { EXPECT_EQ(QzGetThreadName(), u""); }).join();
        }
    }).join();
}

TEST(RunThreaded, SetsTheEventWhateverTheProcedureDoes) {
    const TQzProc Procs[] = {[] {}, [] { throw Exception(u"lost"); }, [] { throw 1; }};
    for (const TQzProc& Proc : Procs) {
        const Ref<IQzSimpleEvent> Event = TQzSimpleEvent::Create();
        QzRunThreaded(Proc, Event);
        EXPECT_EQ(Event->WaitFor(60000), wrSignaled);
        const Ref<IQzSimpleEvent> Other = QzRunThreaded([&](IQzSimpleEvent*) { Proc(); });
        EXPECT_EQ(Other->WaitFor(60000), wrSignaled);
    }
    const Ref<IQzSimpleEvent> Early = QzRunThreaded([](IQzSimpleEvent* AEvent) { AEvent->SetEvent(); });
    EXPECT_EQ(Early->WaitFor(60000), wrSignaled);
}

TEST(RunInMainThread, RunsAtOnceOnTheMainThread) {
    bool Ran = false;
    QzRunInMainThread([&] { Ran = true; }, false);
    EXPECT_TRUE(Ran);
    EXPECT_THROW(QzRunInMainThread([] { throw EAbort(u"x"); }, true), EAbort);
    UnicodeString Told;
    QzRunInMainThread([] { throw EAbort(u"told"); }, false, [&](Exception& E) { Told = E.Message(); });
    EXPECT_EQ(Told, u"told");
    QzRunInMainThread([] { throw std::runtime_error("foreign"); }, false,
                      [&](Exception& E) { Told = E.Message(); });
    EXPECT_EQ(Told, u"foreign");
}

TEST(RunInMainThread, BringsTheVeryExceptionBackToAWaitingWorker) {
    RunOnThreads([](int AThread) {
        const void* Thrown = nullptr;
        try {
            QzRunInMainThread(
                [&] {
                    EXPECT_TRUE(TThread::IsMainThread());
                    try {
                        throw Exception(u"from thread %d", {AThread});
                    } catch (const Exception& E) {
                        Thrown = &E;
                        throw;
                    }
                },
                true);
            ADD_FAILURE() << "no exception";
        } catch (const Exception& E) {
            EXPECT_EQ(&E, Thrown);
            EXPECT_EQ(E.Message(), UnicodeString(u"from thread ") + char16_t(u'0' + AThread));
        }
    });
}

TEST(RunInMainThread, HandlerOfAWorkerIsToldOnTheMainThread) {
    std::atomic<int> Told{0};
    RunOnThreads([&](int AThread) {
        QzRunInMainThread([] { throw EAbort(u"x"); }, AThread % 2 == 0,
                          [&](Exception&) {
                              EXPECT_TRUE(TThread::IsMainThread());
                              ++Told;
                          });
    });
    EXPECT_EQ(Told, cThreads);
}

TEST(RunInMainThread, WorkerThatNeitherWaitsNorHandlesIsRefused) {
    std::atomic<bool> Ran{false};
    RunOnThreads([&](int) {
        EXPECT_EQ(Raised([&] { QzRunInMainThread([&] { Ran = true; }, false); }),
                  "EAssertionFailed: An Error handler is required when AWaitForCompletion is set to false!");
    });
    EXPECT_FALSE(Ran);
}

TEST(Queue, RunsInOrderAtTheNextSynchronisationPointAndSetsTheEvent) {
    UnicodeString Trace;
    const auto First = QzQueue([&](IQzSimpleEvent*) { Trace += u"first "; });
    const auto Second = QzQueue([&](IQzSimpleEvent*) {
        Trace += u"second ";
        throw EAbort(u"x");
    });
    const auto Third = QzQueue([&](IQzSimpleEvent*) { Trace += u"third "; });
    EXPECT_EQ(First->WaitFor(0), wrTimeout);
    EXPECT_THROW(TThread::CheckSynchronize(), EAbort);
    EXPECT_EQ(Second->WaitFor(0), wrSignaled);
    EXPECT_EQ(Third->WaitFor(0), wrTimeout);
    EXPECT_TRUE(TThread::CheckSynchronize());
    EXPECT_FALSE(TThread::CheckSynchronize());
    EXPECT_EQ(Trace, u"first second third ");
}

TEST(Queue, KeepsTheOrderOfEachOfManyThreads) {
    std::vector<std::vector<int>> Seen(cThreads);
    RunOnThreads([&](int AThread) {
        for (int I = 0; I < 100; ++I)
            QzQueue(
                [&, AThread, I](IQzSimpleEvent*) { Seen[static_cast<std::size_t>(AThread)].push_back(I); });
    });
    for (const auto& Numbers : Seen) {
        EXPECT_EQ(Numbers.size(), 100u);
        EXPECT_TRUE(std::is_sorted(Numbers.begin(), Numbers.end()));
    }
}

} // namespace
} // namespace qz
