#include <qz/runtime/time/detail/ZoneState.h>

#include <deque>
#include <limits>
#include <memory>
#include <mutex>
#include <new>

#include <qz/platform/Fork.h>

namespace qz::detail {

constexpr std::int64_t cNotYet = std::numeric_limits<std::int64_t>::min() / 2;

constinit TZoneState GZoneState{nullptr, cNotYet};

namespace {

// A mutex that is there before any code runs, which std::mutex is not everywhere.
class TEarlyLock {
public:
    bool try_lock() noexcept { return !FIsHeld.exchange(true, std::memory_order_acquire); }
    void lock() noexcept {
        while (!try_lock())
            FIsHeld.wait(true, std::memory_order_relaxed);
    }
    void unlock() noexcept {
        FIsHeld.store(false, std::memory_order_release);
        FIsHeld.notify_one();
    }

private:
    std::atomic<bool> FIsHeld{false};
};

// Of all that follows, and of writes to GZoneState. Held around a fork, from the start of the program on.
constinit TEarlyLock GLock;
[[maybe_unused]] const bool GIsWatched =
    platform::HoldAroundFork(platform::TForkRank::Zone, [] { return &GLock; });

struct TLoader {
    std::string Stamp;
    std::deque<TZoneTable> Tables;

    // Never destroyed: threads may look while the program ends. Under the lock.
    static TLoader& Loader() {
        constinit static TLoader* Result = nullptr;
        if (Result == nullptr)
            Result = new TLoader;
        return *Result;
    }

    void Look(std::int64_t ANowSeconds, bool AInFull) noexcept;

private:
    // Null if the setting cannot be read now.
    const TZoneTable* Find() {
        platform::TResult<platform::TSystemZone> Zone = platform::ReadSystemZone();
        if (!Zone)
            return nullptr;
        for (const TZoneTable& Table : Tables) {
            if (Table.Zone() == *Zone)
                return &Table;
        }
        return &Tables.emplace_back(std::move(*Zone));
    }
};

// Under the lock.
const TZoneTable& UtcTable() {
    constinit static const TZoneTable* Result = nullptr;
    if (Result == nullptr)
        Result = new TZoneTable(
            {.Id = u"UTC", .Kinds = {{0, false, u"UTC"}}, .FirstKind = 0, .Changes = {}, .Rules = {}});
    return *Result;
}

// If the setting cannot be read, or memory runs out, the zone stays unchanged until the next look, a second
// later.
void TLoader::Look(std::int64_t ANowSeconds, bool AInFull) noexcept {
    std::int64_t LookedAt = ANowSeconds - cZoneLookSeconds + 1;
    try {
        // The stamp is read first: a concurrent change is found by the next check.
        std::string Now = platform::SystemZoneStamp();
        const TZoneTable* Table = GZoneState.Table.load(std::memory_order_relaxed);
        if (AInFull || Now != Stamp || Table == nullptr) {
            Table = Find();
            if (Table != nullptr)
                GZoneState.Table.store(Table, std::memory_order_release);
            Stamp = Table != nullptr ? std::move(Now) : std::string();
        }
        if (Table != nullptr)
            LookedAt = ANowSeconds;
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch)
    }
    if (GZoneState.Table.load(std::memory_order_relaxed) == nullptr)
        GZoneState.Table.store(&UtcTable(), std::memory_order_release);
    GZoneState.LookedAt.store(LookedAt, std::memory_order_release);
}

} // namespace

const TZoneTable& LookAtZone(std::int64_t ANowSeconds) noexcept {
    std::unique_lock Guard(GLock, std::try_to_lock);
    if (!Guard && GZoneState.Table.load(std::memory_order_acquire) == nullptr)
        Guard.lock();
    if (Guard)
        TLoader::Loader().Look(ANowSeconds, false);
    return *GZoneState.Table.load(std::memory_order_acquire);
}

void RefreshZone() noexcept {
    const std::lock_guard Guard(GLock);
    TLoader::Loader().Look(platform::UtcNowSeconds(), true);
}

} // namespace qz::detail
