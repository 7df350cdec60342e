// The delivery of a message from its logger up to the root, and the queue of a thread. Internal.
#pragma once

#include <deque>
#include <vector>

#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/LogInterfaces.h>
#include <qz/common/uQzLogger/LogText.h>
#include <qz/common/uQzLogger/detail/AppenderSet.h>
#include <qz/runtime/values/Value.h>

namespace qz {

class TQzLogger;

namespace detail {

struct TLogMessage {
    const UnicodeString& Source;
    TQzLogLevel Level;
    const TQzLogText& Text;
    PQzDataRec Value;
    TQzLogIndent Indent;
};

// A message that arose while the thread was busy.
struct TQueuedMessage {
    Ref<TQzLogger> Logger;
    UnicodeString Source;
    TQzLogLevel Level;
    UnicodeString Text;
    TValue Value;
    bool HasValue;
    UnicodeString Dump; // of the object that was the value; Value is its text then
    TQzLogIndent Indent;
    std::uint64_t Except; // the serial of the appender that must not get it; 0 for none
};

// A call of the drop hook that is due.
struct TQueuedDrop {
    TQzLogDrop Drop;
    std::uint64_t Key; // as ReportProblem takes it
};

// A logger that could not be configured at once.
struct TQueuedConfiguration {
    Ref<TQzLogger> Logger;
    Ref<IQzLogConfigurator> Configurator;
};

// What a thread has to do as soon as it holds no lock of an appender or a list.
struct TLogQueue {
    std::deque<TQueuedMessage> Messages;
    std::vector<TQueuedDrop> Drops;
    std::vector<TQueuedConfiguration> Configurations;
    std::vector<TAppenderEnding> Endings;
    std::vector<Ref<TQzLogger>> Loggers; // to be released
    int Arisen = 0;                      // messages since the thread was free

    // The next push_back to Endings raises nothing.
    void ReserveEnding();
};

// Makes the queue of the thread if there is none.
TLogQueue& QueueOf(TLogThread& AThread);

class TLogDispatch {
public:
    // Offers the message to the logger and its ancestors, or queues it if the thread is busy. Raises nothing.
    static void Send(TQzLogger& ALogger, const TLogMessage& AMessage) noexcept;
    // Takes over a reference, to be released when the thread may wait. False if there is no memory.
    static bool ReleaseLater(TQzLogger& ALogger) noexcept;
    // In the child of a fork: the parent delivers the messages that the forking thread has queued.
    static void DropMessages() noexcept;

private:
    struct TProgress;
    friend void Settle() noexcept;
    static void Enqueue(TLogThread& AThread, TQzLogger& ALogger, const TLogMessage& AMessage) noexcept;
    static void SendWithGates(TLogThread& AThread, TQzLogger& ALogger, const TLogMessage& AMessage) noexcept;
    // A thread that holds gates delivers up to ALast, the last logger whose gate it holds.
    static void Deliver(TLogThread& AThread, TQzLogger& ALogger, const TLogMessage& AMessage,
                        std::uint64_t AExcept, const TQzLogger* ALast = nullptr) noexcept;
    static void Walk(TProgress& AProgress, const TQzLogger& ALogger, const TLogMessage& AMessage);
    static void WriteToAll(TProgress& AProgress, TAppenderSet& ASet, const UnicodeString& ALogger,
                           const TLogMessage& AMessage, const UnicodeString& AText);
    class TGates;
    static void SettleWithGates(TLogThread& AThread) noexcept;
    static void DeliverQueued(TLogThread& AThread, const TQueuedMessage& AMessage,
                              const TQzLogger* ALast = nullptr) noexcept;
    static bool SettleOne(TLogThread& AThread) noexcept;
};

} // namespace detail

} // namespace qz
