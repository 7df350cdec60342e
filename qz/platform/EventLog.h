// The log of the system: the Application event log on Windows; the journal on Linux, or the syslog where no
// journal listens.
//
//     IEventLog& Log = SystemEventLog();
//     const std::uintptr_t Source = Log.OpenSource(u"backup");
//     Log.Write(Source, TEventType::Warning, 3, u"The tape is worn", 3600);
//     Log.CloseSource(Source);
//
// On Linux writing waits while the queue of the daemon is full, at most a second for an event. The event is
// lost then, and no later one waits until the daemon accepts one again. The journal receives the text as
// MESSAGE, with PRIORITY, SYSLOG_IDENTIFIER (the source) and EVENT_ID. The syslog receives "source[process]:
// text", without the event number; control characters other than tab become # and three octal digits, and a
// text over 8000 bytes becomes several messages. Priorities are 6 for information, 5 for success, 4 for a
// warning, 3 for an error. Lone surrogates become U+FFFD. A source finds a daemon that starts or restarts
// later. A stream connection is kept as long as the daemon holds its end.
//
// On Windows a text over 31,000 units becomes several events, and U+0000 becomes U+2400. A source whose name
// contains a backslash reports events but is not registered, since the registry would take the name for a
// subkey.
#pragma once

#include <cstdint>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

enum class TEventType : std::uint16_t { Success = 0, Error = 1, Warning = 2, Information = 4 };

// Any thread; for each source one call at a time.
class QZ_API IEventLog {
public:
    // Registers a source permanently unless it is registered. On Windows the registry entry names AProgram as
    // the file with the message texts. Does nothing without administrator rights.
    virtual void EnterSource(std::u16string_view AName, std::u16string_view AProgram) noexcept = 0;
    // 0 if the system refuses.
    virtual std::uintptr_t OpenSource(std::u16string_view AName) noexcept = 0;
    // Ignores 0.
    virtual void CloseSource(std::uintptr_t ASource) noexcept = 0;
    // ALocalOffset is local time minus UTC in seconds; the syslog shows local time. False if the event, or
    // part of it, is lost.
    virtual bool Write(std::uintptr_t ASource, TEventType AType, std::uint32_t AId, std::u16string_view AText,
                       std::int32_t ALocalOffset) noexcept = 0;

protected:
    ~IEventLog() = default;
};

// Exists until the process ends.
QZ_API IEventLog& SystemEventLog();

} // namespace qz::platform
