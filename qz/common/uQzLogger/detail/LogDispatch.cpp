#include <qz/common/uQzLogger/detail/LogDispatch.h>

#include <memory>

#include <qz/common/uQzLogger/DataRec.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/LogFork.h>

namespace qz::detail {
namespace {

// Bounds what appenders that log with each message can set off.
constexpr int cMostArisen = 1000;

// An object may end before the message is delivered, so that its text is taken at once.
TValue Keep(PQzDataRec AValue) {
    if (AValue == nullptr)
        return {};
    if (AValue->Kind() == tkClass || AValue->Kind() == tkVariant)
        return QzDataRecToString(AValue);
    return *AValue;
}

} // namespace

// The delivery of one message.
struct TLogDispatch::TProgress {
    TLogThread& Thread;
    std::uint64_t Except;     // the serial of the appender to leave out; 0 for none
    std::uint64_t Failed = 0; // of the appender that raised
    UnicodeString FailedName;
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
        Queue.Messages.push_back({Ref<TQzLogger>::Attach(&ALogger), AMessage.Source, AMessage.Level,
                                  AMessage.Text.ToString(), Keep(AMessage.Value), AMessage.Value != nullptr,
                                  AMessage.Indent, AThread.Failed});
    } catch (...) {
        CountDrop();
    }
}

// An appender may change the list meanwhile: what it removes gets nothing any more.
void TLogDispatch::WriteToAll(TProgress& AProgress, TAppenderSet& ASet, const UnicodeString& ALogger,
                              const TLogMessage& AMessage, const UnicodeString& AText) {
    const TGateHold Hold(ASet, AProgress.Thread);
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
        if (AMessage.Level < Node->GetLevel() || Set.IsEmpty())
            continue;
        if (Text == nullptr) {
            Made = AMessage.Text.ToString();
            Text = &Made;
        }
        WriteToAll(AProgress, Set, Node->FullName(), AMessage, *Text);
    }
}

// An exception ends the delivery. It is reported with no gate held, while the messages of the hook are
// queued.
void TLogDispatch::Deliver(TLogThread& AThread, TQzLogger& ALogger, const TLogMessage& AMessage,
                           std::uint64_t AExcept) noexcept {
    TProgress Progress{AThread, AExcept, 0, {}};
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
    if (Thread.Busy != 0)
        return Enqueue(Thread, ALogger, AMessage);
    LetForkPass();
    Deliver(Thread, ALogger, AMessage, 0);
    if (Thread.Queue != nullptr)
        Settle();
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

void TLogDispatch::SettleOne(TLogThread& AThread) noexcept {
    TLogQueue& Queue = *AThread.Queue;
    if (!Queue.Messages.empty()) {
        TQueuedMessage Message = std::move(Queue.Messages.front());
        Queue.Messages.pop_front();
        Deliver(AThread, *Message.Logger,
                {Message.Source, Message.Level, Message.Text,
                 Message.HasValue ? &Message.Value : nullptr, Message.Indent},
                Message.Except);
        return;
    }
    if (!Queue.Drops.empty()) {
        for (const TQueuedDrop& Each : std::exchange(Queue.Drops, {}))
            ReportProblem(Each.Drop, Each.Key, true);
        return;
    }
    for (TAppenderEnding& Ending : std::exchange(Queue.Endings, {}))
        Ending.Finish(AThread);
    std::exchange(Queue.Loggers, {}).clear();
}

void Settle() noexcept {
    TLogThread& Thread = ThisLogThread();
    if (Thread.Busy != 0 || Thread.IsSettling)
        return;
    Thread.IsSettling = true;
    while (Thread.Gates == 0 || !Thread.Queue->Messages.empty() || !Thread.Queue->Drops.empty()) {
        TLogDispatch::SettleOne(Thread);
        const TLogQueue& Queue = *Thread.Queue;
        if (Queue.Messages.empty() && Queue.Drops.empty() && Queue.Endings.empty() && Queue.Loggers.empty()) {
            const std::unique_ptr<TLogQueue> Done(std::exchange(Thread.Queue, nullptr));
            break;
        }
    }
    Thread.IsSettling = false;
}

} // namespace qz::detail
