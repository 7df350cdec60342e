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

TEST(QzCriticalSection, TryFailsOnAHeldLockUntilItComesFree) {
    TQzCriticalSection Lock;
    TSimpleEvent Held, Release;
    std::thread Holder([&] {
        Lock.Enter();
        Held.SetEvent();
        Release.WaitFor();
        Lock.Leave();
    });
    Held.WaitFor();
    const std::int32_t HeldBy = Lock.GetLockedBy();
    EXPECT_NE(HeldBy, 0);
    EXPECT_FALSE(Lock.TryEnter(0));
    const std::uint32_t Start = platform::TickCount();
    EXPECT_FALSE(Lock.TryEnter(50));
    EXPECT_GE(platform::TickCount() - Start, 50u);
    EXPECT_EQ(Lock.GetLockedBy(), HeldBy);
    Release.SetEvent();
    EXPECT_TRUE(Lock.TryEnter(60000)) << "the lock comes free in time";
    Lock.Enter();
    EXPECT_EQ(Lock.GetLockCount(), 2);
    Lock.Leave();
    EXPECT_TRUE(Lock.IsLocked());
    Lock.Leave();
    EXPECT_EQ(Lock.GetLockedBy(), 0);
    Holder.join();
}

class MultiReadLock : public testing::TestWithParam<bool> {
protected:
    TOwned<TQzMultiReadSingleWrite> FLock = GetParam()
        ? TQzMultiReadSingleWrite::Create(TQzMultiReadSingleWrite::TFallback::Use)
        : TQzMultiReadSingleWrite::Create();
    bool TryReadElsewhere() {
        bool Result = false;
        std::thread([&] { Result = FLock->TryBeginRead() && (FLock->EndRead(), true); }).join();
        return Result;
    }
    bool TryWriteElsewhere() {
        bool Result = false;
        std::thread([&] { Result = FLock->TryBeginWrite() && (FLock->EndWrite(), true); }).join();
        return Result;
    }
};

TEST_P(MultiReadLock, ReadersShareAndAWriterIsAlone) {
    FLock->BeginRead();
    EXPECT_TRUE(TryReadElsewhere());
    EXPECT_FALSE(TryWriteElsewhere());
    FLock->EndRead();
    ASSERT_TRUE(FLock->TryBeginWrite());
    EXPECT_FALSE(TryReadElsewhere());
    EXPECT_FALSE(TryWriteElsewhere());
    FLock->EndWrite();
    EXPECT_TRUE(TryWriteElsewhere());
}

TEST_P(MultiReadLock, ThreadsNeverSeeAHalfWrittenPair) {
    int First = 0;
    int Second = 0;
    std::atomic<int> Torn{0};
    RunOnThreads([&](int AThread) {
        for (int I = 0; I < 500; ++I)
            if (AThread % 4 == 0) {
                FLock->BeginWrite();
                ++First;
                ++Second;
                FLock->EndWrite();
            } else if (I % 3 != 0 || FLock->TryBeginRead()) {
                if (I % 3 != 0)
                    FLock->BeginRead();
                Torn += First != Second;
                FLock->EndRead();
            }
    });
    EXPECT_EQ(Torn, 0);
    EXPECT_EQ(First, cThreads / 4 * 500);
}

INSTANTIATE_TEST_SUITE_P(Kinds, MultiReadLock, testing::Bool(),
                         [](const auto& AInfo) { return AInfo.param ? "Fallback" : "Platform"; });

TEST(ThreadName, BelongsToOneThreadAndIsCutWithoutTearingACharacter) {
    std::thread([] {
        QzSetThreadName(UnicodeString(200, u'\u00E9'));
        EXPECT_EQ(QzGetThreadName(), UnicodeString(127, u'\u00E9'));
        std::thread([] { EXPECT_EQ(QzGetThreadName(), u""); }).join();
    }).join();
}

TEST(RunThreaded, SetsTheEventWhateverTheProcedureDoes) {
    const Ref<IQzSimpleEvent> Event = TQzSimpleEvent::Create();
    QzRunThreaded([] { throw 1; }, Event);
    EXPECT_EQ(Event->WaitFor(60000), wrSignaled);
    EXPECT_EQ(Event->WaitFor(0), wrSignaled) << "it stays signalled";
    Event->ResetEvent();
    EXPECT_EQ(Event->WaitFor(1), wrTimeout);
    const Ref<IQzSimpleEvent> Other = QzRunThreaded([&](IQzSimpleEvent*) {});
    EXPECT_EQ(Other->WaitFor(60000), wrSignaled);
}

TEST(RunInMainThread, RunsAtOnceOnTheMainThread) {
    EXPECT_THROW(QzRunInMainThread([] { throw EAbort(u"x"); }, true), EAbort);
    UnicodeString Told;
    QzRunInMainThread([] { throw std::runtime_error("foreign"); }, false,
                      [&](Exception& E) { Told = E.Message(); });
    EXPECT_EQ(Told, u"foreign");
}

TEST(RunInMainThread, BringsTheVeryExceptionBackToAWaitingWorker) {
    RunOnThreads([](int AThread) {
        const void* Thrown = nullptr;
        const auto Fail = [&] {
            EXPECT_TRUE(TThread::IsMainThread());
            try {
                throw Exception(u"from thread %d", {AThread});
            } catch (const Exception& E) {
                Thrown = &E;
                throw;
            }
        };
        try {
            QzRunInMainThread(Fail, true);
            ADD_FAILURE() << "no exception";
        } catch (const Exception& E) {
            EXPECT_EQ(&E, Thrown);
        }
    });
}

TEST(RunInMainThread, WorkerThatDoesNotWaitNeedsAHandlerWhichRunsOnTheMainThread) {
    std::atomic<int> Told{0};
    RunOnThreads([&](int AThread) {
        QzRunInMainThread([] { throw EAbort(u"x"); }, AThread % 2 == 0,
                          [&](Exception&) { Told += TThread::IsMainThread() ? 1 : 100; });
        EXPECT_EQ(Raised([&] { QzRunInMainThread([&] { Told += 1000; }, false); }),
                  "EAssertionFailed: An Error handler is required when AWaitForCompletion is set to false!");
    });
    EXPECT_EQ(Told, cThreads);
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
    TThread::CheckSynchronize();
    EXPECT_EQ(Trace, u"first second third ");
}

} // namespace
} // namespace qz
