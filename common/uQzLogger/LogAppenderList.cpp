#include "common/uQzLogger/LogAppenderList.h"

#include "common/uQzLogger/LogBase.h"
#include "common/uQzLogger/QzLogger.h"
#include "runtime/reflection/Describe.h"

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
    const Ref<IQzLogAppender> Appender(AAppender);
    LinkAppender(AAppender->Component(), *this);
    FCore->Add(AAppender);
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
