#include <qz/platform/Fork.h>

#include <pthread.h>

#include <atomic>
#include <new>

namespace qz::platform {
namespace {

struct THandlers {
    void (*Before)();
    void (*InParent)();
    void (*InChild)();
    std::atomic<bool> IsSet;
};

constexpr int cRanks = static_cast<int>(TForkRank::Environment) + 1;

constinit THandlers GHandlers[cRanks]{};
constinit std::atomic<bool> GIsWatching{false};
// The ranks whose Before has been called for the fork of this thread, a bit each.
constinit thread_local unsigned GPrepared = 0;

void Prepare() {
    GPrepared = 0;
    for (int Rank = 0; Rank < cRanks; ++Rank) {
        if (GHandlers[Rank].IsSet.load(std::memory_order_acquire)) {
            GHandlers[Rank].Before();
            GPrepared |= 1u << Rank;
        }
    }
}

void Finish(void (*THandlers::*AHandler)()) {
    for (int Rank = cRanks; Rank-- > 0;) {
        if ((GPrepared >> Rank & 1u) != 0)
            (GHandlers[Rank].*AHandler)();
    }
}

} // namespace

void AroundFork(TForkRank ARank, void (*ABefore)(), void (*AInParent)(), void (*AInChild)()) {
    THandlers& Handlers = GHandlers[static_cast<int>(ARank)];
    Handlers.Before = ABefore;
    Handlers.InParent = AInParent;
    Handlers.InChild = AInChild;
    Handlers.IsSet.store(true, std::memory_order_release);
    if (!GIsWatching.exchange(true) &&
        pthread_atfork(
            Prepare, [] { Finish(&THandlers::InParent); }, [] { Finish(&THandlers::InChild); }) != 0)
        throw std::bad_alloc();
}

} // namespace qz::platform
