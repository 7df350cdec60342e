#include "runtime/time/ZoneState.h"

#include <deque>
#include <limits>
#include <memory>
#include <mutex>
#include <new>

#include "platform/Fork.h"

namespace qz::detail {

constexpr std::int64_t cNotYet = std::numeric_limits<std::int64_t>::min() / 2;

constinit TZoneState GZoneState{nullptr, cNotYet};

namespace {

struct TLoader {
    std::mutex Lock; // of all that follows, and of writes to GZoneState
    std::string Stamp;
    std::deque<TZoneTable> Tables;

    TLoader() {
        platform::AroundFork([] { Loader().Lock.lock(); }, [] { Loader().Lock.unlock(); },
                             [] { Loader().Lock.unlock(); });
    }
    // Never destroyed: threads may look while the program ends.
    static TLoader& Loader() {
        static auto* const Result = new TLoader;
        return *Result;
    }

    void Look(std::int64_t ANowSeconds, bool AInFull) noexcept;

private:
    const TZoneTable* Find() {
        platform::TSystemZone Zone = platform::ReadSystemZone();
        for (const TZoneTable& Table : Tables) {
            if (Table.Zone() == Zone)
                return &Table;
        }
        return &Tables.emplace_back(std::move(Zone));
    }
};

const TZoneTable& UtcTable() {
    static const auto* const Result = new TZoneTable(
        {.Id = u"UTC", .Kinds = {{0, false, u"UTC"}}, .FirstKind = 0, .Changes = {}, .Rules = {}});
    return *Result;
}

// Without memory the zone stays as it was.
void TLoader::Look(std::int64_t ANowSeconds, bool AInFull) noexcept {
    try {
        // The stamp comes first: a setting that changes meanwhile is found by the next look.
        std::string Now = platform::SystemZoneStamp();
        if (AInFull || Now != Stamp || GZoneState.Table.load(std::memory_order_relaxed) == nullptr) {
            GZoneState.Table.store(Find(), std::memory_order_release);
            Stamp = std::move(Now);
        }
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch)
    }
    if (GZoneState.Table.load(std::memory_order_relaxed) == nullptr)
        GZoneState.Table.store(&UtcTable(), std::memory_order_release);
    GZoneState.LookedAt.store(ANowSeconds, std::memory_order_release);
}

} // namespace

const TZoneTable& LookAtZone(std::int64_t ANowSeconds) noexcept {
    TLoader& Loader = TLoader::Loader();
    std::unique_lock Guard(Loader.Lock, std::try_to_lock);
    if (!Guard && GZoneState.Table.load(std::memory_order_acquire) == nullptr)
        Guard.lock();
    if (Guard)
        Loader.Look(ANowSeconds, false);
    return *GZoneState.Table.load(std::memory_order_acquire);
}

void RefreshZone() noexcept {
    TLoader& Loader = TLoader::Loader();
    const std::lock_guard Guard(Loader.Lock);
    Loader.Look(platform::UtcNowSeconds(), true);
}

} // namespace qz::detail
