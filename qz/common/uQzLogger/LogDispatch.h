// The way of one message from its logger to the root. Internal.
#pragma once

#include <vector>

#include <qz/common/uQzLogger/LogInterfaces.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

class TQzLogger;

namespace detail {

class TLogAppenderCore;

struct TLogMessage {
    const UnicodeString& Source;
    TQzLogLevel Level;
    const TStringArg& Text;
    PQzDataRec Value;
    TQzLogIndent Indent;
};

// The message that a thread is on the way with.
struct TLogDispatch {
    const TQzLogger* Logger; // where it began
    // Appenders by their serials, 0 for none.
    std::uint64_t Writing = 0; // to which it is being written
    std::uint64_t Failed = 0;  // which raised
    UnicodeString FailedName;
    std::vector<std::uint64_t> Skipped; // which were writing when the message arose
};

// Has the references end as soon as the thread holds no gate and no tree; false when there is no memory for that.
bool LetGoLater(TLogAppenderCore& ACore, std::vector<Ref<IQzLogAppender>>& ARemoved) noexcept;

// Takes over a reference, which may be the last one, until the message that the thread is sending has arrived. False when
// there is no memory for that.
bool ReleaseLater(TQzLogger& ALogger) noexcept;

// Offers the message to the logger and its ancestors; see IQzLogger. Nothing is raised.
void Dispatch(TQzLogger& ALogger, const TLogMessage& AMessage) noexcept;

} // namespace detail

} // namespace qz
