#include <qz/common/uQzLogger/LogAppenderList.h>

#include <qz/common/uQzLogger/LogBase.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/AppenderSet.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzLogAppenderList);

constinit const TClassRec TQzLogAppenderList::ClassRec =
    DescribeClass<TQzLogAppenderList>(u"TQzLogAppenderList", {.Unit = u"uQzLogger"});

namespace {

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
      FSet(std::make_shared<detail::TAppenderSet>(ALogger, *this)) {}

TQzLogAppenderList::~TQzLogAppenderList() {
    FSet->LoseLogger();
    Clear();
}

bool TQzLogAppenderList::Lock(const TStringArg&, bool) {
    FSet->Enter(detail::ThisLogThread());
    return true;
}

void TQzLogAppenderList::Unlock() noexcept {
    FSet->Leave(detail::ThisLogThread());
}

int TQzLogAppenderList::Count() const noexcept {
    return FSet->Count();
}

Ref<IQzLogAppender> TQzLogAppenderList::GetAppender(int AIndex) const {
    Ref<IQzLogAppender> Result = FSet->Item(AIndex);
    if (Result == nullptr)
        detail::RaiseOutOfRange(AIndex, FSet->Count());
    return Result;
}

void TQzLogAppenderList::Add(IQzLogAppender* AAppender) {
    Assert(AAppender != nullptr);
    Ref<IQzLogAppender> Appender = As<IQzLogAppender>(AAppender); // one object, one address
    if (Appender == nullptr)
        Appender = AAppender;
    FSet->Add(Appender.Get());
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
    if (AAppender == nullptr)
        return;
    if (const TComponent* Component = AAppender->Component())
        FSet->Remove(Component);
    else
        FSet->Remove(AAppender);
}

void TQzLogAppenderList::Clear() {
    FSet->Clear();
}

void TQzLogAppenderList::Notification(TComponent* AComponent, TOperation AOperation) {
    Inherited::Notification(AComponent, AOperation);
    if (AOperation == opRemove && !IsEnding())
        FSet->Forget(AComponent);
}

} // namespace qz
