#include <qz/common/uQzLogger/LoggerList.h>

#include <qz/common/uQzLogger/LogTreeLock.h>
#include <qz/common/uQzLogger/QzLogger.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {

constinit const TClassRec TQzLoggerList::ClassRec =
    DescribeClass<TQzLoggerList>(u"TQzLoggerList", {.Unit = u"uQzLogger"});

namespace {

using detail::TLogTreeLock;

constexpr std::uint32_t cLockTime = 1000; // milliseconds
constexpr std::u16string_view cAction = u".LoggerList.Remove";

struct [[nodiscard]] TUnlock {
    ~TUnlock() { TLogTreeLock::Leave(); }
};

} // namespace

void TQzLoggerList::BeforeDestruction() {
    Assert(FList.IsEmpty());
    Inherited::BeforeDestruction();
}

bool TQzLoggerList::Lock(const TStringArg& AName, bool ARaise) {
    if (TLogTreeLock::TryEnter(cLockTime))
        return true;
    if (ARaise)
        throw Exception(SLockFailed, {AName.View()});
    return false;
}

void TQzLoggerList::Unlock() noexcept {
    TLogTreeLock::Leave();
}

void TQzLoggerList::LockForChange(std::u16string_view AAction) {
    if (!TLogTreeLock::TryEnter(cLockTime))
        throw Exception(SLockFailed, {FLogger.FullNameIfKnown() + AAction});
}

void TQzLoggerList::AddLogger(TQzLogger* ALogger) {
    LockForChange(cAction);
    const TUnlock Hold;
    FList.Add(ALogger);
}

void TQzLoggerList::RemoveLogger(TQzLogger* ALogger) {
    LockForChange(cAction);
    const TUnlock Hold;
    FList.Remove(ALogger);
}

TQzLogger* TQzLoggerList::FindLogger(const TStringArg& AFullName) {
    LockForChange(cAction);
    const TUnlock Hold;
    for (int I = Count(); I-- > 0;) {
        if (FList[I]->IsNamed(AFullName))
            return FList[I];
    }
    return nullptr;
}

TQzLogger* TQzLoggerList::FindPart(std::u16string_view AName) const noexcept {
    for (int I = Count(); I-- > 0;) {
        if (FList[I]->Name() == AName)
            return FList[I];
    }
    return nullptr;
}

Ref<IQzLogger> TQzLoggerList::GetLogger(int AIndex) const {
    return Ref<IQzLogger>(FList[AIndex]);
}

} // namespace qz
