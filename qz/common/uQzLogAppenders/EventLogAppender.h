// TQzEventLogAppender: each message as an event in the log of the system (platform/EventLog.h): the
// Application event log of Windows, the journal or the syslog of Linux.
//
//     Ref<TQzEventLogAppender> Events(TQzEventLogAppender::Create(nullptr, u"events"));
//     Events->SetLayout(QzSimpleLayout);
//     Logger().AddAppender(Events.Get());
//
//     llInfo                     success, event 1          llWarn              warning, event 3
//     llAll, llTrace, llDebug    information, event 2      llError, llFatal    error, event 4
//
// The source of the events has the name of the program, or the configured "ServiceName". It is registered by
// the constructor. If the system refuses it, nothing is written. A lost or shortened event raises nothing;
// QzDroppedLogMessages counts it.
//
// On Windows the event viewer shows the texts only for programs with the message table. Link to
// rQzCommon210::event_messages to get it.
#pragma once

#include <cstdint>

#include <qz/common/uQzLogAppenders/BaseAppender.h>
#include <qz/common/uQzWindows/Accounts.h>

namespace qz {

namespace platform {
class IEventLog;
}

namespace detail {

// The name of the source of a program: that of its file without the extension, unless nothing remains.
QZ_API UnicodeString EventSourceOf(const UnicodeString& AProgram);

} // namespace detail

class QZ_API TQzEventLogAppender : public TQzBaseAppender {
    QZ_CLASS(TQzEventLogAppender, TQzBaseAppender)

public:
    // Uses the source of that name from now on and closes the previous one. With the rights of an
    // administrator it is first entered in the registry of Windows, unless it exists there.
    void RegisterLogger(const UnicodeString& AServiceName);
    // Asks for "Layout", then for "ServiceName". An answer that is not empty becomes the source. An
    // identifier or an empty answer becomes the name of the component; with another answer, such as
    // "my-backup", the name stays.
    void SetConfig(IQzLogConfigurator* AConfigurator) override;
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override;

protected:
    TQzEventLogAppender(TQzLogger* ALogger, const UnicodeString& AName);
    // Writes to ALog, which lives longer. ALevel gives the rights of the process.
    TQzEventLogAppender(TQzLogger* ALogger, const UnicodeString& AName, platform::IEventLog& ALog,
                        TQzElevationLevel (*ALevel)() noexcept);
    ~TQzEventLogAppender() override;

private:
    platform::IEventLog& FLog;
    TQzElevationLevel (*FLevel)() noexcept;
    std::uintptr_t FHandle = 0;
};

} // namespace qz
