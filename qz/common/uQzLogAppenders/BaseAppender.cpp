#include <qz/common/uQzLogAppenders/BaseAppender.h>

#include <qz/common/uQzLogger/LogAppenderList.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/LogThread.h>
#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzBaseAppender);

constinit const TClassRec TQzBaseAppender::ClassRec = DescribeLogBase<TQzBaseAppender>(
    u"TQzBaseAppender",
    {.Unit = u"uQzLogAppenders", .Interfaces = Interfaces<TQzBaseAppender, IQzLogAppenderEx>()});

void TQzBaseAppender::Lock() noexcept {
    detail::BeginBusy();
    FLock.Enter();
}

void TQzBaseAppender::Unlock() noexcept {
    FLock.Leave();
    detail::EndBusy();
}

void TQzBaseAppender::AfterConstruction() {
    Inherited::AfterConstruction();
    if (const Ref<TQzLogger> Origin = LoggerOfOrigin()) {
        if (const Ref<IQzLogConfigurator> Configurator = Origin->Configurator())
            SetConfig(Configurator.Get());
    }
}

void TQzBaseAppender::BeforeDestruction() {
    Inherited::BeforeDestruction(); // no list holds it from here on
    try {
        Close();
    } catch (...) {
        detail::ReportDrop({}, Serial(), Name());
    }
}

void TQzBaseAppender::Initialize() {
    FInitialized = true;
}

void TQzBaseAppender::Close() {
    const TScopedLock Hold(*this);
    FInitialized = false;
}

void TQzBaseAppender::Write(const UnicodeString&, const UnicodeString&, TQzLogLevel, const UnicodeString&,
                            PQzDataRec, TQzLogIndent) {
    if (FInitialized)
        return;
    const TInitializing Now(*this);
    Initialize();
}

// Keeps layouts alive that are replaced during a call of theirs.
class TQzBaseAppender::TFormatting {
public:
    explicit TFormatting(TQzBaseAppender& AAppender) noexcept : FAppender(AAppender) {
        ++FAppender.FFormatting;
    }
    TFormatting(const TFormatting&) = delete;
    TFormatting& operator=(const TFormatting&) = delete;
    ~TFormatting() {
        if (--FAppender.FFormatting == 0 && !FAppender.FFormerLayouts.empty()) [[unlikely]]
            FAppender.FFormerLayouts.clear();
    }

private:
    TQzBaseAppender& FAppender;
};

bool TQzBaseAppender::LacksLayout() noexcept {
    if (FLayout != nullptr)
        return false;
    if (!std::exchange(FHasReportedLayout, true))
        detail::ReportProblem({{}, Name(), {}, u"The appender has no layout"});
    return true;
}

UnicodeString TQzBaseAppender::Header() {
    const TFormatting Formatting(*this);
    return FLayout->GetHeader();
}

UnicodeString TQzBaseAppender::Footer() {
    const TFormatting Formatting(*this);
    return FLayout->GetFooter();
}

UnicodeString TQzBaseAppender::FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel,
                                          const UnicodeString& AMessage, PQzDataRec AValue,
                                          TQzLogIndent AIndent) {
    const TFormatting Formatting(*this);
    return FLayout->FormatLine(ALogger, ALevel, AMessage, AValue, AIndent);
}

void TQzBaseAppender::SetConfig(IQzLogConfigurator* AConfigurator) {
    if (AConfigurator == nullptr)
        return;
    const UnicodeString Layout =
        QzVarToStr(AConfigurator->GetAppenderValue(ConfiguredName(), u"Layout", mtkString, u""), {}, true);
    if (!Layout.IsEmpty())
        SetLayout(Layout);
}

void TQzBaseAppender::SetLayout(IQzLogLayout* ALayout) {
    {
        const TScopedLock Hold(*this);
        if (FFormatting != 0)
            FFormerLayouts.push_back(FLayout);
        FLayout = Ref<IQzLogLayout>(ALayout);
    }
    if (ALayout == nullptr)
        return;
    if (const auto Layout = As<_IQzLogLayout>(ALayout))
        Layout->Initialize(this);
}

void TQzBaseAppender::SetLayout(TQzLogBaseClass AClass) {
    const auto Layout =
        As<IQzLogLayout>(MakeLogBase(AClass, LoggerOfOrigin().Get(), AClass ? AClass->Name() : u""));
    Assert(Layout != nullptr);
    SetLayout(Layout.Get());
}

void TQzBaseAppender::SetLayout(const UnicodeString& AClassName) {
    SetLayout(RegisteredLayouts().GetClass(AClassName));
}

Ref<IQzLogLayout> TQzBaseAppender::GetLayout() {
    const TScopedLock Hold(*this);
    return FLayout;
}

// Defined here, since uQzLogger does not include this unit.
void IQzLogger::AddAppender(TQzBaseAppender* AAppender) {
    AddAppender(static_cast<IQzLogAppender*>(AAppender));
}

void IQzLogger::RemoveAppender(TQzBaseAppender* AAppender) {
    RemoveAppender(static_cast<IQzLogAppender*>(AAppender));
}

void TQzLogAppenderList::Add(TQzBaseAppender* AAppender) {
    Add(static_cast<IQzLogAppender*>(AAppender));
}

void TQzLogAppenderList::Remove(TQzBaseAppender* AAppender) {
    Remove(static_cast<IQzLogAppender*>(AAppender));
}

} // namespace qz
