// TQzLoggerList: the loggers right below one.
//
//     TQzLoggerList& List = *Log->GetChildLoggers();
//     List.Lock(u"survey", true);
//     for (int I = 0; I < List.Count(); ++I) Show(List.GetLogger(I)->GetName());
//     List.Unlock();
//
// Loggers come and go on any thread: who walks the list holds its lock, briefly, since nobody gets a logger or changes one
// meanwhile. It is the lock of the whole tree.
#pragma once

#include <qz/common/uQzLogger/LoggerInterface.h>
#include <qz/runtime/lists/List.h>

namespace qz {

inline constexpr TTextConstant SLockFailed = u"%s failed to get a lock";

class QZ_API TQzLoggerList : public TObject {
    QZ_CLASS(TQzLoggerList, TObject)

public:
    explicit TQzLoggerList(TQzLogger& ALogger) noexcept : FLogger(ALogger) {}
    // Raises EAssertionFailed, "Assertion failure", while loggers are in the list.
    void BeforeDestruction() override;

    // Re-enters. Tries for a second. Then raises Exception, SLockFailed with the name, or gives false when ARaise is false.
    bool Lock(const TStringArg& AName, bool ARaise);
    void Unlock() noexcept;

    // Each raises as Lock does, under the name of the owner and ".LoggerList.Remove".
    void AddLogger(TQzLogger* ALogger);
    void RemoveLogger(TQzLogger* ALogger);
    // The last one of that full name, case-sensitive; null when there is none. It is good as long as somebody holds it.
    TQzLogger* FindLogger(const TStringArg& AFullName);

    // The caller holds the lock.
    int Count() const noexcept { return FList.Count(); }
    Ref<IQzLogger> GetLogger(int AIndex) const;

private:
    friend class TQzLogger;
    void LockForChange(std::u16string_view AAction);
    // The last one of that last part of the name. The caller holds the lock.
    TQzLogger* FindPart(std::u16string_view AName) const noexcept;

    TQzLogger& FLogger;
    TList<TQzLogger*> FList;
};

} // namespace qz
