// TQzLogAppenderList: the appenders of a logger, in the order in which they are called.
//
//     TQzLogAppenderList& List = *Log->LockAppenders();
//     for (int I = 0; I < List.Count(); ++I) Show(List.GetAppender(I)->GetName());
//     Log->UnLockAppenders();
//     List.Add(QzFileAppender, QzSimpleLayout);
//
// Any thread may change the list at any time, also an appender while it writes: what is added meanwhile gets the next
// message, what is removed gets no more. A change waits for the lock of the list, and returns when no message is on its way to
// what it removed; a thread that is writing to an appender, holds the lock of some list, or is being asked by a logger for
// its values, does not wait, so that its changes may be met by others while they hold the lock. An appender that is freed
// leaves all lists by itself; one that does not derive from TQzLogBase must not be freed while other threads change the
// lists it is in.
#pragma once

#include <qz/common/uQzLogger/LogAppenderCore.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

class QZ_API TQzLogAppenderList : public TComponent {
    QZ_CLASS(TQzLogAppenderList, TComponent)

public:
    // Holds up the messages of the logger on other threads, and all messages of this one, until Unlock. Waits as long as it
    // takes and gives true; the arguments are not used. The lock re-enters. An appender that writes, a configurator
    // and whoever holds the lock of a TQzLoggerList must not lock a list of appenders.
    bool Lock(const TStringArg& AName, bool ARaise);
    void Unlock() noexcept { FCore->LeaveGate(); }

    int Count() const noexcept { return FCore->Count(); }
    // Raises EArgumentOutOfRangeException. Hold the lock from Count on.
    Ref<IQzLogAppender> GetAppender(int AIndex) const;

    // At the end, unless it is there already, under whatever interface. Null raises EAssertionFailed, "Assertion failure".
    void Add(IQzLogAppender* AAppender);
    void Add(TQzBaseAppender* AAppender);
    // A new appender of that class with the name of the class, of a class of that name in RegisteredAppenders, with a new
    // layout of that class or name. Raises EListError, "Class %s not found!", for an unknown name, and EAssertionFailed for a
    // class of something else. An appender that knows no layouts raises EIntfCastError.
    Ref<IQzLogAppender> Add(TQzLogBaseClass AClass);
    Ref<IQzLogAppender> Add(const UnicodeString& AClassName);
    Ref<IQzLogAppender> Add(TQzLogBaseClass AAppenderClass, TQzLogBaseClass ALayoutClass);
    Ref<IQzLogAppender> Add(const UnicodeString& AAppenderName, const UnicodeString& ALayoutName);
    // Every entry of the same component; none where there is none.
    void Remove(IQzLogAppender* AAppender);
    void Remove(TQzBaseAppender* AAppender);
    void Clear();

    const detail::TLogAppenderCorePtr& Core() const noexcept { return FCore; }

protected:
    explicit TQzLogAppenderList(TQzLogger* ALogger);
    ~TQzLogAppenderList() override;
    void Notification(TComponent* AComponent, TOperation AOperation) override;

private:
    TQzLogger* FLogger;
    detail::TLogAppenderCorePtr FCore;
};

} // namespace qz
