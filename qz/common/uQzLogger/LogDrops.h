// Messages that are lost, and faults of a configuration: lost messages are counted, and a hook is called.
//
//     QzPrintLogDrops();                               // at program start: to the standard error
//     QzSetLogDropHook([](const TQzLogDrop& ADrop) { Alarm(ADrop.Message); });
//     if (QzDroppedLogMessages() != 0) ...
//
// Without these calls nothing is printed, and only the number is kept.
#pragma once

#include <cstdint>
#include <functional>

#include <qz/common/uQzLogger/LogInterfaces.h>

namespace qz {

// A message that did not reach all of its appenders, or a fault of the configuration.
struct TQzLogDrop {
    UnicodeString Logger;    // the full name of the logger where it began; empty if there is none
    UnicodeString Appender;  // the name of the appender; empty for one without a name, or none
    UnicodeString ClassName; // the class of the exception; empty for one that is no Exception, or none
    UnicodeString Message;   // the message of the exception, or what has happened
};

using TQzLogDropHook = std::function<void(const TQzLogDrop& ADrop)>;

// Sets the hook of the process; an empty one removes it. The hook is called on the logging thread, when that
// holds no lock of an appender, a list or the tree any more, and never while it runs on this or another
// thread. It is called at most once a second for each appender that raises, for the buffers of files, and for
// messages that arise too quickly. It is called once for each of these faults, which are not counted as lost
// messages:
//
//     a logger is configured with an appender that does not exist and has no class
//     an appender without a layout was given a message
//     a logger without any appender on the way to the root was given a fatal message (once in the process)
//
// It may log; its messages are delivered afterwards to all appenders but the one that raised. What it raises
// is dropped. Any thread; a call of the old hook may still be running on another thread.
QZ_API void QzSetLogDropHook(TQzLogDropHook AHook);

// Whether a process without a hook prints to the standard error what a hook would be called for, a line each.
// The default is false. Any thread.
QZ_API void QzPrintLogDrops(bool AValue = true) noexcept;

// The number of messages lost so far: an appender raised, the disk was full until the file was closed, the
// log of the system refused them, or more than 1000 arose while one was delivered. Any thread.
QZ_API std::uint64_t QzDroppedLogMessages() noexcept;

namespace detail {

void CountDrops(std::uint64_t ACount) noexcept;
inline void CountDrop() noexcept {
    CountDrops(1);
}
// The key by which calls of the hook are limited to one a second: the serial of an appender, or one of these.
struct TDropKey {
    static constexpr std::uint64_t None = 0;
    static constexpr std::uint64_t Buffer = UINT64_MAX;
    static constexpr std::uint64_t QueueLimit = UINT64_MAX - 1;
    static constexpr std::uint64_t Unlimited = UINT64_MAX - 2;
};
// Calls the hook, for a handler of exceptions; the second one counts a drop too.
void ReportFailure(const UnicodeString& ALogger, std::uint64_t AKey, const UnicodeString& AAppender) noexcept;
void ReportDrop(const UnicodeString& ALogger, std::uint64_t AKey, const UnicodeString& AAppender) noexcept;
// Counts lost messages and calls the hook.
void ReportLoss(std::uint64_t ACount, const UnicodeString& ALogger, const UnicodeString& AAppender,
                const UnicodeString& AMessage, std::uint64_t AKey) noexcept;
// Calls the hook. A thread that holds a lock of an appender or a list calls it afterwards.
void ReportProblem(const TQzLogDrop& ADrop, std::uint64_t AKey = TDropKey::Unlimited) noexcept;
// The first fatal message of the process that no appender could take.
void ReportLostFatal(const UnicodeString& ALogger, const UnicodeString& AMessage) noexcept;
// In the child of a fork: a call of the hook on a thread of the parent has no end there.
void ForgetHookCall() noexcept;

} // namespace detail

} // namespace qz
