#include "common/uQzLogger/LoggerList.h"

#include "common/uQzLogger/LogTreeLock.h"
#include "common/uQzLogger/QzLogger.h"
#include "runtime/reflection/Describe.h"

namespace qz {

constinit const TClassRec TQzLoggerList::ClassRec =
    DescribeClass<TQzLoggerList>(u"TQzLoggerList", {.Unit = u"uQzLogger"});

namespace {

constexpr std::uint32_t cLockTime = 1000; // milliseconds

} // namespace

void TQzLoggerList::BeforeDestruction() {
    Assert(FList.IsEmpty());
    Inherited::BeforeDestruction();
}

bool TQzLoggerList::Lock(const TStringArg& AName, bool ARaise) {
    if (FLock.TryEnter(cLockTime))
        return true;
    if (ARaise)
        throw Exception(SLockFailed, {AName.View()});
    return false;
}

void TQzLoggerList::LockForChange() {
    if (!FLock.TryEnter(cLockTime))
        throw Exception(SLockFailed, {FLogger.FullName() + u".LoggerList.Remove"});
}

void TQzLoggerList::AddLogger(TQzLogger* ALogger) {
    const detail::TLogTreeLock Tree;
    LockForChange();
    const TScopedLock Hold(FLock, std::adopt_lock);
    FList.Add(ALogger);
}

void TQzLoggerList::RemoveLogger(TQzLogger* ALogger) {
    const detail::TLogTreeLock Tree;
    LockForChange();
    const TScopedLock Hold(FLock, std::adopt_lock);
    FList.Remove(ALogger);
}

TQzLogger* TQzLoggerList::FindLogger(const TStringArg& AFullName) {
    LockForChange();
    const TScopedLock Hold(FLock, std::adopt_lock);
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
