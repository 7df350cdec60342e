#include <qz/runtime/objects/ClassRegistry.h>

#include <memory>
#include <mutex>
#include <shared_mutex>
#include <unordered_map>

#include <qz/platform/Fork.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

// Descriptions by name in lower case.
template <class TItem> class TNameTable {
public:
    // Gives the item that has the name from now on: AItem, or with AKeep one that was there before.
    TItem Add(std::u16string_view AName, TItem AItem, bool AKeep) {
        UnicodeString Key = LowerCase(AName);
        const std::unique_lock Hold(FMutex);
        const auto [Place, IsNew] = FItems.try_emplace(std::move(Key), AItem);
        if (!IsNew && !AKeep)
            Place->second = AItem;
        return Place->second;
    }
    void Remove(std::u16string_view AName, TItem AItem) {
        const UnicodeString Key = LowerCase(AName);
        const std::unique_lock Hold(FMutex);
        const auto Found = FItems.find(Key);
        if (Found != FItems.end() && Found->second == AItem)
            FItems.erase(Found);
    }
    TItem Find(std::u16string_view AName) const {
        const UnicodeString Key = LowerCase(AName);
        const std::shared_lock Hold(FMutex);
        const auto Found = FItems.find(Key);
        return Found == FItems.end() ? nullptr : Found->second;
    }

    void BeginFork() { FMutex.lock(); }
    void EndFork() { FMutex.unlock(); }
    // The system's lock knows its owner by a number that the child does not have.
    void BeginChild() { std::construct_at(&FMutex); }

private:
    mutable std::shared_mutex FMutex;
    std::unordered_map<UnicodeString, TItem> FItems;
};

// Created at first use and never destroyed: registrations may run before main, look-ups after it.
TNameTable<TClass>& Classes() {
    static auto* const Table = new TNameTable<TClass>;
    return *Table;
}

TNameTable<PTypeInfo>& Types() {
    static auto* const Table = new TNameTable<PTypeInfo>;
    return *Table;
}

[[maybe_unused]] const bool GIsWatched = [] {
    platform::AroundFork(
        platform::TForkRank::Classes,
        [] {
            Classes().BeginFork();
            Types().BeginFork();
        },
        [] {
            Types().EndFork();
            Classes().EndFork();
        },
        [] {
            Types().BeginChild();
            Classes().BeginChild();
        });
    return true;
}();

} // namespace

void RegisterClass(TClass AClass) {
    if (Classes().Add(AClass->Name(), AClass, true) != AClass)
        throw EInvalidOperation(SDuplicateClass, {AClass->Name()});
}

void UnRegisterClass(TClass AClass) {
    Classes().Remove(AClass->Name(), AClass);
}

TClass GetClass(std::u16string_view AName) {
    return Classes().Find(AName);
}

TClass FindClass(std::u16string_view AName) {
    const TClass Found = GetClass(AName);
    if (Found == nullptr)
        throw EClassNotFound(SClassNotFound, {AName});
    return Found;
}

void RegisterType(PTypeInfo AType) {
    if (AType->IsPublic)
        Types().Add(AType->QualifiedName(), AType, false);
}

PTypeInfo FindType(std::u16string_view AQualifiedName) {
    return Types().Find(AQualifiedName);
}

} // namespace qz
