#include <qz/common/uQzLogger/LogAppenderList.h>

#include <qz/common/uQzLogAppenders/BaseAppender.h>
#include <qz/common/uQzLogger/LogBase.h>
#include <qz/common/uQzLogger/QzLogger.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {

constinit const TClassRec TQzLogAppenderList::ClassRec =
    DescribeClass<TQzLogAppenderList>(u"TQzLogAppenderList", {.Unit = u"uQzLogger"});

namespace {

// A new appender, and a layout for it where there is a way to set one.
Ref<IQzLogAppender> MakeAppender(TQzLogger& ALogger, TQzLogBaseClass AClass) {
    Ref<IQzLogAppender> Result =
        As<IQzLogAppender>(MakeLogBase(AClass, &ALogger, AClass ? AClass->Name() : u""));
    Assert(Result != nullptr);
    return Result;
}

IQzLogAppender* InterfaceOf(TQzBaseAppender* AAppender) noexcept {
    return AAppender;
}

IQzLogAppenderEx& WithLayout(const Ref<IQzLogAppender>& AAppender) {
    auto* Result = dynamic_cast<IQzLogAppenderEx*>(AAppender.Get());
    if (Result == nullptr)
        throw EIntfCastError(u"The appender %s has no layout", {AAppender->GetName()});
    return *Result;
}

} // namespace

TQzLogAppenderList::TQzLogAppenderList(TQzLogger* ALogger)
    : Inherited(nullptr),
      FLogger(ALogger),
      FCore(std::make_shared<detail::TLogAppenderCore>(ALogger)) {}

TQzLogAppenderList::~TQzLogAppenderList() {
    FCore->LoseLogger();
    Clear();
}

bool TQzLogAppenderList::Lock(const TStringArg&, bool) {
    FCore->EnterGate();
    return true;
}

Ref<IQzLogAppender> TQzLogAppenderList::GetAppender(int AIndex) const {
    Ref<IQzLogAppender> Result = FCore->Item(AIndex);
    if (Result == nullptr)
        detail::RaiseOutOfRange();
    return Result;
}

void TQzLogAppenderList::Add(IQzLogAppender* AAppender) {
    Assert(AAppender != nullptr);
    Ref<IQzLogAppender> Appender = As<IQzLogAppender>(AAppender); // one object, one address
    if (Appender == nullptr)
        Appender = AAppender;
    LinkAppender(Appender->Component(), *this);
    FCore->Add(Appender.Get());
}

void TQzLogAppenderList::Add(TQzBaseAppender* AAppender) {
    Add(InterfaceOf(AAppender));
}

void TQzLogAppenderList::Remove(TQzBaseAppender* AAppender) {
    Remove(InterfaceOf(AAppender));
}

void IQzLogger::AddAppender(TQzBaseAppender* AAppender) {
    AddAppender(InterfaceOf(AAppender));
}

void IQzLogger::RemoveAppender(TQzBaseAppender* AAppender) {
    RemoveAppender(InterfaceOf(AAppender));
}

Ref<IQzLogAppender> TQzLogAppenderList::Add(TQzLogBaseClass AClass) {
    Ref<IQzLogAppender> Result = MakeAppender(*FLogger, AClass);
    Add(Result.Get());
    return Result;
}

Ref<IQzLogAppender> TQzLogAppenderList::Add(const UnicodeString& AClassName) {
    return Add(RegisteredAppenders().GetClass(AClassName));
}

// The layout is there before the first message.
Ref<IQzLogAppender> TQzLogAppenderList::Add(TQzLogBaseClass AAppenderClass, TQzLogBaseClass ALayoutClass) {
    Ref<IQzLogAppender> Result = MakeAppender(*FLogger, AAppenderClass);
    WithLayout(Result).SetLayout(ALayoutClass);
    Add(Result.Get());
    return Result;
}

Ref<IQzLogAppender> TQzLogAppenderList::Add(const UnicodeString& AAppenderName,
                                            const UnicodeString& ALayoutName) {
    const TQzLogBaseClass Class = RegisteredAppenders().GetClass(AAppenderName);
    return Add(Class, RegisteredLayouts().GetClass(ALayoutName));
}

void TQzLogAppenderList::Remove(IQzLogAppender* AAppender) {
    if (TComponent* Component = AAppender == nullptr ? nullptr : AAppender->Component())
        FCore->Remove(Component);
}

void TQzLogAppenderList::Clear() {
    FCore->Remove(nullptr);
}

void TQzLogAppenderList::Notification(TComponent* AComponent, TOperation AOperation) {
    Inherited::Notification(AComponent, AOperation);
    if (AOperation == opRemove && !IsEnding())
        FCore->Remove(AComponent);
}

} // namespace qz
