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

// Classes by name in lower case.
class TClassTable {
public:
    // Gives the class that has the name from now on: AClass, or one that was there before.
    TClass Add(TClass AClass) {
        UnicodeString Key = LowerCase(AClass->Name());
        const std::unique_lock Hold(FMutex);
        return FItems.try_emplace(std::move(Key), AClass).first->second;
    }
    void Remove(TClass AClass) {
        const UnicodeString Key = LowerCase(AClass->Name());
        const std::unique_lock Hold(FMutex);
        const auto Found = FItems.find(Key);
        if (Found != FItems.end() && Found->second == AClass)
            FItems.erase(Found);
    }
    TClass Find(std::u16string_view AName) const {
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
    std::unordered_map<UnicodeString, TClass> FItems;
};

// Created at first use and never destroyed: registrations may run before main, look-ups after it.
TClassTable& Classes() {
    static auto* const Table = new TClassTable;
    return *Table;
}

[[maybe_unused]] const bool GIsWatched = [] {
    platform::AroundFork(
        platform::TForkRank::Classes, [] { Classes().BeginFork(); }, [] { Classes().EndFork(); },
        [] { Classes().BeginChild(); });
    return true;
}();

} // namespace

void RegisterClass(TClass AClass) {
    if (Classes().Add(AClass) != AClass)
        throw EInvalidOperation(SDuplicateClass, {AClass->Name()});
}

void UnRegisterClass(TClass AClass) {
    Classes().Remove(AClass);
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

} // namespace qz
