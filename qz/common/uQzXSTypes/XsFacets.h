// TXsFacets: the restrictions of a value record, shared by all of its copies.
//
//     #include <qz/common/uQzXSTypes.h>
//     TXsString Code;
//     Code.Restrictions = {.MaxLength = 3, .Pattern = u"^[A-Z]+$"};
//     Code.Restrictions.Change([](auto& R) { R.MinLength = 1; });
//     TXsString Other;
//     Other.Restrictions = Code.Restrictions;          // one block for both
//
// One pointer, null for no restrictions. The block it points to is counted and never changes, so that any
// number of threads may share it; one TXsFacets belongs to one thread at a time. The pattern is compiled when
// the block is made; the error of one that does not compile is raised by the first check that needs it.
#pragma once

#include <concepts>
#include <utility>

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

template <class TRestrictions> class TXsFacets {
public:
    using TChecked = typename TRestrictions::TChecked;

    TXsFacets() noexcept = default;
    template <std::same_as<TRestrictions> R = TRestrictions>
    TXsFacets(const R& ARestrictions) : FBlock(Make(ARestrictions)) {}
    TXsFacets(const TXsFacets& AOther) noexcept : FBlock(AOther.FBlock) {
        if (FBlock != nullptr)
            AddRef(FBlock);
    }
    TXsFacets(TXsFacets&& AOther) noexcept : FBlock(std::exchange(AOther.FBlock, nullptr)) {}
    TXsFacets& operator=(TXsFacets AOther) noexcept {
        std::swap(FBlock, AOther.FBlock);
        return *this;
    }
    template <std::same_as<TRestrictions> R = TRestrictions> TXsFacets& operator=(const R& ARestrictions) {
        // NOLINTNEXTLINE(misc-unconventional-assign-operator): it is *this
        return *this = TXsFacets(ARestrictions);
    }
    ~TXsFacets() {
        if (FBlock != nullptr)
            Release(FBlock);
    }

    // Whether there are none.
    bool IsNull() const noexcept { return FBlock == nullptr; }
    bool SharesWith(const TXsFacets& AOther) const noexcept { return FBlock == AOther.FBlock; }
    // The restrictions; all null where there are none.
    const TRestrictions& Get() const noexcept;
    const TRestrictions& operator*() const noexcept { return Get(); }
    const TRestrictions* operator->() const noexcept { return &Get(); }

    void Clear() noexcept { *this = TXsFacets(); }
    // Calls AChange with a copy and takes the copy.
    template <std::invocable<TRestrictions&> TChange> void Change(TChange&& AChange) {
        TRestrictions Copy = Get();
        std::forward<TChange>(AChange)(Copy);
        *this = TXsFacets(Copy);
    }

    // As TRestrictions::CheckLimits.
    void Check(const TChecked& AValue) const {
        if (FBlock != nullptr)
            CheckBlock(AValue);
    }

private:
    struct TBlock;
    static TBlock* Make(const TRestrictions& ARestrictions);
    static void AddRef(TBlock* ABlock) noexcept;
    static void Release(TBlock* ABlock) noexcept;
    void CheckBlock(const TChecked& AValue) const;

    TBlock* FBlock = nullptr;
};

} // namespace qz
