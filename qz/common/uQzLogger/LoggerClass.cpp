#include <qz/common/uQzLogger/LoggerClass.h>

#include <algorithm>
#include <unordered_set>
#include <vector>

#include <qz/common/uQzLogger/LogAppenderList.h>
#include <qz/common/uQzLogger/LogBase.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/LoggerList.h>
#include <qz/common/uQzLogger/detail/AppenderSet.h>
#include <qz/common/uQzLogger/detail/LogDispatch.h>
#include <qz/common/uQzLogger/detail/LogFork.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/Format.h>

namespace qz {

using detail::TStateHold;
using detail::TTreeHold;
using detail::TTreeLock;

QZ_REGISTER_TYPES(TQzLogger);

constinit const TClassRec TQzLogger::ClassRec = DescribeClass<TQzLogger>(
    u"TQzLogger", {.Unit = u"uQzLogger", .Interfaces = Interfaces<TQzLogger, IQzLogger>()});

namespace {

constexpr std::u16string_view cRoot = u"root";
constexpr std::uint32_t cPatienceAtEnd = 1000;    // milliseconds
constinit std::atomic<TQzLogger*> GRoot{nullptr}; // written under the state lock

// All living loggers; guarded by the state lock.
std::unordered_set<TQzLogger*>& AllLoggers() {
    static auto* const Result = new std::unordered_set<TQzLogger*>;
    return *Result;
}

} // namespace

// Begins and ends with the program. The root stays, since threads may still log through it. What a message
// needs is made here, so that no fork happens while a thread makes it.
struct TLogUnit {
    TLogUnit() {
        AllLoggers();
        AppenderInstances();
        const TTreeHold Tree;
        RegisteredLayouts();
        RegisteredAppenders();
        QzDroppedLogMessages();
        detail::WatchForks();
    }
    ~TLogUnit() {
        TQzLogger* const Root = GRoot.load(std::memory_order_acquire);
        detail::TLogThread& Thread = detail::ThisLogThread();
        if (Root == nullptr || !Root->FSet->TryEnter(Thread, cPatienceAtEnd))
            return; // an appender blocks on another thread
        if (detail::AwaitAppenders(cPatienceAtEnd))
            Root->Retire();
        Root->FSet->Leave(Thread);
    }
};

namespace {

const TLogUnit cUnit;

} // namespace

TQzLogger::TQzLogger(TQzLogger* AParent, const UnicodeString& AName)
    : FName(AName),
      FHasFullName(AParent == nullptr),
      FAppenders(TQzLogAppenderList::Create(this)),
      FSet(FAppenders->Set({})),
      FParent(AParent),
      FChildLoggers(TQzLoggerList::Create(*this).release()),
      FEndsByCount(AParent != nullptr),
      FTakenFrom(cLevelOfNobody) {}

TQzLogger::~TQzLogger() {
    const TStateHold Hold;
    AllLoggers().erase(this);
}

void TQzLogger::BeginChild(std::span<TQzLogBase* const> ALost, TAccessKey<detail::TLogFork>) {
    for (const TQzLogger* Each : AllLoggers())
        Each->FSet->BeginChild(ALost);
}

void TQzLogger::AfterConstruction() {
    Inherited::AfterConstruction();
    const TStateHold Hold;
    AllLoggers().insert(this);
    RecomputeOwn();
    if (FParent != nullptr)
        FParent->FChildLoggers->Append(this, {});
}

void TQzLogger::FinishCreate() {
    FRefCount.Decrement();
}

TQzLogger& Logger() {
    if (TQzLogger* Root = GRoot.load(std::memory_order_acquire))
        return *Root;
    const TStateHold Hold;
    if (TQzLogger* Root = GRoot.load(std::memory_order_relaxed))
        return *Root;
    Ref<TQzLogger> Root(TQzLogger::Create(nullptr, cRoot));
    Root->FFullName = cRoot;
    Root->SetLevel(llDebug);
    GRoot.store(Root.Get(), std::memory_order_release);
    return *Root.Detach();
}

void CloseRootLogger() {
    Ref<TQzLogger> Root;
    {
        const TTreeHold Tree;
        const TStateHold Hold;
        Root = Ref<TQzLogger>::Attach(GRoot.exchange(nullptr, std::memory_order_relaxed));
        if (Root == nullptr)
            return;
        Root->FEndsByCount = true;
        Root->DetachChildren(false);
    }
    Root->Retire();
}

// Drops what the application gave the logger.
void TQzLogger::Retire() {
    ClearAppenders();
    Ref<IQzLogConfigurator> Configurator; // released after the lock
    const TStateHold Hold;
    std::swap(Configurator, FConfigurator);
}

HRESULT TQzLogger::QueryInterface(const TGUID& AIid, void** AObject) {
    Assert(FParent != nullptr, u"Do not get the IQzLogger interface from the rootlogger!");
    return detail::QueryObject(*this, AIid, AObject);
}

std::uint32_t TQzLogger::_AddRef() {
    return static_cast<std::uint32_t>(FRefCount.Increment());
}

// The count of a logger that its maker ends may be 0.
bool TQzLogger::TryAddRef() noexcept {
    if (FRefCount.IncrementUnlessZero())
        return true;
    if (FEndsByCount || FIsEnding)
        return false;
    FRefCount.Increment();
    return true;
}

Ref<TQzLogger> TQzLogger::Hold(TAccessKey<TQzLogBase>) noexcept {
    return TryAddRef() ? Ref<TQzLogger>::Attach(this) : Ref<TQzLogger>();
}

// The last reference is dropped under the lock by which loggers are found, so that a logger that ends is not
// found. True if this logger has to end; otherwise it may be destroyed already.
bool TQzLogger::DropReference(std::int32_t& ACount) {
    ACount = 1;
    if (FRefCount.DecrementUnlessLast())
        return false;
    const TTreeHold Tree;
    const TStateHold Hold;
    ACount = FRefCount.Decrement().Count;
    const bool Ends = ACount == 0 && FEndsByCount && !FIsEnding;
    if (Ends && FParent != nullptr)
        FParent->FChildLoggers->Delete(this, {});
    return Ends;
}

// A parent may end with its last child, and so on up the tree, which may be high. A thread that may not wait
// for the tree lock leaves the last reference to its queue.
std::uint32_t TQzLogger::_Release() {
    std::int32_t Count = 0;
    if (FRefCount.DecrementUnlessLast())
        return 1;
    if (!FIsEnding && !detail::ThisLogThread().MayWait() && detail::TLogDispatch::ReleaseLater(*this))
        return static_cast<std::uint32_t>(FRefCount.Value() - 1);
    TQzLogger* Ending = DropReference(Count) ? this : nullptr;
    while (Ending != nullptr) {
        TQzLogger* Parent = Ref<TQzLogger>(Ending->FParent).Detach();
        Ending->Free();
        std::int32_t Left = 0;
        Ending = Parent != nullptr && Parent->DropReference(Left) ? Parent : nullptr;
    }
    return static_cast<std::uint32_t>(Count);
}

void TQzLogger::BeforeDestruction() {
    Ref<IQzLogConfigurator> Configurator;
    {
        const TTreeHold Tree;
        const TStateHold Hold;
        if (FParent != nullptr)
            FParent->FChildLoggers->Delete(this, {});
        DetachChildren(true);
        std::swap(Configurator, FConfigurator);
        TQzLogger* Self = this;
        GRoot.compare_exchange_strong(Self, nullptr, std::memory_order_relaxed);
    }
    AppenderInstances().LoseLogger(this, {});
    if (RefCount() != 0) {
        try {
            detail::RaiseAssertion(Format(u"The refcount of \"%s\" is not equal to 0!", {FullName()}));
        } catch (const EAssertionFailed&) { // NOLINT(bugprone-empty-catch): it must not keep the logger
        }
    }
    Inherited::BeforeDestruction();
}

void TQzLogger::ClearChildLoggers() {
    FChildLoggers->LockForChange(u".ClearChildLoggers", {});
    struct TUnlock {
        ~TUnlock() { TTreeLock::Leave(); }
    } const Tree;
    const TStateHold Hold;
    DetachChildren(false);
}

// ADropParent is for a parent that ends although it has children. The caller holds the state lock.
void TQzLogger::DetachChildren(bool ADropParent) {
    const TList<TQzLogger*>& Children = FChildLoggers->Items({});
    while (!Children.IsEmpty()) {
        TQzLogger* Child = Children.Last();
        Child->FullName();
        Child->FIsOrphan.store(true, std::memory_order_relaxed);
        FChildLoggers->Delete(Child, {});
        Child->Recompute();
        if (ADropParent)
            Child->FParent = {};
    }
}

bool TQzLogger::Lock(const TStringArg&, bool) {
    TTreeLock::Enter();
    return true;
}

void TQzLogger::Unlock() {
    TTreeLock::Leave();
}

Ref<IQzLogger> TQzLogger::GetParentLogger() const {
    return IsOrphan() ? Ref<IQzLogger>() : Ref<IQzLogger>(FParent);
}

const UnicodeString& TQzLogger::FullName() const {
    if (FHasFullName.load(std::memory_order_acquire))
        return FFullName;
    const TStateHold Hold;
    std::vector<const TQzLogger*> Nodes;
    const TQzLogger* Top = this;
    for (; !Top->FHasFullName.load(std::memory_order_relaxed); Top = Top->FParent.Get())
        Nodes.push_back(Top);
    UnicodeString Result = Top->FFullName;
    std::reverse(Nodes.begin(), Nodes.end());
    for (const TQzLogger* Node : Nodes) {
        Result += u'.';
        Result += Node->FName;
    }
    if (!Nodes.empty())
        FFullName = Result;
    FHasFullName.store(true, std::memory_order_release);
    return FFullName;
}

Ref<TQzLogger> TQzLogger::Child(std::u16string_view AName) {
    Ref<TQzLogger> Result;
    Ref<IQzLogConfigurator> Configurator;
    {
        const TStateHold Hold;
        if (TQzLogger* Found = FChildLoggers->FindPart(AName, {}))
            return Found;
        Result = TQzLogger::Create(this, AName);
        if (const TQzLogger* Root = GRoot.load(std::memory_order_relaxed))
            Configurator = Root->FConfigurator;
    }
    if (Configurator != nullptr)
        Result->SetConfig(Configurator.Get());
    return Result;
}

Ref<IQzLogger> TQzLogger::GetLogger(const TStringArg& AName) {
    const TTreeHold Hold;
    std::u16string_view Rest = AName;
    Ref<TQzLogger> Result(this);
    while (!Rest.empty()) {
        const std::u16string_view Part = Rest.substr(0, Rest.find(u'.'));
        Rest.remove_prefix(std::min(Part.size() + 1, Rest.size()));
        if (!Part.empty())
            Result = Result->Child(Part);
    }
    return Result;
}

Ref<IQzLogger> TQzLogger::GetLogger(const TObject* AObject) {
    Assert(AObject != nullptr);
    return GetLogger(AObject->ClassName());
}

void TQzLogger::SetLevel(TQzLogLevel AValue) {
    const TStateHold Hold;
    FLevel.store(AValue, std::memory_order_relaxed);
    FParentLevel.store(false, std::memory_order_relaxed);
    Recompute();
}

void TQzLogger::SetParentLevel(bool AValue) {
    const TStateHold Hold;
    FParentLevel.store(AValue, std::memory_order_relaxed);
    Recompute();
}

void TQzLogger::SetAdditive(bool AValue) {
    const TStateHold Hold;
    FAdditive.store(AValue, std::memory_order_relaxed);
    Recompute();
}

bool TQzLogger::RecomputeOwn() noexcept {
    const TQzLogger* Parent = IsOrphan() ? nullptr : FParent.Get();
    const TQzLogLevel Level =
        GetParentLevel() && Parent != nullptr ? Parent->GetLevel() : FLevel.load(std::memory_order_relaxed);
    const TQzLogger* Next = NextOnTheWay();
    const TQzLogLevel TakenFrom =
        std::min(FSet->IsEmpty() ? cLevelOfNobody : Level,
                 Next == nullptr ? cLevelOfNobody : Next->FTakenFrom.load(std::memory_order_relaxed));
    const bool IsOther = FEffectiveLevel.exchange(Level, std::memory_order_relaxed) != Level;
    return (FTakenFrom.exchange(TakenFrom, std::memory_order_relaxed) != TakenFrom) || IsOther;
}

// This logger, and the children of each that has changed. The tree may be high.
void TQzLogger::Recompute() {
    std::vector<TQzLogger*> Nodes{this};
    while (!Nodes.empty()) {
        TQzLogger* Node = Nodes.back();
        Nodes.pop_back();
        if (Node->RecomputeOwn()) {
            const TList<TQzLogger*>& Children = Node->FChildLoggers->Items({});
            Nodes.insert(Nodes.end(), Children.begin(), Children.end());
        }
    }
}

void TQzLogger::AddAppender(IQzLogAppender* AAppender) {
    FAppenders->Add(AAppender);
}

Ref<IQzLogAppender> TQzLogger::AddAppender(TQzLogBaseClass AClass) {
    return FAppenders->Add(AClass);
}

void TQzLogger::RemoveAppender(IQzLogAppender* AAppender) {
    FAppenders->Remove(AAppender);
}

void TQzLogger::ClearAppenders() {
    FAppenders->Clear();
}

TQzLogAppenderList* TQzLogger::LockAppenders() {
    FSet->Enter(detail::ThisLogThread());
    return FAppenders.get();
}

void TQzLogger::UnLockAppenders() {
    Assert(FSet->IsHeldByCaller());
    FAppenders->Unlock();
}

} // namespace qz
