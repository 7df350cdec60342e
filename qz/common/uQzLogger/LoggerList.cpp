#include <qz/common/uQzLogger/LoggerList.h>

#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/LogThread.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzLoggerList);

constinit const TClassRec TQzLoggerList::ClassRec =
    DescribeClass<TQzLoggerList>(u"TQzLoggerList", {.Unit = u"uQzLogger"});

namespace {

using detail::TStateHold;
using detail::TTreeLock;

constexpr std::uint32_t cLockTime = 1000; // milliseconds
constexpr std::u16string_view cAction = u".LoggerList.Remove";

struct [[nodiscard]] TUnlock {
    ~TUnlock() { TTreeLock::Leave(); }
};

} // namespace

void TQzLoggerList::BeforeDestruction() {
    Assert(FList.IsEmpty());
    Inherited::BeforeDestruction();
}

bool TQzLoggerList::Lock(const TStringArg& AName, bool ARaise) {
    if (TTreeLock::TryEnter(cLockTime))
        return true;
    if (ARaise)
        throw Exception(SLockFailed, {AName.View()});
    return false;
}

void TQzLoggerList::Unlock() noexcept {
    TTreeLock::Leave();
}

void TQzLoggerList::LockFor(std::u16string_view AAction) {
    if (!TTreeLock::TryEnter(cLockTime))
        throw Exception(SLockFailed, {FLogger.FullName() + AAction});
}

void TQzLoggerList::LockForChange(std::u16string_view AAction, TAccessKey<TQzLogger>) {
    LockFor(AAction);
}

void TQzLoggerList::AddLogger(TQzLogger* ALogger) {
    LockFor(cAction);
    const TUnlock Hold;
    const TStateHold State;
    Insert(ALogger);
}

void TQzLoggerList::RemoveLogger(TQzLogger* ALogger) {
    LockFor(cAction);
    const TUnlock Hold;
    const TStateHold State;
    Erase(ALogger);
}

TQzLogger* TQzLoggerList::FindLogger(const TStringArg& AFullName) {
    LockFor(cAction);
    const TUnlock Hold;
    const TStateHold State;
    const UnicodeString Prefix = FLogger.FullName() + u'.';
    const std::u16string_view Name = AFullName;
    return Name.starts_with(Prefix) ? Find(Name.substr(Prefix.size())) : nullptr;
}

int TQzLoggerList::Count() const noexcept {
    const TStateHold State;
    return FList.Count();
}

Ref<IQzLogger> TQzLoggerList::GetLogger(int AIndex) const {
    const TStateHold State;
    return Ref<IQzLogger>(FList[AIndex]);
}

void TQzLoggerList::Append(TQzLogger* ALogger, TAccessKey<TQzLogger>) {
    Insert(ALogger);
}

void TQzLoggerList::Delete(TQzLogger* ALogger, TAccessKey<TQzLogger>) noexcept {
    Erase(ALogger);
}

TQzLogger* TQzLoggerList::FindPart(std::u16string_view AName, TAccessKey<TQzLogger>) const noexcept {
    return Find(AName);
}

void TQzLoggerList::Insert(TQzLogger* ALogger) {
    const auto Place = FByName.insert({ALogger->Name().View(), {ALogger, ++FLastSerial}});
    try {
        FList.Add(ALogger);
    } catch (...) {
        FByName.erase(Place);
        throw;
    }
}

// From the end, where loggers that live briefly stand.
void TQzLoggerList::Erase(TQzLogger* ALogger) noexcept {
    int Index = FList.Count();
    while (Index-- > 0 && FList[Index] != ALogger) {}
    if (Index < 0)
        return;
    FList.Delete(Index);
    const auto [First, Last] = FByName.equal_range(ALogger->Name().View());
    for (auto Each = First; Each != Last; ++Each) {
        if (Each->second.Logger == ALogger) {
            FByName.erase(Each);
            return;
        }
    }
}

TQzLogger* TQzLoggerList::Find(std::u16string_view AName) const noexcept {
    TNamed Result{nullptr, 0};
    const auto [First, Last] = FByName.equal_range(AName);
    for (auto Each = First; Each != Last; ++Each) {
        if (Each->second.Serial > Result.Serial)
            Result = Each->second;
    }
    return Result.Logger;
}

} // namespace qz
