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
    Ref<IQzLogAppender> Result = As<IQzLogAppender>(MakeLogBase(AClass, &ALogger, AClass->Name()));
    Assert(Result != nullptr);
    return Result;
}

IQzLogAppenderEx& WithLayout(const Ref<IQzLogAppender>& AAppender) {
    // Both interfaces bear one identifier.
    return static_cast<IQzLogAppenderEx&>(*AAppender);
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
    FCore->Gate().Enter();
    return true;
}

Ref<IQzLogAppender> TQzLogAppenderList::GetAppender(int AIndex) const {
    const detail::TAppenderSnapshot Items = FCore->Items();
    if (AIndex < 0 || static_cast<std::size_t>(AIndex) >= Items->size())
        detail::RaiseOutOfRange();
    return (*Items)[static_cast<std::size_t>(AIndex)];
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
    if (AAppender != nullptr)
        RemoveComponent(AAppender->Component());
}

void TQzLogAppenderList::RemoveComponent(const TComponent* AComponent) {
    FCore->RemoveIf([AComponent](IQzLogAppender& AItem) { return AItem.Component() == AComponent; });
}

void TQzLogAppenderList::Clear() {
    FCore->RemoveIf([](IQzLogAppender&) { return true; });
}

void TQzLogAppenderList::Notification(TComponent* AComponent, TOperation AOperation) {
    Inherited::Notification(AComponent, AOperation);
    if (AOperation == opRemove && !IsEnding())
        RemoveComponent(AComponent);
}

} // namespace qz
