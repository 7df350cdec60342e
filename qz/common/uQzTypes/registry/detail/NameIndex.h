// TNameIndex: the entries of the registry by one of their names.
//
//     TNewNames Fresh = TNameIndex::Make(Names, Entry);   // may raise
//     Index.Reserve(Fresh.size());                        // may raise; under the writer's lock from here on
//     Index.Add(std::move(Fresh));
//     Index.Find(u"int", TKindRanks({tkInteger, tkInt64}));
//
// For each name and list it keeps the first entry in the order of the list, so that a search gives what a
// walk of the lists would give.
#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <span>
#include <vector>

#include <qz/common/uQzTypes/registry/QzTypeInfo.h>
#include <qz/runtime/base/SharedTable.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz::detail {

inline constexpr std::size_t cTypeKindCount = static_cast<std::size_t>(tkProcedure) + 1;

// An entry of the registry, with its place and what it says of the type.
struct TTypeEntry : TQzTypeRec {
    TTypeEntry() noexcept {
        Info = &FInfo;
        FInfo.FEntry = this;
        FInfo.FTypeRec = this;
    }
    // As Info, without a load.
    TQzTypeInfo* Own() noexcept { return &FInfo; }

    TTypeKind List = tkUnknown;
    std::uint64_t Order = 0; // ascends along each list

private:
    TQzTypeInfo FInfo;
};

// The turn of each list in a search.
class TKindRanks {
public:
    static constexpr std::uint8_t cNever = 0xFF;

    // Unknown kinds are ignored; of two equal ones the first counts.
    constexpr explicit TKindRanks(std::span<const TTypeKind> AKinds) noexcept {
        FRanks.fill(cNever);
        std::uint8_t Rank = 0;
        for (const TTypeKind Kind : AKinds)
            if (const auto Index = static_cast<std::size_t>(Kind);
                Index < cTypeKindCount && FRanks[Index] == cNever)
                FRanks[Index] = Rank++;
    }
    constexpr std::uint8_t operator[](TTypeKind AKind) const noexcept {
        return FRanks[static_cast<std::size_t>(AKind)];
    }

private:
    std::array<std::uint8_t, cTypeKindCount> FRanks{};
};

// One name in one list.
struct TTypeName {
    TTypeName(const UnicodeString& AName, TTypeEntry& AEntry) noexcept
        : Name(AName),
          List(AEntry.List),
          First(&AEntry) {}
    UnicodeString Name;
    TTypeKind List;
    std::atomic<TTypeEntry*> First;        // the first entry of the list that has the name
    std::atomic<TTypeName*> Next{nullptr}; // the same name in another list
};
using TNewNames = std::vector<std::unique_ptr<TTypeName>>;

class TNameIndex {
public:
    explicit TNameIndex(TNameCase ACase) noexcept : FCase(ACase) {}

    // The first entry in the first list. Any thread.
    TTypeEntry* Find(std::u16string_view AName, const TKindRanks& ARanks) const noexcept {
        return FirstOf(FindName(AName), ARanks);
    }
    // The same in an index that ignores case.
    TTypeEntry* Find(const THashedName& AName, const TKindRanks& ARanks) const noexcept {
        return FirstOf(FindHashed<TNameCase::Ignored>(AName.Hash, AName.Name), ARanks);
    }

    // What Add will need.
    static TNewNames Make(std::span<const UnicodeString> ANames, TTypeEntry& AEntry);
    void Reserve(std::size_t ACount) { FTable.Reserve(ACount); }
    // Of an entry that has its place.
    void Add(TNewNames ANames) noexcept;

private:
    static TTypeEntry* FirstOf(const TTypeName* AName, const TKindRanks& ARanks) noexcept {
        TTypeEntry* Result = nullptr;
        std::uint8_t Best = TKindRanks::cNever;
        for (; AName != nullptr; AName = AName->Next.load(std::memory_order_acquire))
            if (ARanks[AName->List] < Best) {
                Best = ARanks[AName->List];
                Result = AName->First.load(std::memory_order_acquire);
            }
        return Result;
    }
    TTypeName* FindName(std::u16string_view AName) const noexcept {
        return FCase == TNameCase::Ignored
            ? FindHashed<TNameCase::Ignored>(HashNameOf<TNameCase::Ignored>(AName), AName)
            : FindHashed<TNameCase::Counts>(HashNameOf<TNameCase::Counts>(AName), AName);
    }
    template <TNameCase Case>
    TTypeName* FindHashed(std::uint64_t AHash, std::u16string_view AName) const noexcept {
        return FTable.Find(AHash,
                           [AName](const TTypeName& AEach) { return SameNameOf<Case>(AEach.Name, AName); });
    }

    TNameCase FCase;
    TSharedTable<TTypeName> FTable; // of the names, which are never destroyed
};

} // namespace qz::detail
