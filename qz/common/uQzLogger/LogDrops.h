// What becomes of failures of appenders and layouts: they are dropped, counted, and told to a hook.
//
//     QzSetLogDropHook([](const TQzLogDrop& ADrop) { std::cerr << ADrop.Message << '\n'; });
//     if (QzDroppedLogMessages() != 0) ...
//
// Without a hook nothing is printed or kept but the number.
#pragma once

#include <functional>

#include <qz/common/uQzLogger/LogInterfaces.h>

namespace qz {

// A message that did not reach all of its appenders.
struct TQzLogDrop {
    UnicodeString
        Logger; // the full name of the logger where the message began; empty for an appender that ends
    UnicodeString Appender;  // the name of the appender that raised; empty for one without a name, or none
    UnicodeString ClassName; // the class of what was raised; empty for what is no Exception
    UnicodeString Message;   // its message
};

using TQzLogDropHook = std::function<void(const TQzLogDrop& ADrop)>;

// Sets the hook of the process; an empty one takes it away. It is called on the logging thread, with no lock held, at most
// once a second for each appender, and never while it runs already, on this or another thread. It may log; its messages go
// past the appender that raised. What it raises is dropped. Any thread; a call of the old hook may still be on its way.
QZ_API void QzSetLogDropHook(TQzLogDropHook AHook);

// The number of messages so far that were lost: whose way ended with an exception, that waited in vain for a full disk, or that
// the log of the system did not take. Any thread.
QZ_API std::uint64_t QzDroppedLogMessages() noexcept;

namespace detail {

void CountDrops(std::uint64_t ACount) noexcept;
inline void CountDrop() noexcept {
    CountDrops(1);
}
// The same, and tells the hook; for a handler of exceptions. AAppender is the serial of an appender, or 0.
void ReportDrop(const UnicodeString& ALogger, std::uint64_t AAppender,
                const UnicodeString& AAppenderName) noexcept;
// The lock that a report takes, and the end of what a thread was about that a child of fork() does not have.
bool TryLockDrops();
void UnlockDrops();
void ForgetTelling() noexcept;

} // namespace detail

} // namespace qz
