#include <qz/runtime/objects/TypeNames.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

#include <qz/platform/Fork.h>
#include <qz/platform/Module.h>
#include <qz/runtime/base/SharedTable.h>
#include <qz/runtime/base/StringUtils.h>

namespace qz {
namespace detail {

class TTypeNames {
public:
    struct TEntry {
        explicit TEntry(PTypeInfo AType) : Name(AType->QualifiedName()), Type(AType) {}
        UnicodeString Name;
        std::atomic<PTypeInfo> Type;
    };

    // A name split after its last point, and after the letter that follows. In this form a schema
    // name is looked up without a copy.
    struct TParts {
        TParts(const THashedName& AUnit, char16_t AFirst, const THashedName& ARest) noexcept
            : Unit(AUnit),
              First(LowCase(AFirst)),
              Rest(ARest) {}
        // AName is not empty.
        explicit TParts(std::u16string_view AName) noexcept : TParts(AName, AName.rfind(u'.')) {}
        TParts(std::u16string_view AName, std::size_t APoint) noexcept
            : TParts(THashedName(APoint == AName.npos ? std::u16string_view() : AName.substr(0, APoint)),
                     // no type has a name that starts with a point
                     APoint != 0 && APoint + 1 < AName.size() ? AName[APoint + 1] : u'\0',
                     THashedName(AName.substr(std::min(APoint + 2, AName.size())))) {}

        std::uint64_t Key() const noexcept { return MixHash(MixHash(First, Unit.Hash), Rest.Hash); }
        bool operator()(const TEntry& AEntry) const noexcept {
            const std::u16string_view Name = AEntry.Name;
            const std::size_t Start = Unit.Name.empty() ? 0 : Unit.Name.size() + 1;
            return Name.size() == Start + 1 + Rest.Name.size() && LowCase(Name[Start]) == First &&
                (Start == 0 || Name[Start - 1] == u'.') &&
                SameNameOf<TNameCase::Ignored>(Name.substr(Start + 1), Rest.Name) &&
                SameNameOf<TNameCase::Ignored>(Name.substr(0, Unit.Name.size()), Unit.Name);
        }

        THashedName Unit;
        char16_t First;
        THashedName Rest;
    };

    // Created at first use and never destroyed: registrations may run before main, look-ups after it.
    static TTypeNames& Instance() {
        static auto* const Names = new TTypeNames;
        return *Names;
    }

    void Link(TTypeModule& AModule) {
        const std::scoped_lock Hold(Lock);
        TTypeModule** Place = &FPending;
        while (*Place != nullptr)
            Place = &(*Place)->FNext;
        *Place = &AModule;
        FHasPending.store(true, std::memory_order_release);
    }
    // A module that a search has taken over stays in memory, and so do its types.
    void Unlink(const TTypeModule& AModule) noexcept {
        const std::scoped_lock Hold(Lock);
        for (TTypeModule** Place = &FPending; *Place != nullptr; Place = &(*Place)->FNext)
            if (*Place == &AModule) {
                *Place = AModule.FNext;
                return;
            }
    }
    void Add(PTypeInfo AType) {
        if (FHasPending.load(std::memory_order_acquire))
            TakePending();
        const std::scoped_lock Hold(Lock);
        AddLocked(AType);
    }
    PTypeInfo Find(const TParts& AParts) {
        if (FHasPending.load(std::memory_order_acquire)) [[unlikely]]
            TakePending();
        const TEntry* const Found = FTable.Find(AParts.Key(), AParts);
        return Found == nullptr ? nullptr : Found->Type.load(std::memory_order_acquire);
    }

    std::mutex Lock;

private:
    void AddLocked(PTypeInfo AType) {
        if (!AType->IsPublic || AType->Name.empty())
            return;
        auto Fresh = std::make_unique<TEntry>(AType);
        const TParts Parts(Fresh->Name.View());
        if (TEntry* const Found = FTable.Find(Parts.Key(), Parts)) {
            Found->Type.store(AType, std::memory_order_release);
            return;
        }
        FTable.Reserve(1);
        FEntries.push_back(std::move(Fresh));
        FTable.Add(Parts.Key(), *FEntries.back());
    }

    // Libraries are pinned without the lock, which their start code takes too. One that is unloaded meanwhile
    // takes its modules out of the list.
    void TakePending() {
        std::vector<const TTypeModule*> Pinned;
        {
            const std::scoped_lock Hold(Lock);
            for (const TTypeModule* Each = FPending; Each != nullptr; Each = Each->FNext)
                Pinned.push_back(Each);
        }
        std::erase_if(Pinned, [](const TTypeModule* AModule) { return !platform::PinModule(AModule); });
        const std::scoped_lock Hold(Lock);
        for (TTypeModule** Place = &FPending; *Place != nullptr;) {
            const TTypeModule& Module = **Place;
            if (std::find(Pinned.begin(), Pinned.end(), &Module) == Pinned.end()) {
                Place = &(*Place)->FNext;
                continue;
            }
            for (const PTypeInfo Type : Module.FTypes)
                AddLocked(Type);
            *Place = Module.FNext;
        }
        FHasPending.store(FPending != nullptr, std::memory_order_release);
    }

    TSharedTable<TEntry> FTable;
    std::vector<std::unique_ptr<TEntry>> FEntries;
    TTypeModule* FPending = nullptr; // in the order of linking
    std::atomic<bool> FHasPending{false};
};

TTypeModule::TTypeModule(std::span<const PTypeInfo> ATypes) : FTypes(ATypes) {
    TTypeNames::Instance().Link(*this);
}

TTypeModule::~TTypeModule() {
    TTypeNames::Instance().Unlink(*this);
}

} // namespace detail

namespace {

[[maybe_unused]] const bool GIsWatched = platform::HoldAroundFork(
    platform::TForkRank::TypeNames, [] { return &detail::TTypeNames::Instance().Lock; });

} // namespace

void RegisterType(PTypeInfo AType) {
    platform::PinModule(AType);
    detail::TTypeNames::Instance().Add(AType);
}

PTypeInfo FindType(std::u16string_view AQualifiedName) {
    if (AQualifiedName.empty())
        return nullptr;
    return detail::TTypeNames::Instance().Find(detail::TTypeNames::TParts(AQualifiedName));
}

PTypeInfo detail::FindType(const THashedName& AUnit, char16_t AFirst, const THashedName& ARest) {
    return TTypeNames::Instance().Find(TTypeNames::TParts(AUnit, AFirst, ARest));
}

} // namespace qz
