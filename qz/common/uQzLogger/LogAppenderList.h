// TQzLogAppenderList: the appenders of a logger, in the order in which they are called.
//
//     TQzLogAppenderList& List = *Log->LockAppenders();
//     for (int I = 0; I < List.Count(); ++I)
//         Show(List.GetAppender(I)->GetName());
//     Log->UnLockAppenders();
//     List.Add(QzFileAppender, QzSimpleLayout);
//
// Any thread may change the list at any time, also an appender while it writes: an added appender gets the
// next message, a removed one gets none. A change waits for the lock of the list. When a removal has
// returned, nothing is written to the appender any more. Only a thread that is writing to an appender, or
// holds the lock of an appender or of a list, does not wait: another thread may be writing to what it
// removes, and the appender ends after that.
//
// An appender that is freed leaves all lists. One that does not derive from TQzLogBase must leave them before
// it is freed if other threads log or change lists at that time; it is not released then.
#pragma once

#include <memory>

#include <qz/common/uQzLogger/LogInterfaces.h>
#include <qz/runtime/base/AccessKey.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/components/Component.h>

namespace qz {

namespace detail {
class TAppenderSet;
}

class QZ_API TQzLogAppenderList : public TComponent {
    QZ_CLASS(TQzLogAppenderList, TComponent)

public:
    // Holds back the messages of the logger and changes of the list, both of other threads, until Unlock.
    // Waits as long as it takes and gives true; the arguments are not used. The lock re-enters. A message of
    // the thread that holds it is written at once, or after Unlock if another thread holds a list on its way
    // to the root. An appender that writes must not lock a list, and threads that lock several lists must
    // lock them in the same order. A thread that writes to an appender, or holds the lock of one, changes the
    // list all the same.
    bool Lock(const TStringArg& AName, bool ARaise);
    void Unlock() noexcept;

    int Count() const noexcept;
    // Raises EArgumentOutOfRangeException. Hold the lock from Count on; even so another thread that writes to
    // an appender may remove one.
    Ref<IQzLogAppender> GetAppender(int AIndex) const;

    // Appends, unless the list holds the appender by any of its interfaces. Null raises EAssertionFailed,
    // "Assertion failure".
    void Add(IQzLogAppender* AAppender);
    void Add(TQzBaseAppender* AAppender);
    // Appends a new appender of that class, or of the class of that name in RegisteredAppenders, with a new
    // layout if one is given. Its name is that of its class. Raises EListError, "Class %s not found!", for an
    // unknown name, EAssertionFailed for a class of something else, and EIntfCastError for a layout where the
    // appender takes none.
    Ref<IQzLogAppender> Add(TQzLogBaseClass AClass);
    Ref<IQzLogAppender> Add(const UnicodeString& AClassName);
    Ref<IQzLogAppender> Add(TQzLogBaseClass AAppenderClass, TQzLogBaseClass ALayoutClass);
    Ref<IQzLogAppender> Add(const UnicodeString& AAppenderName, const UnicodeString& ALayoutName);
    // Removes every entry of the same component.
    void Remove(IQzLogAppender* AAppender);
    void Remove(TQzBaseAppender* AAppender);
    void Clear();

    const std::shared_ptr<detail::TAppenderSet>& Set(TAccessKey<TQzLogger>) const noexcept { return FSet; }

protected:
    explicit TQzLogAppenderList(TQzLogger* ALogger);
    ~TQzLogAppenderList() override;
    void Notification(TComponent* AComponent, TOperation AOperation) override;

private:
    TQzLogger* FLogger;
    std::shared_ptr<detail::TAppenderSet> FSet;
};

} // namespace qz
