#include <qz/common/uQzLogger/LogDrops.h>

#include <atomic>
#include <map>
#include <memory>

#include <qz/common/uQzLogger/detail/LogThread.h>
#include <qz/platform/Clock.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using detail::TStateHold;

constexpr std::int64_t cSecond = 10'000'000;

// Lives to the very end of the process. The first two are guarded by the state lock.
struct TDrops {
    std::shared_ptr<const TQzLogDropHook> Hook;
    std::map<std::uint64_t, std::int64_t> Told; // the time of the last call, for each appender
    std::atomic<std::uint64_t> Count{0};
    std::atomic<bool> IsTelling{false};
};

TDrops& Drops() {
    static auto* const Result = new TDrops;
    return *Result;
}

// The hook, unless it was called for the appender within a second. Old entries are removed.
std::shared_ptr<const TQzLogDropHook> HookFor(TDrops& ADrops, std::uint64_t AAppender) {
    const std::int64_t Now = platform::UtcNow100ns();
    const TStateHold Hold;
    if (ADrops.Hook == nullptr)
        return nullptr;
    std::erase_if(ADrops.Told, [Now](const auto& AEntry) {
        return Now - AEntry.second >= cSecond || Now < AEntry.second;
    });
    return ADrops.Told.try_emplace(AAppender, Now).second ? ADrops.Hook : nullptr;
}

// Describes the exception that is being handled.
void Describe(TQzLogDrop& ADrop) {
    try {
        throw;
    } catch (const Exception& Error) {
        ADrop.ClassName = Error.ClassName();
        ADrop.Message = Error.Message();
    } catch (const std::exception& Error) {
        ADrop.Message = Error.what();
    } catch (...) {
        ADrop.Message = u"Unknown exception";
    }
}

} // namespace

void QzSetLogDropHook(TQzLogDropHook AHook) {
    TDrops& All = Drops();
    auto Hook = AHook ? std::make_shared<const TQzLogDropHook>(std::move(AHook)) : nullptr;
    const TStateHold Hold;
    All.Hook.swap(Hook);
    All.Told.clear();
}

std::uint64_t QzDroppedLogMessages() noexcept {
    return Drops().Count.load(std::memory_order_relaxed);
}

void detail::ForgetTelling() noexcept {
    Drops().IsTelling.store(false, std::memory_order_relaxed);
}

void detail::CountDrops(std::uint64_t ACount) noexcept {
    Drops().Count.fetch_add(ACount, std::memory_order_relaxed);
}

void detail::ReportDrop(const UnicodeString& ALogger, std::uint64_t AAppender,
                        const UnicodeString& AAppenderName) noexcept {
    TDrops& All = Drops();
    CountDrop();
    if (All.IsTelling.exchange(true, std::memory_order_acquire))
        return;
    try {
        if (const auto Hook = HookFor(All, AAppender)) {
            TQzLogDrop Drop{ALogger, AAppenderName, {}, {}};
            Describe(Drop);
            (*Hook)(Drop);
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): the hook is the last resort
    }
    All.IsTelling.store(false, std::memory_order_release);
}

} // namespace qz
