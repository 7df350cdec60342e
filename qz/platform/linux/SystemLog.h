// The system's log as the event log: messages to the journal and the syslog by their sockets.
#pragma once

#include <string>

#include <qz/platform/EventLog.h>

namespace qz::platform::detail {

class TSystemLog final : public IEventLog {
public:
    // The paths of the sockets on which the daemons listen.
    TSystemLog(std::string AJournal, std::string ASyslog);

    void EnterSource(std::u16string_view AName, std::u16string_view AProgram) noexcept override;
    std::uintptr_t OpenSource(std::u16string_view AName) noexcept override;
    void CloseSource(std::uintptr_t ASource) noexcept override;
    bool Write(std::uintptr_t ASource, TEventType AType, std::uint32_t AId, std::u16string_view AText,
               std::int32_t ALocalOffset) noexcept override;

private:
    std::string FJournal;
    std::string FSyslog;
};

} // namespace qz::platform::detail
