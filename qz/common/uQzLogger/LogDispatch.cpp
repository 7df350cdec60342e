#include <qz/common/uQzLogger/LogDispatch.h>

#include <algorithm>
#include <deque>
#include <memory>

#include <qz/common/uQzLogger/DataRec.h>
#include <qz/common/uQzLogger/LogAppenderCore.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/QzLogger.h>

namespace qz::detail {

// A message of a thread that could not send it when it arose.
struct TWaitingMessage {
    Ref<TQzLogger> Logger;
    UnicodeString Source;
    TQzLogLevel Level;
    UnicodeString Text;
    TValue Value;
    bool HasValue;
    TQzLogIndent Indent;
    std::vector<std::uint64_t> Skipped;
};

// Appenders that wait for their end.
struct TWaitingRemoved {
    TLogAppenderCorePtr Core;
    std::vector<Ref<IQzLogAppender>> Items;
};

struct TWaitingMessages {
    std::deque<TWaitingMessage> Items;
    std::deque<TWaitingRemoved> Removed;
    std::vector<Ref<TQzLogger>> Loggers;
    int Arisen = 0; // since the thread was free
};

namespace {

// Appenders that log with each message would set off a flood: what goes beyond is dropped.
constexpr int cMostWaiting = 1000;

// An object may be gone when its turn comes, so that its text is taken at once.
TValue Keep(PQzDataRec AValue) {
    if (AValue == nullptr)
        return {};
    if (AValue->Kind() == tkClass || AValue->Kind() == tkVariant)
        return QzDataRecToString(AValue);
    return *AValue;
}

TWaitingMessages& Waiting(TLogThread& AThread) {
    if (AThread.Waiting == nullptr)
        AThread.Waiting = std::make_unique<TWaitingMessages>().release();
    return *AThread.Waiting;
}

void Enqueue(TQzLogger& ALogger, const TLogMessage& AMessage) noexcept {
    try {
        TLogThread& Thread = ThisLogThread();
        if (++Waiting(Thread).Arisen > cMostWaiting)
            return CountDrop();
        if (!ALogger.TryAddRef())
            return CountDrop();
        TWaitingMessage Message{Ref<TQzLogger>::Attach(&ALogger),
                                AMessage.Source,
                                AMessage.Level,
                                AMessage.Text.ToString(),
                                Keep(AMessage.Value),
                                AMessage.Value != nullptr,
                                AMessage.Indent,
                                {}};
        if (const TLogDispatch* Present = Thread.Present) {
            Message.Skipped = Present->Skipped;
            for (const std::uint64_t Serial : {Present->Writing, Present->Failed}) {
                if (Serial != 0)
                    Message.Skipped.push_back(Serial);
            }
        }
        Thread.Waiting->Items.push_back(std::move(Message));
    } catch (...) {
        CountDrop();
    }
}

void WriteTo(TLogDispatch& APresent, const TAppenderEntry& AEntry, const TQzLogger& ALogger,
             const TLogMessage& AMessage, const UnicodeString& AText) {
    APresent.Writing = AEntry.Serial;
    try {
        AEntry.Appender->Write(AMessage.Source, ALogger.FullName(), AMessage.Level, AText, AMessage.Value,
                               AMessage.Indent);
    } catch (...) {
        APresent.Writing = 0;
        APresent.Failed = AEntry.Serial;
        APresent.FailedName = AEntry.Appender->GetName();
        throw;
    }
    APresent.Writing = 0;
}

void WriteToAppenders(TLogDispatch& APresent, const TQzLogger& ALogger, const TLogMessage& AMessage,
                      const UnicodeString& AText) {
    TLogAppenderCore& Core = ALogger.AppenderCore();
    const TLogGate Gate(Core);
    const std::uint32_t Version = Core.Version();
    for (const TAppenderEntry& Entry : Core.Items()) {
        const bool IsSkipped = std::find(APresent.Skipped.begin(), APresent.Skipped.end(), Entry.Serial) !=
            APresent.Skipped.end();
        if (!IsSkipped && (Core.Version() == Version || Core.Holds(Entry.Appender)))
            WriteTo(APresent, Entry, ALogger, AMessage, AText);
    }
}

void Walk(TLogDispatch& APresent, TQzLogger& ALogger, const TLogMessage& AMessage) {
    UnicodeString Made;
    const UnicodeString* Text = AMessage.Text.Source();
    for (const TQzLogger* Node = &ALogger; Node != nullptr; Node = Node->NextOnTheWay()) {
        if (AMessage.Level < Node->GetLevel() || Node->AppenderCore().IsEmpty())
            continue;
        if (Text == nullptr) {
            Made = AMessage.Text.ToString();
            Text = &Made;
        }
        Node->FullName(); // found out before the gate
        WriteToAppenders(APresent, *Node, AMessage, *Text);
    }
}

// What was raised ends the way of the message, and is told when no gate is held any more. The thread is sending.
void Send(TQzLogger& ALogger, const TLogMessage& AMessage, std::vector<std::uint64_t> ASkipped) noexcept {
    TLogThread& Thread = ThisLogThread();
    TLogDispatch Present{&ALogger, 0, 0, {}, {}};
    Present.Skipped = std::move(ASkipped);
    Thread.Present = &Present;
    try {
        Walk(Present, ALogger, AMessage);
    } catch (...) {
        ReportDrop(ALogger.FullNameIfKnown(), Present.Failed, Present.FailedName);
    }
    Thread.Present = nullptr;
}

// The thread is sending.
void SendAllWaiting() noexcept {
    TLogThread& Thread = ThisLogThread();
    while (Thread.Waiting != nullptr) {
        if (!Thread.Waiting->Removed.empty()) {
            TWaitingRemoved Removed = std::move(Thread.Waiting->Removed.front());
            Thread.Waiting->Removed.pop_front();
            Removed.Core->LetGo(Removed.Items);
            continue;
        }
        if (Thread.Waiting->Items.empty()) {
            const std::unique_ptr<TWaitingMessages> Done(std::exchange(Thread.Waiting, nullptr));
            Thread.IsSending = false; // so that loggers may end
            Done->Loggers.clear();
            Thread.IsSending = true;
            continue;
        }
        TWaitingMessage Message = std::move(Thread.Waiting->Items.front());
        Thread.Waiting->Items.pop_front();
        Send(*Message.Logger,
             {Message.Source, Message.Level, TStringArg(Message.Text),
              Message.HasValue ? &Message.Value : nullptr, Message.Indent},
             std::move(Message.Skipped));
    }
}

bool IsFree(const TLogThread& AThread) {
    return AThread.Gates == 0 && AThread.Trees == 0 && !AThread.IsSending;
}

} // namespace

bool LetGoLater(TLogAppenderCore& ACore, std::vector<Ref<IQzLogAppender>>& ARemoved) noexcept {
    try {
        Waiting(ThisLogThread()).Removed.push_back({ACore.shared_from_this(), {}});
        ThisLogThread().Waiting->Removed.back().Items.swap(ARemoved);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ReleaseLater(TQzLogger& ALogger) noexcept {
    try {
        std::vector<Ref<TQzLogger>>& Loggers = Waiting(ThisLogThread()).Loggers;
        if (Loggers.size() == Loggers.capacity())
            Loggers.reserve(2 * Loggers.size() + 1);
        Loggers.push_back(Ref<TQzLogger>::Attach(&ALogger));
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void SendWaiting() noexcept {
    TLogThread& Thread = ThisLogThread();
    if (!IsFree(Thread))
        return;
    Thread.IsSending = true;
    SendAllWaiting();
    Thread.IsSending = false;
}

void Dispatch(TQzLogger& ALogger, const TLogMessage& AMessage) noexcept {
    TLogThread& Thread = ThisLogThread();
    if (!IsFree(Thread))
        return Enqueue(ALogger, AMessage);
    Thread.IsSending = true;
    Send(ALogger, AMessage, {});
    SendAllWaiting();
    Thread.IsSending = false;
}

} // namespace qz::detail
