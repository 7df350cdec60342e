// The elements of a variant array, and the way into a variant for the functions beside it. Internal.
#pragma once

#include <atomic>
#include <memory>
#include <utility>
#include <vector>

#include "runtime/values/Variant.h"

namespace qz::detail {

struct TVariantItems {
    std::atomic<std::int32_t> RefCount{1};
    TVariantItems* NextToEnd = nullptr; // used while they end
    int LowBound = 0;
    std::vector<Variant> Items;
};

inline TVariantItems* AddRef(TVariantItems* AItems) noexcept {
    AItems->RefCount.fetch_add(1, std::memory_order_relaxed);
    return AItems;
}

// Ends the elements with the last reference, however deep arrays lie in arrays.
void Release(TVariantItems* AItems) noexcept;

struct TVariantAccess {
    static Variant Make(std::unique_ptr<TVariantItems> AItems) noexcept {
        Variant Result;
        Result.FType = varArray | varVariant;
        Result.FData.Items = AItems.release();
        return Result;
    }
    // The caller has seen that it is an 8-bit text.
    static const TByteText& Narrow(const Variant& AText) noexcept { return AText.FData.Narrow; }
    // The elements of an array, which is empty from then on.
    static TVariantItems* Take(Variant& AArray) noexcept {
        AArray.FType = varEmpty;
        return std::exchange(AArray.FData.Items, nullptr);
    }
    // The caller has seen that it is an array.
    static TVariantItems& Items(const Variant& AArray) noexcept { return *AArray.FData.Items; }
    // The elements for writing, which no other variant shares.
    static TVariantItems& OwnItems(Variant& AArray) {
        TVariantItems& Shared = Items(AArray);
        if (Shared.RefCount.load(std::memory_order_acquire) == 1)
            return Shared;
        auto Own = std::make_unique<TVariantItems>();
        Own->LowBound = Shared.LowBound;
        Own->Items = Shared.Items;
        AArray = Make(std::move(Own));
        return Items(AArray);
    }
    static bool IsReal(const Variant& AValue) noexcept {
        return AValue.FType == varSingle || AValue.FType == varDouble;
    }
    static bool IsText(const Variant& AValue) noexcept {
        return AValue.IsWide() || AValue.FType == varString;
    }
    static double Real(const Variant& AValue) noexcept { return AValue.FData.Real; }
    static std::int64_t Integer(const Variant& AValue) noexcept { return AValue.FData.Integer; }
};

} // namespace qz::detail
