// The appenders of one logger as dispatch and changes share them. Internal.
//
// Two locks guard a list. The gate is held while appenders are written to, and by whoever walks the list; the other one
// is held for moments only, and nothing is called under it but Component of the appenders. A change replaces the items under the second lock and then
// waits at the gate until no message is on its way to those that were there before. A thread that is itself writing to an
// appender, or holds the lock of the tree, does not wait: whoever it waited for might wait for it. The old items live as
// long as some message is on its way to them.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include "common/uQzLogger/LogInterfaces.h"
#include "common/uQzThreads/CriticalSection.h"

namespace qz::detail {

using TAppenders = std::vector<Ref<IQzLogAppender>>;
using TAppenderSnapshot = std::shared_ptr<const TAppenders>;

class TLogAppenderCore {
public:
    explicit TLogAppenderCore(TQzLogger* ALogger) noexcept : FLogger(ALogger) {}

    TQzCriticalSection& Gate() noexcept { return FGate; }

    // Any thread.
    bool IsEmpty() const noexcept { return FCount.load(std::memory_order_relaxed) == 0; }
    int Count() const noexcept { return FCount.load(std::memory_order_relaxed); }
    // Counts the changes.
    std::uint32_t Version() const noexcept { return FVersion.load(std::memory_order_acquire); }
    // Never null.
    TAppenderSnapshot Items() const;
    bool Holds(const IQzLogAppender* AAppender) const;

    // False when it is there already.
    bool Add(IQzLogAppender* AAppender);
    // Takes out what ACondition says, and waits as told above. The items before the change, which the caller drops when it
    // holds no lock; null when nothing changed.
    template <class TCondition> TAppenderSnapshot RemoveIf(const TCondition& ACondition) {
        const auto Fresh = std::make_shared<TAppenders>();
        TAppenderSnapshot Old;
        {
            const std::lock_guard Hold(FLock);
            for (const Ref<IQzLogAppender>& Item : *FItems) {
                if (!ACondition(*Item))
                    Fresh->push_back(Item);
            }
            if (Fresh->size() != FItems->size())
                Old = Replace(Fresh);
        }
        if (Old != nullptr) {
            Changed();
            AwaitWrites();
        }
        return Old;
    }

    // Keeps all changes out, for a moment.
    void LockItems() { FLock.lock(); }
    void UnlockItems() { FLock.unlock(); }

    // Tells the logger that it has other appenders. It has no logger any more after LoseLogger.
    void Changed();
    void LoseLogger();

private:
    TAppenderSnapshot Replace(TAppenderSnapshot AItems);
    void AwaitWrites();

    TQzCriticalSection FGate;
    mutable std::mutex FLock; // innermost
    TAppenderSnapshot FItems = std::make_shared<TAppenders>();
    std::atomic<int> FCount{0};
    std::atomic<std::uint32_t> FVersion{0};
    TQzLogger* FLogger; // guarded by the lock of the tree
};

using TLogAppenderCorePtr = std::shared_ptr<TLogAppenderCore>;

} // namespace qz::detail
