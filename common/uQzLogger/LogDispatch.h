// The way of one message from its logger to the root. Internal.
#pragma once

#include "common/uQzLogger/LogTypes.h"
#include "runtime/text/StringArg.h"

namespace qz {

class TQzLogger;

namespace detail {

struct TLogMessage {
    const UnicodeString& Source;
    TQzLogLevel Level;
    const TStringArg& Text;
    PQzDataRec Value;
    TQzLogIndent Indent;
};

// Offers the message to the logger and its ancestors; see IQzLogger. Nothing is raised.
void Dispatch(TQzLogger& ALogger, const TLogMessage& AMessage) noexcept;

// Whether this thread is on the way with a message.
bool IsDispatching() noexcept;

} // namespace detail

} // namespace qz
