// TQzEventLogAppender: each message as an event in the log of the system (platform/EventLog.h): the Application event log of
// Windows, the journal or the syslog of Linux.
//
//     Ref<TQzEventLogAppender> Events(TQzEventLogAppender::Create(nullptr, u"events"));
//     Events->SetLayout(QzSimpleLayout);
//     Logger().AddAppender(Events.Get());
//
//     llInfo                     success, event 1          llWarn              warning, event 3
//     llAll, llTrace, llDebug    information, event 2      llError, llFatal    error, event 4
//
// The events come from a source that bears the name of the program, or the configured "ServiceName". It is there as soon as
// the appender is, and one that the system refuses makes it silent. Nothing is raised for an event that is lost, or part of
// it; QzDroppedLogMessages counts them.
//
// On Windows the event viewer shows the texts of programs that carry the message table, which a program gets by linking to
// rQzCommon210::event_messages.
#pragma once

#include <cstdint>

#include <qz/common/uQzLogAppenders/BaseAppender.h>
#include <qz/common/uQzWindows/Accounts.h>

namespace qz {

namespace platform {
class IEventLog;
}

namespace detail {

// The name of the source of a program: that of its file without the extension, or as it is where nothing else is left.
QZ_API UnicodeString EventSourceOf(const UnicodeString& AProgram);

} // namespace detail

class QZ_API TQzEventLogAppender : public TQzBaseAppender {
    QZ_CLASS(TQzEventLogAppender, TQzBaseAppender)

public:
    // From now on events come from the source of that name. With an administrator's rights it is entered in the registry
    // of Windows first, unless it is there. The former source is let go of (ours).
    void RegisterLogger(const UnicodeString& AServiceName);
    // Asks for "Layout", then for "ServiceName": an answer that is not empty becomes the source. An empty one and one that is
    // an identifier become the name of the component; with any other, such as "my-backup", it stays (ours).
    void SetConfig(IQzLogConfigurator* AConfigurator) override;
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override;

protected:
    TQzEventLogAppender(TQzLogger* ALogger, const UnicodeString& AName);
    // Writes to ALog, which lives longer, with the rights that ALevel tells.
    TQzEventLogAppender(TQzLogger* ALogger, const UnicodeString& AName, platform::IEventLog& ALog,
                        TQzElevationLevel (*ALevel)() noexcept);
    ~TQzEventLogAppender() override;

private:
    platform::IEventLog& FLog;
    TQzElevationLevel (*FLevel)() noexcept;
    std::uintptr_t FHandle = 0;
};

} // namespace qz
