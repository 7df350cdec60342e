// TDictionary<K, V>: values found by keys.
//
//     TDictionary<UnicodeString, int> Ages;
//     Ages.Add(u"Zoe", 31);
//     int Age;
//     if (Ages.TryGetValue(u"Zoe", Age)) ...
//     for (const auto& [Name, Each] : Ages) ...
//
// A value as std::unordered_map is, not a TObject; keys need std::hash and ==, or functions of their own. The
// order is none in particular. It belongs to one thread at a time.
#pragma once

#include <functional>
#include <unordered_map>
#include <utility>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/lists/ListTypes.h>

namespace qz {

template <class K, class V, class THash = std::hash<K>, class TEqual = std::equal_to<K>> class TDictionary {
public:
    TDictionary() = default;
    explicit TDictionary(int ACapacity) { FItems.reserve(static_cast<std::size_t>(std::max(ACapacity, 0))); }
    TDictionary(std::initializer_list<std::pair<const K, V>> AItems) : FItems(AItems) {}

    int Count() const noexcept { return static_cast<int>(FItems.size()); }
    bool IsEmpty() const noexcept { return FItems.empty(); }
    bool ContainsKey(const K& AKey) const { return FItems.contains(AKey); }
    bool ContainsValue(const V& AValue) const {
        return std::any_of(begin(), end(), [&AValue](const auto& AEach) { return AEach.second == AValue; });
    }
    // The value of a key that is there; a missing one raises EListError, "Item not found".
    const V& operator[](const K& AKey) const { return At(*this, AKey); }
    V& operator[](const K& AKey) { return At(*this, AKey); }
    // False, and an empty value, when the key is missing.
    bool TryGetValue(const K& AKey, V& AValue) const {
        const auto Found = FItems.find(AKey);
        AValue = Found == FItems.end() ? V() : Found->second;
        return Found != FItems.end();
    }
    TDynArray<K> Keys() const {
        return Collect<K>([](const auto& AEach) -> const K& { return AEach.first; });
    }
    TDynArray<V> Values() const {
        return Collect<V>([](const auto& AEach) -> const V& { return AEach.second; });
    }
    auto begin() const noexcept { return FItems.begin(); }
    auto end() const noexcept { return FItems.end(); }
    auto begin() noexcept { return FItems.begin(); }
    auto end() noexcept { return FItems.end(); }
    friend bool operator==(const TDictionary& ALeft, const TDictionary& ARight) {
        return ALeft.FItems == ARight.FItems;
    }

    // A key that is there already raises EListError, "Duplicates not allowed".
    void Add(const K& AKey, V AValue) {
        if (!TryAdd(AKey, std::move(AValue)))
            detail::RaiseList(SDuplicatesNotAllowed);
    }
    // False, and no change, when the key is there.
    bool TryAdd(const K& AKey, V AValue) { return FItems.try_emplace(AKey, std::move(AValue)).second; }
    void AddOrSetValue(const K& AKey, V AValue) { FItems.insert_or_assign(AKey, std::move(AValue)); }
    // Ignores a missing key.
    void Remove(const K& AKey) { FItems.erase(AKey); }
    // Takes the pair out; a missing key gives the key and an empty value.
    std::pair<K, V> ExtractPair(const K& AKey) {
        auto Node = FItems.extract(AKey);
        if (Node.empty())
            return {AKey, V()};
        return {std::move(Node.key()), std::move(Node.mapped())};
    }
    void Clear() noexcept { FItems.clear(); }

private:
    template <class TSelf> static auto& At(TSelf& ASelf, const K& AKey) {
        const auto Found = ASelf.FItems.find(AKey);
        if (Found == ASelf.FItems.end())
            detail::RaiseList(SItemNotFound);
        return Found->second;
    }
    template <class TItem, class TPart> TDynArray<TItem> Collect(TPart APart) const {
        TDynArray<TItem> Result(FItems.size());
        std::transform(begin(), end(), Result.begin(), APart);
        return Result;
    }

    std::unordered_map<K, V, THash, TEqual> FItems;
};

} // namespace qz
