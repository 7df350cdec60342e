// The bodies of TXsFacets, for the sources that instantiate it. Internal.
#pragma once

#include <atomic>
#include <optional>

#include <qz/common/uQzXSTypes/XsFacets.h>
#include <qz/runtime/text/RegEx.h>

namespace qz {

template <class TRestrictions> struct TXsFacets<TRestrictions>::TBlock {
    std::atomic<std::int32_t> RefCount{1};
    TRestrictions Restrictions;
    std::optional<TRegEx> Pattern;
};

template <class TRestrictions>
auto TXsFacets<TRestrictions>::Make(const TRestrictions& ARestrictions) -> TBlock* {
    auto Block = std::make_unique<TBlock>();
    Block->Restrictions = ARestrictions;
    if (!ARestrictions.Pattern.IsEmpty()) {
        try {
            Block->Pattern.emplace(ARestrictions.Pattern);
        } catch (const ERegularExpressionError&) {
            Block->Pattern.reset(); // each check compiles it again and raises the error
        }
    }
    return Block.release();
}

template <class TRestrictions> void TXsFacets<TRestrictions>::AddRef(TBlock* ABlock) noexcept {
    ABlock->RefCount.fetch_add(1, std::memory_order_relaxed);
}

template <class TRestrictions> void TXsFacets<TRestrictions>::Release(TBlock* ABlock) noexcept {
    if (ABlock->RefCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
        const std::unique_ptr<TBlock> Owner(ABlock);
}

template <class TRestrictions> const TRestrictions& TXsFacets<TRestrictions>::Get() const noexcept {
    static const TRestrictions cNone;
    return FBlock == nullptr ? cNone : FBlock->Restrictions;
}

template <class TRestrictions> void TXsFacets<TRestrictions>::CheckBlock(const TChecked& AValue) const {
    FBlock->Restrictions.CheckLimits(AValue, FBlock->Pattern ? &*FBlock->Pattern : nullptr);
}

} // namespace qz
