// The appenders of one logger as dispatch and changes share them. Internal.
//
// Two locks guard a list. The gate is held while appenders are written to, by whoever walks the list, and by a change; the
// other one is held for moments, and nothing is called under it but Component of the appenders. A thread that may not wait
// for the gate (LogTreeLock.h) changes the items without it. What it removes lives on until somebody who holds the gate
// lets go of it, since messages on their way do not count what they write to.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include <qz/common/uQzLogger/LogInterfaces.h>
#include <qz/common/uQzLogger/LogTreeLock.h>

namespace qz::detail {

// An appender by a number that no other one ever has, while its address may be another one's some day.
struct TAppenderEntry {
    IQzLogAppender* Appender;
    std::uint64_t Serial;
};

// The appenders as they were between two changes.
struct TAppenderSnapshot {
    std::vector<TAppenderEntry> Items;
    std::unique_ptr<TAppenderSnapshot> Older; // which somebody who holds the gate may still walk

    bool Holds(const IQzLogAppender* AAppender) const noexcept;
};

class TLogAppenderCore : public std::enable_shared_from_this<TLogAppenderCore> {
public:
    explicit TLogAppenderCore(TQzLogger* ALogger) noexcept : FLogger(ALogger) {}
    TLogAppenderCore(const TLogAppenderCore&) = delete;
    TLogAppenderCore& operator=(const TLogAppenderCore&) = delete;
    ~TLogAppenderCore() { DropOlder(); }

    // The gate, which re-enters. Whoever leaves it last lets go of what was removed, when he holds no gate and no tree.
    void EnterGate() noexcept;
    bool TryEnterGate(std::uint32_t ATimeOut) noexcept;
    void LeaveGate() noexcept;
    // Whether the calling thread holds it.
    bool HoldsGate() noexcept;

    // Any thread.
    bool IsEmpty() const noexcept { return FCount.load(std::memory_order_relaxed) == 0; }
    int Count() const noexcept { return FCount.load(std::memory_order_relaxed); }
    // Counts the changes.
    std::uint32_t Version() const noexcept { return FVersion.load(std::memory_order_acquire); }
    // The caller holds the gate as long as it uses them.
    const std::vector<TAppenderEntry>& Items() const noexcept {
        return FSnapshot.load(std::memory_order_acquire)->Items;
    }
    bool Holds(const IQzLogAppender* AAppender) const;
    // Null for an index outside.
    Ref<IQzLogAppender> Item(int AIndex) const;

    // At the end; nothing when it is there already.
    void Add(IQzLogAppender* AAppender);
    // Those of that component, or all for null. Waits until no message is on its way to them, where the thread may.
    void Remove(const TComponent* AComponent);
    // Waits until those that were removed before are let go of, where the thread may.
    void AwaitLetGo() noexcept;
    // Ends references that LeaveGate has taken.
    void LetGo(std::vector<Ref<IQzLogAppender>>& ARemoved) noexcept;

    // Keeps all changes out, for a moment.
    bool TryLockItems() { return FLock.try_lock(); }
    void UnlockItems() { FLock.unlock(); }

    // In the child of a fork, where this thread is the only one.
    void ForgetThreads() noexcept { FLettingGo = ThisLogThread().IsLettingGo ? 1 : 0; }

    // There is no logger any more to be told of changes.
    void LoseLogger();

private:
    class TChange;
    void Publish(std::unique_ptr<TAppenderSnapshot> ASnapshot) noexcept;
    void DropOlder() noexcept;
    void Changed();
    bool Insert(IQzLogAppender* AAppender);
    bool Extract(const TComponent* AComponent);
    void TakeRemoved(std::vector<Ref<IQzLogAppender>>& ATarget) noexcept;

    TQzCriticalSection FGate;
    mutable std::mutex FLock; // innermost
    std::vector<Ref<IQzLogAppender>> FItems;
    std::vector<Ref<IQzLogAppender>> FRemoved;
    std::unique_ptr<TAppenderSnapshot> FLatest = std::make_unique<TAppenderSnapshot>();
    std::atomic<const TAppenderSnapshot*> FSnapshot{FLatest.get()};
    std::atomic<int> FCount{0};
    std::atomic<bool> FHasRemoved{false};
    std::atomic<int> FLettingGo{0}; // threads that have taken removed ones and not yet ended them
    std::atomic<std::uint32_t> FVersion{0};
    TQzLogger* FLogger; // guarded by the lock of the tree
};

using TLogAppenderCorePtr = std::shared_ptr<TLogAppenderCore>;

// Holds the gate for a block.
class [[nodiscard]] TLogGate {
public:
    explicit TLogGate(TLogAppenderCore& ACore) noexcept : FCore(ACore) { FCore.EnterGate(); }
    ~TLogGate() { FCore.LeaveGate(); }
    TLogGate(const TLogGate&) = delete;
    TLogGate& operator=(const TLogGate&) = delete;

private:
    TLogAppenderCore& FCore;
};

} // namespace qz::detail
