// Failures of appenders and layouts: the message is dropped and counted, and a hook is called.
//
//     QzSetLogDropHook([](const TQzLogDrop& ADrop) { std::cerr << ADrop.Message << '\n'; });
//     if (QzDroppedLogMessages() != 0) ...
//
// Without a hook nothing is printed, and only the number is kept.
#pragma once

#include <functional>

#include <qz/common/uQzLogger/LogInterfaces.h>

namespace qz {

// A message that did not reach all of its appenders.
struct TQzLogDrop {
    UnicodeString Logger;    // the full name of the logger where it began; empty when an appender ends
    UnicodeString Appender;  // the name of the appender that raised; empty for one without a name, or none
    UnicodeString ClassName; // the class of the exception; empty for one that is no Exception
    UnicodeString Message;   // the message of the exception
};

using TQzLogDropHook = std::function<void(const TQzLogDrop& ADrop)>;

// Sets the hook of the process; an empty one removes it. The hook is called on the logging thread, with no
// lock held, at most once a second for each appender, and never while it runs on this or another thread. It
// may log; its messages are delivered afterwards to all appenders but the one that raised. What it raises is
// dropped. Any thread; a call of the old hook may still be running on another thread.
QZ_API void QzSetLogDropHook(TQzLogDropHook AHook);

// The number of messages lost so far: an appender raised, the disk was full until the file was closed, the
// log of the system refused them, or more than 1000 arose while one was delivered. Any thread.
QZ_API std::uint64_t QzDroppedLogMessages() noexcept;

namespace detail {

void CountDrops(std::uint64_t ACount) noexcept;
inline void CountDrop() noexcept {
    CountDrops(1);
}
// Counts a drop and calls the hook; for a handler of exceptions. AAppender is the serial of an appender, or
// 0.
void ReportDrop(const UnicodeString& ALogger, std::uint64_t AAppender,
                const UnicodeString& AAppenderName) noexcept;
// In the child of a fork: a call of the hook on a thread of the parent has no end there.
void ForgetTelling() noexcept;

} // namespace detail

} // namespace qz
