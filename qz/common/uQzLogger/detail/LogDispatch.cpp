#include <qz/common/uQzLogger/detail/LogDispatch.h>

#include <memory>

#include <qz/common/uQzLogger/DataRec.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/LogFork.h>

namespace qz::detail {
namespace {

// Bounds what appenders that log with each message can set off.
constexpr int cMostArisen = 1000;

constexpr std::uint32_t cPatience = 100; // milliseconds, for the gates beside one that the thread holds

// An object may end before the message is delivered, so that its texts are taken at once.
void KeepValue(TQueuedMessage& AMessage, PQzDataRec AValue) {
    AMessage.HasValue = AValue != nullptr;
    if (AValue == nullptr)
        return;
    const bool IsObject = AValue->Kind() == tkClass;
    AMessage.Value = IsObject || AValue->Kind() == tkVariant ? TValue(AValue->ToString()) : *AValue;
    if (IsObject)
        AMessage.Dump = QzDataRecToString(AValue);
}

} // namespace

// The delivery of one message.
struct TLogDispatch::TProgress {
    TLogThread& Thread;
    std::uint64_t Except;     // the serial of the appender to leave out; 0 for none
    std::uint64_t Failed = 0; // of the appender that raised
    UnicodeString FailedName;
    const TQzLogger* Last = nullptr; // the last logger whose gate the thread holds; null: no limit
};

void TLogQueue::ReserveEnding() {
    if (Endings.size() == Endings.capacity())
        Endings.reserve(2 * Endings.size() + 1);
}

TLogQueue& QueueOf(TLogThread& AThread) {
    if (AThread.Queue == nullptr)
        AThread.Queue = std::make_unique<TLogQueue>().release();
    return *AThread.Queue;
}

void TLogDispatch::Enqueue(TLogThread& AThread, TQzLogger& ALogger, const TLogMessage& AMessage) noexcept {
    try {
        TLogQueue& Queue = QueueOf(AThread);
        if (++Queue.Arisen > cMostArisen) {
            const UnicodeString Reason = u"More than 1000 messages arose while one was delivered";
            return ReportLoss(1, AMessage.Source, {}, Reason, TDropKey::QueueLimit);
        }
        if (!ALogger.TryAddRef({}))
            return CountDrop();
        TQueuedMessage Message{Ref<TQzLogger>::Attach(&ALogger),
                               AMessage.Source,
                               AMessage.Level,
                               AMessage.Text.ToString(),
                               {},
                               false,
                               {},
                               AMessage.Indent,
                               AThread.Failed};
        KeepValue(Message, AMessage.Value);
        Queue.Messages.push_back(std::move(Message));
    } catch (...) {
        CountDrop();
    }
}

// An appender may change the list meanwhile: what it removes gets nothing any more.
void TLogDispatch::WriteToAll(TProgress& AProgress, TAppenderSet& ASet, const UnicodeString& ALogger,
                              const TLogMessage& AMessage, const UnicodeString& AText) {
    const TGateHold Hold(ASet, AProgress.Thread);
    LetForkPass();
    const TAppenderEntries* const Entries = ASet.Entries();
    if (Entries == nullptr)
        return;
    for (const TAppenderEntry& Entry : *Entries) {
        if (Entry.Serial == AProgress.Except || (ASet.Entries() != Entries && !ASet.Holds(Entry.Appender)))
            continue;
        try {
            Entry.Appender->Write(AMessage.Source, ALogger, AMessage.Level, AText, AMessage.Value,
                                  AMessage.Indent);
        } catch (...) {
            AProgress.Failed = Entry.Serial;
            AProgress.FailedName = Entry.Appender->GetName();
            throw;
        }
    }
}

// A child holds its parent, so that the way up needs no lock.
void TLogDispatch::Walk(TProgress& AProgress, const TQzLogger& ALogger, const TLogMessage& AMessage) {
    UnicodeString Made;
    const UnicodeString* Text = AMessage.Text.Source();
    for (const TQzLogger* Node = &ALogger; Node != nullptr; Node = Node->NextOnTheWay({})) {
        TAppenderSet& Set = Node->AppenderSet({});
        if (AMessage.Level >= Node->GetLevel() && !Set.IsEmpty()) {
            if (Text == nullptr) {
                Made = AMessage.Text.ToString();
                Text = &Made;
            }
            WriteToAll(AProgress, Set, Node->FullName(), AMessage, *Text);
        }
        if (Node == AProgress.Last)
            return; // the logger became additive after the gates were taken
    }
}

// An exception ends the delivery. It is reported when the thread is free.
void TLogDispatch::Deliver(TLogThread& AThread, TQzLogger& ALogger, const TLogMessage& AMessage,
                           std::uint64_t AExcept, const TQzLogger* ALast) noexcept {
    TProgress Progress{AThread, AExcept, 0, {}, ALast};
    ++AThread.Busy;
    try {
        Walk(Progress, ALogger, AMessage);
    } catch (...) {
        ReportDrop(AMessage.Source, Progress.Failed, Progress.FailedName);
    }
    --AThread.Busy;
}

void TLogDispatch::Send(TQzLogger& ALogger, const TLogMessage& AMessage) noexcept {
    TLogThread& Thread = ThisLogThread();
    // While the queue is settled, a configurator may log under the lock of an appender and after it.
    if (Thread.QueuesMessages() || (Thread.IsSettling && !Thread.Queue->Messages.empty()))
        return Enqueue(Thread, ALogger, AMessage);
    LetForkPass();
    if (Thread.Gates != 0)
        return SendWithGates(Thread, ALogger, AMessage);
    Deliver(Thread, ALogger, AMessage, 0);
    if (Thread.Queue != nullptr)
        Settle();
}

// The gates on the way of a message.
class TLogDispatch::TGates {
public:
    explicit TGates(TLogThread& AThread) noexcept : FThread(AThread) {}
    TGates(const TGates&) = delete;
    TGates& operator=(const TGates&) = delete;
    ~TGates() {
        for (TAppenderSet* Each : FHeld)
            Each->Leave(FThread);
    }
    // False if another thread holds one of them, or if there is no memory.
    bool TryEnter(const TQzLogger& ALogger) noexcept {
        for (const TQzLogger* Node = &ALogger; Node != nullptr; Node = Node->NextOnTheWay({})) {
            try {
                FHeld.reserve(FHeld.size() + 1);
            } catch (const std::bad_alloc&) {
                return false;
            }
            if (!Node->AppenderSet({}).TryEnter(FThread, cPatience))
                return false;
            FHeld.push_back(&Node->AppenderSet({}));
            FLast = Node;
        }
        return true;
    }
    // The logger of the last gate.
    const TQzLogger* Last() const noexcept { return FLast; }

private:
    TLogThread& FThread;
    const TQzLogger* FLast = nullptr;
    std::vector<TAppenderSet*> FHeld;
};

// For a thread that holds the list of a logger: if it waited for the gate of another one, two such threads
// could wait for each other.
void TLogDispatch::SendWithGates(TLogThread& AThread, TQzLogger& ALogger,
                                 const TLogMessage& AMessage) noexcept {
    const bool OthersWait = AThread.Queue != nullptr && !AThread.Queue->Messages.empty();
    TGates Gates(AThread);
    if (!OthersWait && Gates.TryEnter(ALogger))
        Deliver(AThread, ALogger, AMessage, 0, Gates.Last());
    else
        Enqueue(AThread, ALogger, AMessage);
    if (AThread.Queue != nullptr && !AThread.IsSettling)
        SettleWithGates(AThread);
}

// Delivers queued messages up to the first one on whose way another thread holds a gate.
void TLogDispatch::SettleWithGates(TLogThread& AThread) noexcept {
    AThread.IsSettling = true;
    TLogQueue& Queue = *AThread.Queue;
    Queue.Arisen = static_cast<int>(Queue.Messages.size());
    while (!Queue.Messages.empty()) {
        TGates Gates(AThread);
        if (!Gates.TryEnter(*Queue.Messages.front().Logger))
            break;
        const TQueuedMessage Message = std::move(Queue.Messages.front());
        Queue.Messages.pop_front();
        DeliverQueued(AThread, Message, Gates.Last());
    }
    AThread.IsSettling = false;
}

bool TLogDispatch::ReleaseLater(TQzLogger& ALogger) noexcept {
    try {
        std::vector<Ref<TQzLogger>>& Loggers = QueueOf(ThisLogThread()).Loggers;
        if (Loggers.size() == Loggers.capacity())
            Loggers.reserve(2 * Loggers.size() + 1);
        Loggers.push_back(Ref<TQzLogger>::Attach(&ALogger));
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// Releases the loggers later, since their ends need locks that the handler of a fork has.
void TLogDispatch::DropMessages() noexcept {
    TLogQueue* const Queue = ThisLogThread().Queue;
    if (Queue == nullptr)
        return;
    try {
        Queue->Loggers.reserve(Queue->Loggers.size() + Queue->Messages.size());
    } catch (const std::bad_alloc&) {
        return; // the child delivers them too
    }
    for (TQueuedMessage& Message : Queue->Messages)
        Queue->Loggers.push_back(std::move(Message.Logger));
    Queue->Messages.clear();
    Queue->Drops.clear();
}

void TLogDispatch::DeliverQueued(TLogThread& AThread, const TQueuedMessage& AMessage,
                                 const TQzLogger* ALast) noexcept {
    if (!AMessage.Dump.IsEmpty()) {
        AThread.DumpedValue = &AMessage.Value;
        AThread.Dump = &AMessage.Dump;
    }
    Deliver(AThread, *AMessage.Logger,
            {AMessage.Source, AMessage.Level, AMessage.Text, AMessage.HasValue ? &AMessage.Value : nullptr,
             AMessage.Indent},
            AMessage.Except, ALast);
    AThread.DumpedValue = nullptr;
}

// Does what is first in the queue. False if that was empty.
bool TLogDispatch::SettleOne(TLogThread& AThread) noexcept {
    TLogQueue& Queue = *AThread.Queue;
    if (!Queue.Messages.empty()) {
        const TQueuedMessage Message = std::move(Queue.Messages.front());
        Queue.Messages.pop_front();
        DeliverQueued(AThread, Message);
    } else if (!Queue.Drops.empty() && AThread.Trees == 0) {
        for (const TQueuedDrop& Each : std::exchange(Queue.Drops, {}))
            ReportProblem(Each.Drop, Each.Key);
    } else if (!Queue.Configurations.empty()) {
        for (const TQueuedConfiguration& Each : std::exchange(Queue.Configurations, {})) {
            try {
                Each.Logger->SetConfig(Each.Configurator.Get());
            } catch (...) {
                ReportFailure(Each.Logger->FullName(), 0, {});
            }
        }
    } else if (!Queue.Endings.empty() || !Queue.Loggers.empty()) {
        for (TAppenderEnding& Ending : std::exchange(Queue.Endings, {}))
            Ending.Finish(AThread);
        std::exchange(Queue.Loggers, {}).clear();
    } else {
        if (Queue.Drops.empty())
            const std::unique_ptr<TLogQueue> Done(std::exchange(AThread.Queue, nullptr));
        return false;
    }
    return true;
}

void Settle() noexcept {
    TLogThread& Thread = ThisLogThread();
    if (!Thread.MayWait() || Thread.IsSettling || Thread.IsInHook)
        return;
    Thread.IsSettling = true;
    Thread.Queue->Arisen = static_cast<int>(Thread.Queue->Messages.size());
    while (TLogDispatch::SettleOne(Thread)) {}
    Thread.IsSettling = false;
}

} // namespace qz::detail
