// TTypeStore: the lists of the registry and the tables over them.
//
//     TTypeStore& Store = TTypeStore::Instance();
//     TQzTypeInfo* Info = Store.InfoOf(TypeInfo<int>());
//     Store.FindName(TTypeStore::SchemaNames, u"int", Ranks);
//
// Readers take no lock. Names and elements of a new type are worked out without the lock, under which only
// the store's own code runs.
#pragma once

#include <mutex>
#include <optional>

#include <qz/common/uQzTypes/registry/detail/NameIndex.h>
#include <qz/common/uQzTypes/registry/detail/Population.h>

namespace qz::detail {

// A type that is to join the registry.
struct TTypeRequest {
    PTypeInfo Handle = nullptr;
    UnicodeString ShortName;
    UnicodeString FullName;
    TQzTypeKind Kind = rtkUnknown;
    TVarType VarType = varEmpty;
    TQzSchemaDataType SchemaType = xsdComplexType;
    std::span<const UnicodeString> Names{};
    TTypeKind VirtualKind = tkUnknown;
    PQzTypeRec Parent = nullptr;
    // What a virtual type gets in the end, whatever follows from the above.
    std::optional<TQzSchemaDataType> FinalSchemaType{};
    std::u16string_view FinalName{};
};

// The type and its names as reflection has them.
TTypeRequest RequestOf(PTypeInfo AType);

// Whether a list of schema names takes the two for one, as a string list does by default.
bool SameInNameList(const UnicodeString& ALeft, const UnicodeString& ARight);

class TTypeStore {
public:
    // The rows that units above add, by place.
    using TParts = std::array<std::span<const TPopulationRow>, 2>;
    ~TTypeStore();

    enum TIndex { FullNames, ShortNames, SchemaNames };

    // Created and populated at first use and never destroyed.
    static TTypeStore& Instance() {
        TTypeStore* const Store = Existing();
        return Store != nullptr ? *Store : Create();
    }

    // Null before the first use.
    static TTypeStore* Existing() noexcept { return GInstance.load(std::memory_order_acquire); }

    // The entry for a handle, which joined with it or with another of the same full name; null if there is
    // none.
    TTypeEntry* FindHandle(PTypeInfo AType) const noexcept {
        return FHandles.Find(reinterpret_cast<std::uintptr_t>(AType));
    }
    static TTypeEntry& EntryOf(const TQzTypeInfo& AInfo) noexcept { return *AInfo.FEntry; }
    TQzTypeInfo* FindName(TIndex AIndex, std::u16string_view AName, const TKindRanks& ARanks) const noexcept {
        TTypeEntry* const Found = FNames[AIndex].Find(AName, ARanks);
        return Found == nullptr ? nullptr : Found->Own();
    }

    TQzTypeInfo* FindSchemaName(const THashedName& AName, const TKindRanks& ARanks) const noexcept {
        TTypeEntry* const Found = FNames[SchemaNames].Find(AName, ARanks);
        return Found == nullptr ? nullptr : Found->Own();
    }

    // The entry of a type, made if it is new. Null while this thread is making it, and for null.
    TQzTypeInfo* InfoOf(PTypeInfo AType);
    // InfoOf for a type with a kind, a code and names of the caller's choice; AKind and AVarType may be zero.
    TTypeEntry& AddByKinds(TTypeRequest ARequest);
    // The one place that makes entries.
    TTypeEntry& Add(const TTypeRequest& ARequest);
    // The list that values of a schema type go to.
    static TTypeKind VirtualKindOf(TQzSchemaDataType AType) noexcept;
    TQzTypeInfo* VirtualType(const TQzTypeInfo& AInfo, TQzSchemaDataType ASchemaType);

    // Makes the names the first ones of the type. Old names that are the same, by that comparison, go.
    void PutNamesFirst(TQzTypeInfo& AInfo, std::span<const UnicodeString> ANames, TNameCase ACase);

    UnicodeString CalculateSchemaName(PTypeInfo AType, const UnicodeString& AName);
    // See TQzTypes::GetTypeInfo.
    TQzTypeInfo* FindType(std::u16string_view AName, TQzTypeNameType ANameType, TQzMainTypeKind AMain);

private:
    friend struct TTypeStoreFork;
    friend class TPopulationPart;
    TTypeStore() = default;
    static TTypeStore& Create();
    static std::mutex& CreationLock();
    void Populate(const TParts& AParts);

    PTypeInfo ElementOf(const TTypeRequest& ARequest, TQzTypeKind AKind) const;
    std::vector<UnicodeString> NamesOf(const TTypeRequest& ARequest, TQzTypeKind AKind, PTypeInfo AElement,
                                       TQzSchemaDataType& ASchemaType);
    std::unique_ptr<TTypeEntry> Make(const TTypeRequest& ARequest);
    TTypeEntry* FindSame(const TTypeEntry& AEntry) const noexcept;
    TTypeEntry& Insert(std::unique_ptr<TTypeEntry> AEntry);
    void AddParent(TTypeEntry& AEntry, const TTypeRequest& ARequest);

    static std::atomic<TTypeStore*> GInstance;

    std::mutex FTypesLock; // of the writers
    std::array<TTypeEntry*, cTypeKindCount> FTypesFirst{};
    std::array<TTypeEntry*, cTypeKindCount> FTypesLast{};
    std::uint64_t FCount = 0;
    TSharedTable<TTypeEntry> FHandles; // entries in the list of their own kind
    TNameIndex FNames[3]{TNameIndex(TNameCase::Counts), TNameIndex(TNameCase::Counts),
                         TNameIndex(TNameCase::Ignored)};
};

} // namespace qz::detail
