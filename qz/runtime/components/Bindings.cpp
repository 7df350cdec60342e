#include <qz/runtime/components/Bindings.h>

#include <algorithm>
#include <mutex>
#include <unordered_map>

#include <qz/platform/Fork.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/components/Component.h>
#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(EEvaluatorError, TBindingExpression);

constinit const TClassRec EEvaluatorError::ClassRec =
    DescribeException<EEvaluatorError>(u"EEvaluatorError", u"System");
constinit const TClassRec TBindingExpression::ClassRec =
    DescribeClass<TBindingExpression>(u"TBindingExpression", {.Unit = u"System"});

namespace {

using TBindingPtr = std::shared_ptr<TBindingExpression>;

// All bindings, and those that read each object. The lock guards the tables alone; bindings run without it.
class TBindingTable {
public:
    // Never destroyed, since objects may be destroyed at program exit.
    static TBindingTable& Instance() {
        static auto* const Table = new TBindingTable;
        return *Table;
    }

    std::mutex& Lock() noexcept { return FMutex; }

    void Add(TBindingPtr ABinding) {
        const std::lock_guard Hold(FMutex);
        TBindingExpression* Key = ABinding.get();
        FAll.emplace(Key, TItem{std::move(ABinding), ++FLastNumber});
    }
    // Gives the binding, so that the caller destroys it outside the lock; null if it is unknown.
    TBindingPtr Take(TBindingExpression* ABinding) {
        const std::lock_guard Hold(FMutex);
        const auto Found = FAll.find(ABinding);
        if (Found == FAll.end())
            return nullptr;
        TBindingPtr Result = std::move(Found->second.Binding);
        FAll.erase(Found);
        return Result;
    }
    void Watch(TBindingExpression* ABinding, const std::vector<TObject*>& AOld,
               const std::vector<TObject*>& ANew) {
        const std::lock_guard Hold(FMutex);
        for (const TObject* Object : ANew)
            FReaders.emplace(Object, ABinding);
        for (const TObject* Object : AOld)
            Forget(Object, ABinding);
    }
    // The bindings that read the object, in the order in which they were made.
    std::vector<TBindingPtr> ReadersOf(const TObject* AObject) {
        std::vector<TItem> Items;
        {
            const std::lock_guard Hold(FMutex);
            const auto [First, Last] = FReaders.equal_range(AObject);
            for (auto Reader = First; Reader != Last; ++Reader)
                if (const auto Found = FAll.find(Reader->second); Found != FAll.end())
                    Items.push_back(Found->second);
        }
        const auto Same = [](const TItem& A, const TItem& B) { return A.Number == B.Number; };
        std::sort(Items.begin(), Items.end(),
                  [](const TItem& A, const TItem& B) { return A.Number < B.Number; });
        Items.erase(std::unique(Items.begin(), Items.end(), Same), Items.end());
        std::vector<TBindingPtr> Result;
        Result.reserve(Items.size());
        for (TItem& Item : Items)
            Result.push_back(std::move(Item.Binding));
        return Result;
    }

private:
    struct TItem {
        TBindingPtr Binding;
        std::uint64_t Number;
    };
    void Forget(const TObject* AObject, const TBindingExpression* ABinding) noexcept {
        const auto [First, Last] = FReaders.equal_range(AObject);
        const auto Found =
            std::find_if(First, Last, [ABinding](const auto& APair) { return APair.second == ABinding; });
        if (Found != Last)
            FReaders.erase(Found);
    }

    std::mutex FMutex;
    std::unordered_map<TBindingExpression*, TItem> FAll;
    std::unordered_multimap<const TObject*, TBindingExpression*> FReaders;
    std::uint64_t FLastNumber = 0;
};

[[maybe_unused]] const bool GIsWatched =
    platform::HoldAroundFork(platform::TForkRank::Bindings, [] { return &TBindingTable::Instance().Lock(); });

detail::TBoundPath Resolve(std::initializer_list<TBindingScope> AScopes, const TStringArg& AExpression) {
    std::vector<UnicodeString> Parts = detail::TBoundPath::Split(AExpression);
    TObject* Root = nullptr;
    for (const TBindingScope& Scope : AScopes)
        if (Root == nullptr)
            Root = Scope.Find(Parts.front());
    if (Root == nullptr)
        throw EEvaluatorError(u"In the expression '%s' the name '%s' is unknown",
                              {AExpression.View(), Parts.front()});
    Parts.erase(Parts.begin());
    return {Root, std::move(Parts), AExpression.ToString()};
}

} // namespace

// Hears of the end of the bound components.
class TBindingExpression::TWatch : public TComponent {
    QZ_CLASS(TWatch, TComponent)

protected:
    explicit TWatch(TBindingExpression* ABinding) : TComponent(nullptr), FBinding(ABinding) {
        for (TObject* Root : {ABinding->FInput.Root(), ABinding->FOutput.Root()})
            if (Root->InheritsFrom(ClassOf<TComponent>()))
                FreeNotification(static_cast<TComponent*>(Root));
    }
    void Notification(TComponent* AComponent, TOperation AOperation) override {
        Inherited::Notification(AComponent, AOperation);
        if (AOperation == opRemove &&
            (AComponent == FBinding->FInput.Root() || AComponent == FBinding->FOutput.Root()))
            FBinding->Deactivate();
    }

private:
    TBindingExpression* FBinding;
};
constinit const TClassRec TBindingExpression::TWatch::ClassRec =
    DescribeClass<TWatch>(u"TBindingWatch", {.Unit = u"System"});

TObject* TBindingScope::Find(std::u16string_view AName) const noexcept {
    for (const TBindingAssociation& Item : FItems)
        if (SameText(Item.Name, AName))
            return Item.Object;
    return nullptr;
}

TBindingExpression::TBindingExpression(TKey, detail::TBoundPath AInput, detail::TBoundPath AOutput,
                                       TBindings::TCreateOptions AOptions)
    : FInput(std::move(AInput)),
      FOutput(std::move(AOutput)),
      FOptions(AOptions) {
    FInput.Check(false);
    FOutput.Check(true);
    FWatch.reset(TWatch::Create(this));
    WatchObjects();
}

TBindingExpression::~TBindingExpression() {
    Deactivate();
}

void TBindingExpression::Deactivate() noexcept {
    if (std::exchange(FActive, false))
        TBindingTable::Instance().Watch(this, std::exchange(FWatched, {}), {});
}

// The objects on the way may be others than at the last time.
void TBindingExpression::WatchObjects() {
    std::vector<TObject*> Objects = FInput.Objects();
    if (Objects == FWatched)
        return;
    TBindingTable::Instance().Watch(this, FWatched, Objects);
    FWatched = std::move(Objects);
}

void TBindingExpression::Evaluate() {
    if (!FActive || FEvaluating)
        return;
    const TBindingPtr Self = weak_from_this().lock(); // what it sets off may remove it
    struct THold {
        bool& Flag;
        ~THold() { Flag = false; }
    };
    FEvaluating = true;
    const THold Hold{FEvaluating};
    WatchObjects();
    TBoundValue Value;
    if (!FInput.Read(Value) || !FActive)
        return;
    const auto [Object, Prop] = FOutput.Write(Value);
    if (Object != nullptr && FOptions.Contains(TBindings::coNotifyOutput))
        TBindings::Notify(Object, Prop->Name);
}

TBindingExpression* TBindings::CreateManagedBinding(std::initializer_list<TBindingScope> AInputScopes,
                                                    const TStringArg& AInputExpression,
                                                    std::initializer_list<TBindingScope> AOutputScopes,
                                                    const TStringArg& AOutputExpression,
                                                    TCreateOptions AOptions) {
    const auto Binding = std::make_shared<TBindingExpression>(
        TBindingExpression::TKey(), Resolve(AInputScopes, AInputExpression),
        Resolve(AOutputScopes, AOutputExpression), AOptions);
    if (AOptions.Contains(coEvaluate))
        Binding->Evaluate();
    TBindingTable::Instance().Add(Binding);
    return Binding.get();
}

void TBindings::RemoveBinding(TBindingExpression* ABinding) {
    if (const TBindingPtr Binding = TBindingTable::Instance().Take(ABinding))
        Binding->Deactivate();
}

void TBindings::Notify(TObject* AObject, const TStringArg& APropertyName) {
    for (const TBindingPtr& Binding : TBindingTable::Instance().ReadersOf(AObject))
        if (Binding->IsActive() && Binding->FInput.DependsOn(AObject, APropertyName))
            Binding->Evaluate();
}

} // namespace qz
