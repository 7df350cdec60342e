#include <qz/common/uQzLogger/LogBase.h>

#include <algorithm>

#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/AppenderSet.h>
#include <qz/common/uQzLogger/detail/BuiltIns.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/ClassRegistry.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

using detail::TStateHold;

QZ_REGISTER_TYPES(TQzLogBase, TQzLogBaseClassList);

constinit const TClassRec TQzLogBase::ClassRec = DescribeClass<TQzLogBase>(
    u"TQzLogBase", {.Unit = u"uQzLogger", .Interfaces = Interfaces<TQzLogBase, IQzLogBase>()});
constinit const TClassRec TQzLogBaseClassList::ClassRec =
    DescribeClass<TQzLogBaseClassList>(u"TQzLogBaseClassList", {.Unit = u"uQzLogger"});

namespace {

// Takes over a counted reference.
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
    const TStateHold Hold;
    AppenderInstances().FList.Add(this);
}

TQzLogBase::~TQzLogBase() {
    const TStateHold Hold;
    AppenderInstances().FList.Remove(this);
}

UnicodeString TQzLogBase::GetName() const {
    const TStateHold Hold;
    return Name();
}

void TQzLogBase::SetName(const UnicodeString& AName) {
    const TStateHold Hold;
    Inherited::SetName(AName);
}

UnicodeString TQzLogBase::ConfiguredName() const {
    const TStateHold Hold;
    return NameToFind();
}

void TQzLogBase::FinishCreate() {
    Inherited::FinishCreate();
    SetComplete(true);
}

void TQzLogBase::SetComplete(bool AValue) noexcept {
    const TStateHold Hold;
    FIsComplete = AValue;
}

// An appender without references is in no list.
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
    const TStateHold Hold;
    return FLogger != nullptr ? FLogger->Hold({}) : Ref<TQzLogger>();
}

void TQzLogBase::LeaveLists() {
    for (;;) {
        detail::TAppenderSetPtr Set;
        {
            const TStateHold Hold;
            if (FSets.empty())
                return;
            Set = FSets.back()->shared_from_this();
        }
        Set->Remove(this);
    }
}

void TQzLogBase::LeftSet(detail::TAppenderSet& ASet, TAccessKey<detail::TAppenderSet>) noexcept {
    std::erase(FSets, &ASet);
}

bool TQzLogBase::ReleaseFromSet(TAccessKey<detail::TAppenderSet>) {
    std::int32_t Count = 0;
    return DropReference(Count);
}

// The reference is never released, so that nothing ends the appender.
void TQzLogBase::BecomeLost(TAccessKey<detail::TLogFork>) {
    AppenderInstances().FList.Remove(this);
    FSets.clear();
    FIsComplete = false;
    _AddRef();
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
    const TStateHold Hold;
    if (!FList.Contains(AClass))
        FList.Add(AClass);
}

TQzLogBaseClass TQzLogBaseClassList::GetClass(const TStringArg& AName) const {
    const TStateHold Hold;
    const auto Found = std::find_if(FList.begin(), FList.end(),
                                    [&AName](TClass AClass) { return SameText(AClass->Name(), AName); });
    if (Found == FList.end())
        throw EListError(u"Class %s not found!", {AName.View()});
    return TQzLogBaseClass(*Found);
}

TQzLogBaseClassList& RegisteredLayouts() {
    static TQzLogBaseClassList* const Result = [] {
        auto List = std::make_unique<TQzLogBaseClassList>();
        detail::AddLayouts(*List);
        return List.release();
    }();
    return *Result;
}

TQzLogBaseClassList& RegisteredAppenders() {
    static TQzLogBaseClassList* const Result = [] {
        auto List = std::make_unique<TQzLogBaseClassList>();
        detail::AddAppenders(*List);
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
    const TStateHold Hold;
    TQzLogBase* Other = nullptr; // found by its ConfiguredName
    for (TQzLogBase* Item : FList) {
        if (!Item->FIsComplete || Item->AppenderLock() == nullptr)
            continue;
        if (Item->Name() == AName && Item->TryAddReference())
            return AppenderOf(Item);
        if (Other == nullptr && Item->NameToFind() == AName)
            Other = Item;
    }
    return Other != nullptr && Other->TryAddReference() ? AppenderOf(Other) : Ref<IQzLogAppender>();
}

std::vector<Ref<IQzLogAppender>> TQzAppenderInstances::Items() const {
    std::vector<Ref<IQzLogAppender>> Result; // released after the lock
    const TStateHold Hold;
    Result.reserve(static_cast<std::size_t>(FList.Count()));
    for (TQzLogBase* Item : FList) {
        if (Item->FIsComplete && Item->AppenderLock() != nullptr && Item->TryAddReference())
            Result.push_back(AppenderOf(Item));
    }
    return Result;
}

void TQzAppenderInstances::LoseLogger(const TQzLogger* ALogger, TAccessKey<TQzLogger>) noexcept {
    const TStateHold Hold;
    for (TQzLogBase* Item : FList) {
        if (Item->FLogger == ALogger)
            Item->FLogger = nullptr;
    }
}

} // namespace qz
