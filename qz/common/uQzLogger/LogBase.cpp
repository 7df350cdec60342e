#include <qz/common/uQzLogger/LogBase.h>

#include <algorithm>

#include <qz/common/uQzLogAppenders/DailyRollingFileAppender.h>
#include <qz/common/uQzLogAppenders/EventLogAppender.h>
#include <qz/common/uQzLogLayouts/SimpleLayout.h>
#include <qz/common/uQzLogLayouts/XmlLayout.h>
#include <qz/common/uQzLogger/LogAppenderList.h>
#include <qz/common/uQzLogger/QzLogger.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/ClassRegistry.h>

namespace qz {

constinit const TClassRec TQzLogBase::ClassRec = DescribeClass<TQzLogBase>(
    u"TQzLogBase", {.Unit = u"uQzLogger", .Interfaces = Interfaces<TQzLogBase, IQzLogBase>()});
constinit const TClassRec TQzLogBaseClassList::ClassRec =
    DescribeClass<TQzLogBaseClassList>(u"TQzLogBaseClassList", {.Unit = u"uQzLogger"});

namespace {

// Of an appender for which a reference was counted.
Ref<IQzLogAppender> AppenderOf(TQzLogBase* ABase) noexcept {
    return Ref<IQzLogAppender>::Attach(
        static_cast<IQzLogAppender*>(ABase->FindInterface(IQzLogAppender::IID)));
}

} // namespace

std::uint64_t TQzLogBase::NextSerial() noexcept {
    static std::atomic<std::uint64_t> Last{0};
    return ++Last;
}

TQzLogBase::TQzLogBase(TQzLogger* ALogger, const UnicodeString& AName)
    : Inherited(nullptr),
      FConfiguredName(AName),
      FLogger(ALogger) {
    if (!AName.IsEmpty() && (AName[0] < u'0' || AName[0] > u'9'))
        SetName(AName);
    const TScopedLock Hold(AppenderInstances().FLock);
    AppenderInstances().FList.Add(this);
}

TQzLogBase::~TQzLogBase() {
    const TScopedLock Hold(AppenderInstances().FLock);
    AppenderInstances().FList.Remove(this);
}

UnicodeString TQzLogBase::GetName() const {
    const TScopedLock Hold(AppenderInstances().FLock);
    return Name();
}

void TQzLogBase::SetName(const UnicodeString& AName) {
    const TScopedLock Hold(AppenderInstances().FLock);
    Inherited::SetName(AName);
}

UnicodeString TQzLogBase::ConfiguredName() const {
    const TScopedLock Hold(AppenderInstances().FLock);
    return NameToFind();
}

void TQzLogBase::FinishCreate() {
    Inherited::FinishCreate();
    SetComplete(true);
}

void TQzLogBase::SetComplete(bool AValue) noexcept {
    const TScopedLock Hold(AppenderInstances().FLock);
    FIsComplete = AValue;
}

// An appender that nobody holds is in no list.
void TQzLogBase::BeforeDestruction() {
    SetComplete(false);
    if (RefCount() != 0)
        LeaveLists();
    Inherited::BeforeDestruction();
}

void TQzLogBase::DestructionRefused() noexcept {
    SetComplete(true);
    Inherited::DestructionRefused(); // may end it
}

Ref<TQzLogger> TQzLogBase::LoggerOfOrigin() const {
    const TScopedLock Hold(AppenderInstances().FLock);
    return FLogger != nullptr && FLogger->TryAddRef() ? Ref<TQzLogger>::Attach(FLogger) : Ref<TQzLogger>();
}

void TQzLogBase::LeaveLists() {
    std::vector<detail::TLogAppenderCorePtr> Cores;
    {
        const TScopedLock Hold(AppenderInstances().FLock);
        for (const auto& List : FLists) {
            if (auto Core = List.lock())
                Cores.push_back(std::move(Core));
        }
    }
    for (const auto& Core : Cores) {
        Core->Remove(this);
        Core->AwaitLetGo();
    }
}

void LinkAppender(TComponent* AComponent, TQzLogAppenderList& AList) {
    const TScopedLock Hold(AppenderInstances().FLock);
    auto* Base = dynamic_cast<TQzLogBase*>(AComponent);
    if (Base == nullptr) {
        if (AComponent != nullptr)
            AComponent->FreeNotification(&AList);
        return;
    }
    if (Base->FLists.size() >= Base->FSweepAt) {
        std::erase_if(Base->FLists, [](const auto& AItem) { return AItem.expired(); });
        Base->FSweepAt = std::max<std::size_t>(16, 2 * Base->FLists.size());
    }
    Base->FLists.insert(AList.Core());
}

Ref<IQzLogBase> MakeLogBase(TQzLogBaseClass AClass, TQzLogger* ALogger, const UnicodeString& AName) {
    const auto Make = AClass ? TQzLogBase::TVirtualCreate::Find(AClass) : nullptr;
    if (Make == nullptr)
        throw EInvalidOperation(u"Class %s cannot be made", {AClass ? AClass->Name() : u"nil"});
    return Ref<IQzLogBase>(Make(ALogger, AName));
}

void TQzLogBaseClassList::Add(TQzLogBaseClass AClass) {
    Assert(static_cast<bool>(AClass));
    RegisterClass(AClass);
    const std::lock_guard Hold(FLock);
    if (!FList.Contains(AClass))
        FList.Add(AClass);
}

TQzLogBaseClass TQzLogBaseClassList::GetClass(const TStringArg& AName) const {
    const std::lock_guard Hold(FLock);
    const auto Found = std::find_if(FList.begin(), FList.end(),
                                    [&AName](TClass AClass) { return SameText(AClass->Name(), AName); });
    if (Found == FList.end())
        throw EListError(u"Class %s not found!", {AName.View()});
    return TQzLogBaseClass(*Found);
}

TQzLogBaseClassList& RegisteredLayouts() {
    static TQzLogBaseClassList* const Result = [] {
        auto List = std::make_unique<TQzLogBaseClassList>();
        List->Add(TQzLogBaseClass::Of<TQzSimpleLayout>());
        List->Add(TQzLogBaseClass::Of<TQzXmlLayout>());
        return List.release();
    }();
    return *Result;
}

TQzLogBaseClassList& RegisteredAppenders() {
    static TQzLogBaseClassList* const Result = [] {
        auto List = std::make_unique<TQzLogBaseClassList>();
        List->Add(TQzLogBaseClass::Of<TQzFileAppender>());
        List->Add(TQzLogBaseClass::Of<TQzRollingFileAppender>());
        List->Add(TQzLogBaseClass::Of<TQzDailyRollingFileAppender>());
        List->Add(TQzLogBaseClass::Of<TQzEventLogAppender>());
        return List.release();
    }();
    return *Result;
}

TQzAppenderInstances& AppenderInstances() {
    static auto* const Result = new TQzAppenderInstances;
    return *Result;
}

int TQzAppenderInstances::Count() const {
    return static_cast<int>(Items().size());
}

Ref<IQzLogAppender> TQzAppenderInstances::Find(std::u16string_view AName) const {
    const TScopedLock Hold(FLock);
    TQzLogBase* Other = nullptr; // that was made under the name and bears another one by now
    for (TQzLogBase* Item : FList) {
        if (!Item->FIsComplete || !Item->IsAppender())
            continue;
        if (Item->Name() == AName && Item->TryAddReference())
            return AppenderOf(Item);
        if (Other == nullptr && Item->NameToFind() == AName)
            Other = Item;
    }
    return Other != nullptr && Other->TryAddReference() ? AppenderOf(Other) : Ref<IQzLogAppender>();
}

std::vector<Ref<IQzLogAppender>> TQzAppenderInstances::Items() const {
    std::vector<Ref<IQzLogAppender>> Result; // ends behind the lock, if it does not get there
    const TScopedLock Hold(FLock);
    Result.reserve(static_cast<std::size_t>(FList.Count()));
    for (TQzLogBase* Item : FList) {
        if (Item->FIsComplete && Item->IsAppender() && Item->TryAddReference())
            Result.push_back(AppenderOf(Item));
    }
    return Result;
}

void TQzAppenderInstances::LoseLogger(const TQzLogger* ALogger) noexcept {
    const TScopedLock Hold(FLock);
    for (TQzLogBase* Item : FList) {
        if (Item->FLogger == ALogger)
            Item->FLogger = nullptr;
    }
}

} // namespace qz
