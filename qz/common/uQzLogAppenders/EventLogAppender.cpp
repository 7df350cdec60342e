#include <qz/common/uQzLogAppenders/EventLogAppender.h>

#include <utility>

#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/platform/EventLog.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/time/TimeZone.h>

namespace qz {

QZ_REGISTER_TYPES(TQzEventLogAppender);

constinit const TClassRec TQzEventLogAppender::ClassRec =
    DescribeLogBase<TQzEventLogAppender>(u"TQzEventLogAppender", {.Unit = u"uQzLogAppenders"});

namespace {

using platform::TEventType;

struct TEvent {
    TEventType Type;
    std::uint32_t Id;
};

TEvent EventOf(TQzLogLevel ALevel) noexcept {
    switch (ALevel) {
    case llInfo: return {TEventType::Success, 1};
    case llWarn: return {TEventType::Warning, 3};
    case llError:
    case llFatal: return {TEventType::Error, 4};
    case llAll:
    case llTrace:
    case llDebug:
    case llDoNotLog: break;
    }
    return {TEventType::Information, 2};
}

// The seconds from UTC to local time.
std::int32_t LocalOffset() noexcept {
    return static_cast<std::int32_t>(TTimeZone::Local().UtcOffset().Ticks / TTimeSpan::TicksPerSecond);
}

} // namespace

UnicodeString detail::EventSourceOf(const UnicodeString& AProgram) {
    const UnicodeString File = ExtractFileName(AProgram);
    const UnicodeString Name = ChangeFileExt(File, u"");
    return Name.IsEmpty() ? File : Name;
}

TQzEventLogAppender::TQzEventLogAppender(TQzLogger* ALogger, const UnicodeString& AName)
    : TQzEventLogAppender(ALogger, AName, platform::SystemEventLog(), &QzGetElevationLevel) {}

TQzEventLogAppender::TQzEventLogAppender(TQzLogger* ALogger, const UnicodeString& AName,
                                         platform::IEventLog& ALog, TQzElevationLevel (*ALevel)() noexcept)
    : Inherited(ALogger, AName),
      FLog(ALog),
      FLevel(ALevel) {
    LocalOffset(); // reads the zone before a lock is held
    RegisterLogger(detail::EventSourceOf(ProgramFileName()));
}

TQzEventLogAppender::~TQzEventLogAppender() {
    FLog.CloseSource(FHandle);
}

void TQzEventLogAppender::RegisterLogger(const UnicodeString& AServiceName) {
    const TScopedLock Hold(*this);
    if (FLevel() == elFull)
        FLog.EnterSource(AServiceName, ProgramFileName());
    const std::uintptr_t Source = FLog.OpenSource(AServiceName);
    FLog.CloseSource(std::exchange(FHandle, Source));
}

void TQzEventLogAppender::SetConfig(IQzLogConfigurator* AConfigurator) {
    const TScopedLock Hold(*this);
    Inherited::SetConfig(AConfigurator);
    if (AConfigurator == nullptr)
        return;
    const UnicodeString Service = QzVarToStr(
        AConfigurator->GetAppenderValue(ConfiguredName(), u"ServiceName", mtkString, u""), {}, true);
    if (Service.IsEmpty() || IsValidIdent(Service))
        SetName(Service);
    if (!Service.IsEmpty())
        RegisterLogger(Service);
}

void TQzEventLogAppender::Write(const UnicodeString& ASource, const UnicodeString& ALogger,
                                TQzLogLevel ALevel, const UnicodeString& AMessage, PQzDataRec AValue,
                                TQzLogIndent AIndent) {
    const TScopedLock Hold(*this);
    Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
    if (LacksLayout() || FHandle == 0 || ALevel == llDoNotLog)
        return;
    const TEvent Event = EventOf(ALevel);
    const UnicodeString Line = FormatLine(ALogger, ALevel, AMessage, AValue, AIndent);
    if (!Line.IsEmpty() && !FLog.Write(FHandle, Event.Type, Event.Id, Line, LocalOffset()))
        detail::ReportLoss(1, ASource, Name(), u"The log of the system did not accept the message", Serial());
}

} // namespace qz
