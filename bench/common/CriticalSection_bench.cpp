// TQzCriticalSection beside the re-entrant lock of the standard library, and the multi-read lock beside its
// shared one.
#include <benchmark/benchmark.h>

#include <mutex>
#include <shared_mutex>

#include <qz/common/uQzThreads/CriticalSection.h>
#include <qz/common/uQzThreads/MultiReadLock.h>

namespace {

void EnterLeave(benchmark::State& AState) {
    static qz::TQzCriticalSection Lock;
    for (auto _ : AState) {
        Lock.Enter();
        benchmark::ClobberMemory();
        Lock.Leave();
    }
}

void EnterLeavePeer(benchmark::State& AState) {
    static std::recursive_mutex Lock;
    for (auto _ : AState) {
        Lock.lock();
        benchmark::ClobberMemory();
        Lock.unlock();
    }
}

void BeginEndRead(benchmark::State& AState) {
    static qz::TQzMultiReadSingleWrite Lock;
    for (auto _ : AState) {
        Lock.BeginRead();
        benchmark::ClobberMemory();
        Lock.EndRead();
    }
}

void BeginEndReadPeer(benchmark::State& AState) {
    static std::shared_mutex Lock;
    for (auto _ : AState) {
        Lock.lock_shared();
        benchmark::ClobberMemory();
        Lock.unlock_shared();
    }
}

BENCHMARK(EnterLeave)->Threads(1)->Threads(2);
BENCHMARK(EnterLeavePeer)->Threads(1)->Threads(2);
BENCHMARK(BeginEndRead)->Threads(1)->Threads(2);
BENCHMARK(BeginEndReadPeer)->Threads(1)->Threads(2);

} // namespace
