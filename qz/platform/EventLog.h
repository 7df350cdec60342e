// The log of the system: the Application event log of Windows; on Linux the journal, and where none listens the syslog.
//
//     IEventLog& Log = SystemEventLog();
//     const std::uintptr_t Source = Log.OpenSource(u"backup");
//     Log.Write(Source, TEventType::Warning, 3, u"The tape is worn", 3600);
//     Log.CloseSource(Source);
//
// On Linux nothing waits: what nobody takes at once is lost. The journal gets the text as it is, as MESSAGE, beside
// PRIORITY, SYSLOG_IDENTIFIER (the source) and EVENT_ID. The syslog gets "source[process]: text"; it has no place for the
// number of the event. There a control character other than the tab becomes # and three octal digits, as the daemons
// write it, and a text of more than 8000 bytes several messages. Priorities are 6 for information, 5 (notice) for
// success, 4 for a warning, 3 for an error. Lone surrogates become U+FFFD. A source finds daemons that start later or
// anew. One that reads a stream keeps it: while the former one still holds its end of the connection, that one gets the
// messages.
//
// On Windows a text of more than 31,000 units becomes several events, and U+0000 in it becomes U+2400. A source whose
// name holds a backslash reports its events, but is not entered in the registry, where it would be a key below another.
#pragma once

#include <cstdint>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

enum class TEventType : std::uint16_t { Success = 0, Error = 1, Warning = 2, Information = 4 };

// Any thread, but for one source one call at a time.
class QZ_API IEventLog {
public:
    // Makes a source known for good, unless it is: on Windows in the registry, where it names AProgram as the one that
    // carries the texts of the events. Needs an administrator's rights, and says nothing without them.
    virtual void EnterSource(std::u16string_view AName, std::u16string_view AProgram) noexcept = 0;
    // 0 when the system refuses.
    virtual std::uintptr_t OpenSource(std::u16string_view AName) noexcept = 0;
    // 0 is nothing to close.
    virtual void CloseSource(std::uintptr_t ASource) noexcept = 0;
    // ALocalOffset is what is added to UTC now, in seconds, for the syslog, which tells the local time. False when the
    // event is lost, or part of it.
    virtual bool Write(std::uintptr_t ASource, TEventType AType, std::uint32_t AId, std::u16string_view AText,
                       std::int32_t ALocalOffset) noexcept = 0;

protected:
    ~IEventLog() = default;
};

// Lives to the end of the program.
QZ_API IEventLog& SystemEventLog();

} // namespace qz::platform
