#include <qz/common/uQzLogger/QzLogger.h>

#include <algorithm>
#include <unordered_set>
#include <vector>

#include <qz/common/uQzLogger/LogBase.h>
#include <qz/common/uQzLogger/LogFork.h>
#include <qz/common/uQzLogger/LogTreeLock.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/text/Format.h>

namespace qz {

using detail::TLogTreeLock;

constinit const TClassRec TQzLogger::ClassRec = DescribeClass<TQzLogger>(
    u"TQzLogger", {.Unit = u"uQzLogger", .Interfaces = Interfaces<TQzLogger, IQzLogger>()});

namespace {

constexpr std::u16string_view cRoot = u"root";
// Above all levels: no appender takes anything.
constexpr auto cNobody = static_cast<TQzLogLevel>(static_cast<int>(llDoNotLog) + 1);

constinit std::atomic<TQzLogger*> GRoot{nullptr}; // changed under the lock of the tree

// All living loggers; guarded by the lock of the tree.
std::unordered_set<TQzLogger*>& AllLoggers() {
    static auto* const Result = new std::unordered_set<TQzLogger*>;
    return *Result;
}

} // namespace

// Begins and ends with the program. The root stays: threads may still log through it.
struct TLogUnit {
    TLogUnit() {
        RegisteredLayouts();
        RegisteredAppenders();
        detail::WatchForks();
    }
    ~TLogUnit() {
        if (TQzLogger* Root = GRoot.load(std::memory_order_acquire))
            Root->Retire();
    }
};

namespace {

const TLogUnit cUnit;

} // namespace

TQzLogger::TQzLogger(TQzLogger* AParent, const UnicodeString& AName)
    : FName(AName),
      FHasFullName(AParent == nullptr),
      FAppenders(TQzLogAppenderList::Create(this)),
      FCore(FAppenders->Core()),
      FParent(AParent),
      FChildLoggers(TQzLoggerList::Create(*this).release()),
      FEndsByCount(AParent != nullptr),
      FTakenFrom(cNobody) {}

TQzLogger::~TQzLogger() {
    const TLogTreeLock Hold;
    AllLoggers().erase(this);
}

std::vector<detail::TLogAppenderCorePtr> TQzLogger::AllAppenders() {
    const TLogTreeLock Hold;
    std::vector<detail::TLogAppenderCorePtr> Result;
    for (const TQzLogger* Each : AllLoggers())
        Result.push_back(Each->FCore);
    return Result;
}

void TQzLogger::AfterConstruction() {
    Inherited::AfterConstruction();
    const TLogTreeLock Hold;
    AllLoggers().insert(this);
    RecomputeOwn();
    if (FParent != nullptr)
        FParent->FChildLoggers->AddLogger(this);
}

void TQzLogger::FinishCreate() {
    FRefCount.Decrement();
}

TQzLogger& Logger() {
    if (TQzLogger* Root = GRoot.load(std::memory_order_acquire))
        return *Root;
    const TLogTreeLock Hold;
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
        const TLogTreeLock Hold;
        Root = Ref<TQzLogger>::Attach(GRoot.exchange(nullptr, std::memory_order_relaxed));
        if (Root == nullptr)
            return;
        Root->FEndsByCount = true;
        Root->DetachChildren(false);
    }
    Root->Retire();
}

// Lets go of what the application gave the logger.
void TQzLogger::Retire() {
    ClearAppenders();
    Ref<IQzLogConfigurator> Configurator; // ends behind the lock
    const TLogTreeLock Hold;
    std::swap(Configurator, FConfigurator);
}

HRESULT TQzLogger::QueryInterface(const TGUID& AIid, void** AObject) {
    Assert(FParent != nullptr, u"Do not get the IQzLogger interface from the rootlogger!");
    return detail::QueryObject(*this, AIid, AObject);
}

std::uint32_t TQzLogger::_AddRef() {
    return static_cast<std::uint32_t>(FRefCount.Increment());
}

// A logger that its maker ends may have none to begin with.
bool TQzLogger::TryAddRef() noexcept {
    if (FRefCount.IncrementUnlessZero())
        return true;
    if (FEndsByCount || FIsEnding)
        return false;
    FRefCount.Increment();
    return true;
}

// The last reference goes under the lock by which a logger is found, so that nobody finds one that ends. True when this
// logger ends by it; else it may be gone already.
bool TQzLogger::DropReference(std::int32_t& ACount) {
    ACount = 1;
    if (FRefCount.DecrementUnlessLast())
        return false;
    const TLogTreeLock Hold;
    ACount = FRefCount.Decrement();
    const bool Ends = ACount == 0 && FEndsByCount && !FIsEnding;
    if (Ends)
        LeaveParent();
    return Ends;
}

// The caller holds the lock of the tree.
void TQzLogger::LeaveParent() {
    if (FParent != nullptr)
        FParent->FChildLoggers->FList.Remove(this);
}

// A parent may end with its last child, and so on up the tree, which may be high. What a thread drops of the
// logger with whose message it is on the way counts until that has arrived.
std::uint32_t TQzLogger::_Release() {
    std::int32_t Count = 0;
    const detail::TLogDispatch* Present = detail::ThisLogThread().Present;
    if (Present != nullptr && Present->Logger == this && detail::ReleaseLater(*this))
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
        const TLogTreeLock Hold;
        LeaveParent();
        DetachChildren(true);
        std::swap(Configurator, FConfigurator);
        TQzLogger* Self = this;
        GRoot.compare_exchange_strong(Self, nullptr, std::memory_order_relaxed);
    }
    AppenderInstances().LoseLogger(this);
    if (RefCount() != 0) {
        try {
            detail::RaiseAssertion(Format(u"The refcount of \"%s\" is not equal to 0!", {FullName()}));
        } catch (const EAssertionFailed&) { // NOLINT(bugprone-empty-catch): it must not keep the logger
        }
    }
    Inherited::BeforeDestruction();
}

void TQzLogger::ClearChildLoggers() {
    FChildLoggers->LockForChange(u".ClearChildLoggers");
    struct TUnlock {
        ~TUnlock() { TLogTreeLock::Leave(); }
    } const Hold;
    DetachChildren(false);
}

// ALetGo is for a parent that ends although it has children; a message on its way would miss it. The caller holds the lock
// of the tree.
void TQzLogger::DetachChildren(bool ALetGo) {
    while (!FChildLoggers->FList.IsEmpty()) {
        TQzLogger* Child = FChildLoggers->FList.Last();
        Child->FullName();
        Child->FIsOrphan.store(true, std::memory_order_relaxed);
        FChildLoggers->FList.Delete(FChildLoggers->Count() - 1);
        Child->Recompute();
        if (ALetGo)
            Child->FParent = {};
    }
}

bool TQzLogger::Lock(const TStringArg&, bool) {
    TLogTreeLock::Enter();
    return true;
}

void TQzLogger::Unlock() {
    TLogTreeLock::Leave();
}

Ref<IQzLogger> TQzLogger::GetParentLogger() const {
    return IsOrphan() ? Ref<IQzLogger>() : Ref<IQzLogger>(FParent);
}

const UnicodeString& TQzLogger::FullName() const {
    if (FHasFullName.load(std::memory_order_acquire))
        return FFullName;
    const TLogTreeLock Hold;
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

UnicodeString TQzLogger::FullNameIfKnown() const {
    return FHasFullName.load(std::memory_order_acquire) ? FFullName : FName;
}

bool TQzLogger::IsNamed(std::u16string_view AFullName) const noexcept {
    for (const TQzLogger* Node = this; Node != nullptr; Node = Node->FParent.Get()) {
        if (Node->FHasFullName.load(std::memory_order_acquire))
            return Node->FFullName == AFullName;
        if (!AFullName.ends_with(Node->FName.View()))
            return false;
        AFullName.remove_suffix(Node->FName.size());
        if (!AFullName.ends_with(u'.'))
            return false;
        AFullName.remove_suffix(1);
    }
    return false;
}

Ref<TQzLogger> TQzLogger::Child(std::u16string_view AName) {
    if (TQzLogger* Found = FChildLoggers->FindPart(AName))
        return Found;
    Ref<TQzLogger> Result(TQzLogger::Create(this, AName));
    if (TQzLogger* Root = GRoot.load(std::memory_order_relaxed)) {
        if (const Ref<IQzLogConfigurator> Configurator = Root->FConfigurator)
            Result->SetConfig(Configurator.Get());
    }
    return Result;
}

Ref<IQzLogger> TQzLogger::GetLogger(const TStringArg& AName) {
    const TLogTreeLock Hold;
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
    const TLogTreeLock Hold;
    FLevel.store(AValue, std::memory_order_relaxed);
    FParentLevel.store(false, std::memory_order_relaxed);
    Recompute();
}

void TQzLogger::SetParentLevel(bool AValue) {
    const TLogTreeLock Hold;
    FParentLevel.store(AValue, std::memory_order_relaxed);
    Recompute();
}

void TQzLogger::SetAdditive(bool AValue) {
    const TLogTreeLock Hold;
    FAdditive.store(AValue, std::memory_order_relaxed);
    Recompute();
}

void TQzLogger::AppendersChanged() {
    Recompute();
}

bool TQzLogger::RecomputeOwn() noexcept {
    const TQzLogger* Parent = IsOrphan() ? nullptr : FParent.Get();
    const TQzLogLevel Level =
        GetParentLevel() && Parent != nullptr ? Parent->GetLevel() : FLevel.load(std::memory_order_relaxed);
    const TQzLogger* Next = NextOnTheWay();
    const TQzLogLevel TakenFrom =
        std::min(FCore->IsEmpty() ? cNobody : Level,
                 Next == nullptr ? cNobody : Next->FTakenFrom.load(std::memory_order_relaxed));
    const bool IsOther = FEffectiveLevel.exchange(Level, std::memory_order_relaxed) != Level;
    return (FTakenFrom.exchange(TakenFrom, std::memory_order_relaxed) != TakenFrom) || IsOther;
}

// This logger, and what lies below one that is other than before. The tree may be high.
void TQzLogger::Recompute() {
    std::vector<TQzLogger*> Nodes{this};
    while (!Nodes.empty()) {
        TQzLogger* Node = Nodes.back();
        Nodes.pop_back();
        if (Node->RecomputeOwn())
            Nodes.insert(Nodes.end(), Node->FChildLoggers->FList.begin(), Node->FChildLoggers->FList.end());
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
    FCore->EnterGate();
    return FAppenders.get();
}

void TQzLogger::UnLockAppenders() {
    Assert(FCore->HoldsGate());
    FAppenders->Unlock();
}

} // namespace qz
