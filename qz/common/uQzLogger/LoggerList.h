// TQzLoggerList: the children of a logger.
//
//     TQzLoggerList& List = *Log->GetChildLoggers();
//     List.Lock(u"survey", true);
//     for (int I = 0; I < List.Count(); ++I)
//         Show(List.GetLogger(I)->GetName());
//     List.Unlock();
//
// Loggers come and go on any thread. While a thread holds the lock, no other thread adds or removes a logger,
// but for one that writes to an appender at that moment: it may add a logger or close the tree. Hold the lock
// briefly: it is that of the whole tree.
#pragma once

#include <unordered_map>

#include <qz/common/uQzLogger/LoggerInterface.h>
#include <qz/runtime/base/AccessKey.h>
#include <qz/runtime/lists/List.h>
#include <qz/runtime/objects/Object.h>

namespace qz {

class TQzLogger;

inline constexpr TTextConstant SLockFailed = u"%s failed to get a lock";

class QZ_API TQzLoggerList : public TObject {
    QZ_CLASS(TQzLoggerList, TObject)

public:
    explicit TQzLoggerList(TQzLogger& ALogger) noexcept : FLogger(ALogger) {}
    // Raises EAssertionFailed, "Assertion failure", while loggers are in the list.
    void BeforeDestruction() override;

    // Re-enters. Tries for a second. Then raises Exception, SLockFailed with the name, or gives false if
    // ARaise is false.
    bool Lock(const TStringArg& AName, bool ARaise);
    void Unlock() noexcept;

    // Each raises as Lock does, under the name of the owner and ".LoggerList.Remove".
    void AddLogger(TQzLogger* ALogger);
    void RemoveLogger(TQzLogger* ALogger);
    // The last one of that full name, case-sensitive; null if there is none. It is valid as long as a
    // reference to it exists.
    TQzLogger* FindLogger(const TStringArg& AFullName);

    // The caller holds the lock, or the index may be out of range by the next call.
    int Count() const noexcept;
    Ref<IQzLogger> GetLogger(int AIndex) const;

    // For the owner, which holds the state lock.
    const TList<TQzLogger*>& Items(TAccessKey<TQzLogger>) const noexcept { return FList; }
    void Append(TQzLogger* ALogger, TAccessKey<TQzLogger>);
    void Delete(TQzLogger* ALogger, TAccessKey<TQzLogger>) noexcept;
    // The last one of that name.
    TQzLogger* FindPart(std::u16string_view AName, TAccessKey<TQzLogger>) const noexcept;
    // Holds the tree lock then. Raises as Lock does, under the name of the owner and AAction.
    void LockForChange(std::u16string_view AAction, TAccessKey<TQzLogger>);

private:
    struct TNamed {
        TQzLogger* Logger;
        std::uint64_t Serial; // grows with each addition
    };
    void LockFor(std::u16string_view AAction);
    void Insert(TQzLogger* ALogger);
    void Erase(TQzLogger* ALogger) noexcept;
    TQzLogger* Find(std::u16string_view AName) const noexcept;

    TQzLogger& FLogger;
    TList<TQzLogger*> FList;
    std::unordered_multimap<std::u16string_view, TNamed> FByName; // the keys are the names of the loggers
    std::uint64_t FLastSerial = 0;
};

} // namespace qz
