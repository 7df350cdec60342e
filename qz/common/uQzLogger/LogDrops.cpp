#include <qz/common/uQzLogger/LogDrops.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <map>
#include <memory>

#include <qz/common/uQzLogger/detail/LogDispatch.h>
#include <qz/platform/Clock.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using detail::TStateHold;

constexpr std::int64_t cSecond = 10'000'000;
constexpr std::size_t cMostQueued = 32;

void Print(const TQzLogDrop& ADrop) {
    UnicodeString Line = u"log";
    for (const UnicodeString& Part : {ADrop.Logger, ADrop.Appender, ADrop.ClassName, ADrop.Message}) {
        if (!Part.IsEmpty())
            Line += u": " + Part;
    }
    std::fprintf(stderr, "%s\n", std::string(Line).c_str());
}

// Lives to the very end of the process. The first three are guarded by the state lock.
struct TDrops {
    std::shared_ptr<const TQzLogDropHook> Hook;
    std::map<std::uint64_t, std::int64_t> LastCalls; // the time of the last call, by key
    std::vector<detail::TQueuedDrop> Waiting;        // for the thread that runs the hook
    const std::shared_ptr<const TQzLogDropHook> Printer = std::make_shared<const TQzLogDropHook>(Print);
    std::atomic<std::uint64_t> Count{0};
    std::atomic<bool> IsCalling{false};
    std::atomic<bool> HasWaiting{false};
    std::atomic<bool> Prints{false};
    std::atomic<bool> HasLostFatal{false};
};

TDrops& Drops() {
    static auto* const Result = new TDrops;
    return *Result;
}

// The hook, unless it was called for the key within a second. Old entries are removed.
std::shared_ptr<const TQzLogDropHook> HookFor(TDrops& ADrops, std::uint64_t AKey) {
    const std::int64_t Now = platform::UtcNow100ns();
    const TStateHold Hold;
    auto Hook = ADrops.Hook == nullptr && ADrops.Prints ? ADrops.Printer : ADrops.Hook;
    if (Hook == nullptr || AKey == detail::TDropKey::Unlimited)
        return Hook;
    std::erase_if(ADrops.LastCalls, [Now](const auto& AEntry) {
        return Now - AEntry.second >= cSecond || Now < AEntry.second;
    });
    return ADrops.LastCalls.try_emplace(AKey, Now).second ? Hook : nullptr;
}

// Adds the drop unless one of that key waits already.
void AddDrop(std::vector<detail::TQueuedDrop>& ADrops, const TQzLogDrop& ADrop, std::uint64_t AKey) {
    const bool IsKnown = AKey != detail::TDropKey::Unlimited &&
        std::ranges::find(ADrops, AKey, &detail::TQueuedDrop::Key) != ADrops.end();
    if (!IsKnown && ADrops.size() < cMostQueued)
        ADrops.push_back({ADrop, AKey});
}

// The calling thread is the one that runs the hook. Messages of the hook are queued, and do not reach the
// appender of that serial.
void RunHook(TDrops& AAll, const TQzLogDrop& ADrop, std::uint64_t AKey) noexcept {
    detail::TLogThread& Thread = detail::ThisLogThread();
    Thread.IsInHook = true;
    Thread.Failed = AKey;
    try {
        if (const auto Hook = HookFor(AAll, AKey))
            (*Hook)(ADrop);
    } catch (...) { // NOLINT(bugprone-empty-catch): the hook is the last resort
    }
    Thread.Failed = 0;
    Thread.IsInHook = false;
}

// For drops that arose while another thread ran the hook. Either that thread finds them when it is done, or
// the one that added them finds the hook free.
void RunHookForWaiting(TDrops& AAll) noexcept {
    while (AAll.HasWaiting && !AAll.IsCalling.exchange(true)) {
        std::vector<detail::TQueuedDrop> Waiting;
        {
            const TStateHold Hold;
            AAll.HasWaiting = false;
            Waiting.swap(AAll.Waiting);
        }
        for (const detail::TQueuedDrop& Each : Waiting)
            RunHook(AAll, Each.Drop, Each.Key);
        AAll.IsCalling = false;
    }
}

// One thread at a time runs the hook; drops of others wait for it.
void CallHook(const TQzLogDrop& ADrop, std::uint64_t AKey) noexcept {
    TDrops& All = Drops();
    if (!All.IsCalling.exchange(true)) {
        RunHook(All, ADrop, AKey);
        All.IsCalling = false;
    } else {
        try {
            const TStateHold Hold;
            AddDrop(All.Waiting, ADrop, AKey);
            All.HasWaiting = true;
        } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch): it is counted all the same
        }
    }
    RunHookForWaiting(All);
    if (detail::ThisLogThread().Queue != nullptr)
        detail::Settle();
}

// Leaves the call to the time when the thread is free. False if there is no memory.
bool Queue(const TQzLogDrop& ADrop, std::uint64_t AKey) noexcept {
    try {
        AddDrop(detail::QueueOf(detail::ThisLogThread()).Drops, ADrop, AKey);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
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
    All.LastCalls.clear();
    All.HasLostFatal = false;
}

std::uint64_t QzDroppedLogMessages() noexcept {
    return Drops().Count.load(std::memory_order_relaxed);
}

void QzPrintLogDrops(bool AValue) noexcept {
    Drops().Prints = AValue;
    Drops().HasLostFatal = false;
}

void detail::ForgetHookCall() noexcept {
    Drops().IsCalling.store(false, std::memory_order_relaxed);
    Drops().HasWaiting = false;
    Drops().Waiting.clear();
}

void detail::CountDrops(std::uint64_t ACount) noexcept {
    Drops().Count.fetch_add(ACount, std::memory_order_relaxed);
}

void detail::ReportFailure(const UnicodeString& ALogger, std::uint64_t AKey,
                           const UnicodeString& AAppender) noexcept {
    try {
        TQzLogDrop Drop{ALogger, AAppender, {}, {}};
        Describe(Drop);
        ReportProblem(Drop, AKey);
    } catch (...) { // NOLINT(bugprone-empty-catch): no memory for a description
    }
}

void detail::ReportDrop(const UnicodeString& ALogger, std::uint64_t AKey,
                        const UnicodeString& AAppender) noexcept {
    CountDrop();
    ReportFailure(ALogger, AKey, AAppender);
}

void detail::ReportLoss(std::uint64_t ACount, const UnicodeString& ALogger, const UnicodeString& AAppender,
                        const UnicodeString& AMessage, std::uint64_t AKey) noexcept {
    CountDrops(ACount);
    ReportProblem({ALogger, AAppender, {}, AMessage}, AKey);
}

void detail::ReportProblem(const TQzLogDrop& ADrop, std::uint64_t AKey) noexcept {
    const TLogThread& Thread = ThisLogThread();
    const bool IsFree = Thread.MayWait() && Thread.Trees == 0 && !Thread.IsInHook;
    if (IsFree || !Queue(ADrop, AKey))
        CallHook(ADrop, AKey);
}

void detail::ReportLostFatal(const UnicodeString& ALogger, const UnicodeString& AMessage) noexcept {
    if (Drops().HasLostFatal.exchange(true))
        return;
    try {
        ReportProblem({ALogger, {}, {}, u"No appender for the fatal message: " + AMessage});
    } catch (...) { // NOLINT(bugprone-empty-catch): no memory for the text
    }
}

} // namespace qz
