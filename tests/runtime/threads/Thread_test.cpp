#include <qz/runtime/threads/Thread.h>

#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include <qz/platform/Threads.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/threads/CriticalSection.h>
#include <qz/runtime/threads/MultiReadLock.h>

namespace qz {
namespace {

class TWorker : public TThread {
    QZ_CLASS(TWorker, TThread)

public:
    static inline std::atomic<int> FAlive{0};

protected:
    TWorker(std::function<void(TWorker*)> AWork, bool AFreeOnTerminate = false, bool ASuspended = false)
        : TThread(ASuspended),
          FWork(std::move(AWork)) {
        SetFreeOnTerminate(AFreeOnTerminate);
        ++FAlive;
    }
    ~TWorker() override { --FAlive; }
    void Execute() override { FWork(this); }

private:
    std::function<void(TWorker*)> FWork;
};
constinit const TClassRec TWorker::ClassRec = DescribeClass<TWorker>(u"TWorker", {.Unit = u"Test"});

using TWork = std::function<void(TWorker*)>;

TEST(Thread, FreeAsksItToEndAndWaits) {
    TSimpleEvent Started;
    std::atomic<bool> Ended{false};
    TWorker* Worker = TWorker::Create(TWork([&](TWorker* ASelf) {
        Started.SetEvent();
        while (!ASelf->Terminated())
            platform::SleepMs(1);
        Ended = true;
    }));
    Started.WaitFor();
    Worker->Free();
    EXPECT_TRUE(Ended);
    EXPECT_EQ(TWorker::FAlive, 0);
}

TEST(Thread, ManyThreadsFreeThemselves) {
    std::atomic<int> Ran{0};
    for (int I = 0; I < 64; ++I)
        (void)TWorker::Create(TWork([&](TWorker*) { ++Ran; }), true);
    while (TWorker::FAlive != 0)
        platform::SleepMs(1);
    EXPECT_EQ(Ran, 64);
}

TEST(Thread, SuspendedOneStartsOnceOrIsFreedUnstarted) {
    int Ran = 0;
    TWorker* Worker = TWorker::Create(TWork([&](TWorker*) { ++Ran; }), false, true);
    Worker->WaitFor();
    EXPECT_FALSE(Worker->Finished());
    Worker->Start();
    EXPECT_THROW(Worker->Start(), EThread);
    Worker->WaitFor();
    EXPECT_EQ(Ran, 1);
    Worker->Free();
    TWorker::Create(TWork([&](TWorker*) { ++Ran; }), false, true)->Free();
    EXPECT_EQ(Ran, 1);
    EXPECT_EQ(TWorker::FAlive, 0);
}

TEST(Thread, KeepsTheExceptionThatEndedIt) {
    TWorker* Worker = TWorker::Create(TWork([](TWorker*) { throw EConvertError(u"lost"); }));
    Worker->WaitFor();
    EXPECT_TRUE(Worker->Finished());
    EXPECT_THROW(std::rethrow_exception(Worker->FatalException()), EConvertError);
    Worker->Free();
}

TEST(Thread, WaitingMainThreadServesSynchronize) {
    EXPECT_TRUE(TThread::IsMainThread());
    int Ran = 0;
    TWorker* Worker = TWorker::Create(TWork([&](TWorker* ASelf) {
        EXPECT_FALSE(TThread::IsMainThread());
        TThread::Synchronize(ASelf, [&] {
            EXPECT_TRUE(TThread::IsMainThread());
            ++Ran;
        });
        EXPECT_THROW(TThread::Synchronize(ASelf, [] { throw EAbort(u"x"); }), EAbort);
        EXPECT_THROW(TThread::CheckSynchronize(), EThread);
        EXPECT_THROW(ASelf->WaitFor(), EThread);
        EXPECT_THROW(ASelf->Free(), EThread);
    }));
    Worker->WaitFor();
    EXPECT_EQ(Ran, 1);
    Worker->Free();
}

TEST(Thread, QueuedWorkOfAFreedThreadIsDropped) {
    int Ran = 0;
    TWorker* Worker = TWorker::Create(TWork([&](TWorker* ASelf) {
        TThread::Queue(ASelf, [&] { Ran += 1; });
        TThread::Queue(nullptr, [&] { Ran += 10; });
    }));
    while (!Worker->Finished())
        platform::SleepMs(1);
    Worker->Free();
    TThread::CheckSynchronize();
    EXPECT_EQ(Ran, 10);
}

TEST(Thread, EventMayBeFreedByTheThreadThatItWoke) {
    for (int I = 0; I < 300; ++I) {
        auto Event = std::make_unique<TSimpleEvent>();
        AtOnce(2, [&Event, Raw = Event.get()](int AIndex) {
            if (AIndex == 0)
                return Raw->SetEvent();
            Raw->WaitFor();
            Event.reset();
        });
    }
}

TEST(ThreadMultiReadLock, WriterMayGoDeeperAndReadAgain) {
    TMultiReadExclusiveWriteSynchronizer Lock;
    const auto CanReadElsewhere = [&] {
        bool Result = false;
        AtOnce(1, [&](int) { Result = Lock.TryBeginRead() && (Lock.EndRead(), true); });
        return Result;
    };
    EXPECT_TRUE(Lock.BeginWrite());
    EXPECT_TRUE(Lock.BeginWrite());
    Lock.BeginRead();
    Lock.EndRead();
    Lock.EndWrite();
    EXPECT_FALSE(CanReadElsewhere());
    Lock.EndWrite();
    EXPECT_TRUE(CanReadElsewhere());
}

TEST(ThreadMultiReadLock, TwoReadersThatTurnToWritingTakeTurnsAndOneLearnsOfIt) {
    TMultiReadExclusiveWriteSynchronizer Lock;
    std::atomic<int> Reading{0};
    std::atomic<int> Unchanged{0};
    const auto Upgrade = [&] {
        Lock.BeginRead();
        ++Reading;
        while (Reading < 2)
            platform::YieldThread();
        Unchanged += Lock.BeginWrite();
        Lock.EndWrite();
        Lock.EndRead();
    };
    AtOnce(2, [&](int) { Upgrade(); });
    EXPECT_EQ(Unchanged, 1);
    EXPECT_EQ(Lock.RevisionLevel(), 2u);
}

} // namespace
} // namespace qz
