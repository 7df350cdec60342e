// The appenders of one logger as dispatch and changes share them. Internal.
//
// The entries are an immutable snapshot, which a change replaces as a whole. A thread that walks a snapshot
// holds the gate. A thread that replaces it deletes the old one only after holding the gate itself. So the
// walk counts no references and takes no second lock. A thread that may not wait for the gate replaces the
// snapshot at once, and its queue keeps the old one and the removed appenders until it may wait
// (LogDispatch.h).
#pragma once

#include <memory>
#include <span>
#include <vector>

#include <qz/common/uQzLogger/LogInterfaces.h>
#include <qz/common/uQzLogger/detail/LogThread.h>

namespace qz {

class TQzLogBase;
class TQzLogger;

namespace detail {

// The serial identifies an appender for good, while another one may get its address later.
struct TAppenderEntry {
    IQzLogAppender* Appender;
    TComponent* Component;
    TQzLogBase* Base; // null for an appender that does not derive from TQzLogBase
    std::uint64_t Serial;
};

using TAppenderEntries = std::vector<TAppenderEntry>;

class TAppenderSet : public std::enable_shared_from_this<TAppenderSet> {
public:
    // AList is notified when an appender that is no TQzLogBase is destroyed.
    TAppenderSet(TQzLogger* ALogger, TComponent& AList) noexcept;
    TAppenderSet(const TAppenderSet&) = delete;
    TAppenderSet& operator=(const TAppenderSet&) = delete;
    ~TAppenderSet();

    // The gate, which re-enters.
    void Enter(TLogThread& AThread) noexcept {
        FGate->Enter();
        ++AThread.Gates;
    }
    // Waits for so many milliseconds at most; false if another thread holds the gate all the time.
    bool TryEnter(TLogThread& AThread, std::uint32_t ATimeOut) noexcept {
        const bool Result = FGate->TryEnter(ATimeOut);
        AThread.Gates += Result ? 1 : 0;
        return Result;
    }
    void Leave(TLogThread& AThread) noexcept {
        FGate->Leave();
        if (--AThread.Gates == 0 && AThread.Queue != nullptr)
            Settle();
    }
    bool IsHeldByCaller() noexcept;

    // Null when there are none. The caller holds the gate as long as it uses them.
    const TAppenderEntries* Entries() const noexcept { return FEntries.load(std::memory_order_acquire); }
    // Any thread.
    bool IsEmpty() const noexcept { return FEntries.load(std::memory_order_relaxed) == nullptr; }
    bool Holds(const IQzLogAppender* AAppender) const noexcept;
    int Count() const noexcept;
    // Null for an index out of range.
    Ref<IQzLogAppender> Item(int AIndex) const;

    // Appends, unless the appender is in the list.
    void Add(IQzLogAppender* AAppender);
    // Removes the appender, the appenders of that component, or all. If the caller may wait, nothing is
    // written to them any more when this returns.
    void Remove(const IQzLogAppender* AAppender);
    void Remove(const TComponent* AComponent);
    void Clear();
    // As Remove, for a component that ends and was not counted.
    void Forget(const TComponent* AComponent);

    // The logger ends.
    void LoseLogger() noexcept;
    // In the child of a fork, under the state lock: frees the gate if a thread of the parent held it, and
    // drops the lost appenders without a release.
    void BeginChild(std::span<TQzLogBase* const> ALost);

private:
    class TChange;
    template <class TIsMeant> void RemoveIf(TIsMeant AIsMeant, bool AReleases);
    void Publish(std::unique_ptr<const TAppenderEntries> AEntries) noexcept;

    TComponent& FList;
    std::unique_ptr<TQzCriticalSection> FGate;
    std::atomic<const TAppenderEntries*> FEntries{nullptr};
    // Guarded by the state lock.
    std::unique_ptr<const TAppenderEntries> FLatest; // FEntries
    std::vector<Ref<IQzLogAppender>> FOwned;         // a reference for each of FLatest, in the same order
    TQzLogger* FLogger;
};

using TAppenderSetPtr = std::shared_ptr<TAppenderSet>;

// Removed appenders and the snapshot that held them, to be released after the gate was held.
struct TAppenderEnding {
    TAppenderSetPtr Set;
    std::unique_ptr<const TAppenderEntries> Entries;
    std::vector<Ref<IQzLogAppender>> Removed;

    // Waits for the gate, then releases.
    void Finish(TLogThread& AThread) noexcept;
    // Appenders may end here; what they raise is reported as a drop.
    void Release() noexcept;
};

// Holds the gate for a block.
class [[nodiscard]] TGateHold {
public:
    TGateHold(TAppenderSet& ASet, TLogThread& AThread) noexcept : FSet(ASet), FThread(AThread) {
        FSet.Enter(FThread);
    }
    ~TGateHold() { FSet.Leave(FThread); }
    TGateHold(const TGateHold&) = delete;
    TGateHold& operator=(const TGateHold&) = delete;

private:
    TAppenderSet& FSet;
    TLogThread& FThread;
};

} // namespace detail

} // namespace qz
