#include "common/uQzLogger/LogBase.h"

#include <algorithm>

#include "common/uQzLogLayouts/SimpleLayout.h"
#include "common/uQzLogger/LogAppenderList.h"
#include "common/uQzLogger/QzLogger.h"
#include "runtime/objects/ClassRegistry.h"
#include "runtime/text/StringUtils.h"

namespace qz {

constinit const TClassRec TQzLogBase::ClassRec = DescribeClass<TQzLogBase>(
    u"TQzLogBase", {.Unit = u"uQzLogger", .Interfaces = Interfaces<TQzLogBase, IQzLogBase>()});
constinit const TClassRec TQzLogBaseClassList::ClassRec =
    DescribeClass<TQzLogBaseClassList>(u"TQzLogBaseClassList", {.Unit = u"uQzLogger"});

TQzLogBase::TQzLogBase(TQzLogger* ALogger, const UnicodeString& AName)
    : Inherited(nullptr),
      FLogger(ALogger) {
    if (!AName.IsEmpty() && (AName[0] < u'0' || AName[0] > u'9'))
        SetName(AName);
}

TQzLogBase::~TQzLogBase() {
    AppenderInstances().Leave(this);
}

// The last reference goes under the lock by which an appender is found, so that nobody finds one that ends.
std::uint32_t TQzLogBase::_Release() {
    std::int32_t Count = 0;
    bool Ends = false;
    {
        TQzAppenderInstances& All = AppenderInstances();
        const TScopedLock Hold(All);
        Ends = DropReference(Count);
        if (Ends)
            All.Leave(this);
    }
    if (Ends)
        Free();
    return static_cast<std::uint32_t>(Count);
}

void TQzLogBase::AfterConstruction() {
    Inherited::AfterConstruction();
    AppenderInstances().Enter(this);
}

void TQzLogBase::BeforeDestruction() {
    AppenderInstances().Leave(this);
    LeaveLists();
    Inherited::BeforeDestruction();
}

void TQzLogBase::DestructionRefused() noexcept {
    Inherited::DestructionRefused();
    AppenderInstances().Enter(this);
}

void TQzLogBase::LeaveLists() {
    std::vector<detail::TLogAppenderCorePtr> Cores;
    {
        const TScopedLock Hold(AppenderInstances());
        for (const auto& List : FLists) {
            if (auto Core = List.lock())
                Cores.push_back(std::move(Core));
        }
    }
    for (const auto& Core : Cores)
        Core->RemoveIf([this](IQzLogAppender& AItem) { return AItem.Component() == this; });
}

void LinkAppender(TComponent* AComponent, TQzLogAppenderList& AList) {
    const TScopedLock Hold(AppenderInstances());
    auto* Base = dynamic_cast<TQzLogBase*>(AComponent);
    if (Base == nullptr) {
        if (AComponent != nullptr)
            AComponent->FreeNotification(&AList);
        return;
    }
    std::erase_if(Base->FLists, [](const auto& AItem) { return AItem.expired(); });
    const auto IsIt = [&AList](const auto& AItem) { return AItem.lock() == AList.Core(); };
    if (std::none_of(Base->FLists.begin(), Base->FLists.end(), IsIt))
        Base->FLists.emplace_back(AList.Core());
}

Ref<IQzLogBase> MakeLogBase(TQzLogBaseClass AClass, TQzLogger* ALogger, const UnicodeString& AName) {
    const auto Make = AClass ? TQzLogBase::TVirtualCreate::Find(AClass) : nullptr;
    if (Make == nullptr)
        throw EInvalidOperation(u"Class %s cannot be made", {AClass ? AClass->Name() : u"nil"});
    return Ref<IQzLogBase>(Make(ALogger, AName));
}

void TQzLogBaseClassList::Add(TQzLogBaseClass AClass) {
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
        return List.release();
    }();
    return *Result;
}

TQzLogBaseClassList& RegisteredAppenders() {
    static auto* const Result = new TQzLogBaseClassList;
    return *Result;
}

TQzAppenderInstances& AppenderInstances() {
    static auto* const Result = new TQzAppenderInstances;
    return *Result;
}

int TQzAppenderInstances::Count() const {
    const TScopedLock Hold(FLock);
    return static_cast<int>(std::count_if(FList.begin(), FList.end(),
                                          [](const TQzLogBase* AItem) { return AItem->IsAppender(); }));
}

Ref<IQzLogAppender> TQzAppenderInstances::Find(std::u16string_view AName) const {
    const TScopedLock Hold(FLock);
    for (TQzLogBase* Item : FList) {
        if (Item->IsAppender() && Item->Name() == AName)
            return AsInterface<IQzLogAppender>(Item);
    }
    return {};
}

std::vector<Ref<IQzLogAppender>> TQzAppenderInstances::Items() const {
    const TScopedLock Hold(FLock);
    std::vector<Ref<IQzLogAppender>> Result;
    for (TQzLogBase* Item : FList) {
        if (Item->IsAppender())
            Result.push_back(AsInterface<IQzLogAppender>(Item));
    }
    return Result;
}

void TQzAppenderInstances::Enter(TQzLogBase* AItem) {
    const TScopedLock Hold(FLock);
    if (!FList.Contains(AItem))
        FList.Add(AItem);
}

void TQzAppenderInstances::Leave(TQzLogBase* AItem) noexcept {
    const TScopedLock Hold(FLock);
    FList.Remove(AItem);
}

void TQzAppenderInstances::LoseLogger(const TQzLogger* ALogger) noexcept {
    const TScopedLock Hold(FLock);
    for (TQzLogBase* Item : FList) {
        if (Item->LoggerOfOrigin() == ALogger)
            Item->FLogger.store(nullptr, std::memory_order_relaxed);
    }
}

} // namespace qz
