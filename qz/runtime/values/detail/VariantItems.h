// The elements of a variant array, and the way into a variant for the functions beside it. Internal.
#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <span>
#include <utility>

#include <qz/runtime/values/Variant.h>

namespace qz::detail {

struct TVariantBound {
    std::int32_t Low;
    std::int32_t Count;
};

// One block of memory: this header, the bounds, the elements. Each element takes the bytes of its type alone,
// in the form of OLE Automation where that knows it; texts and interfaces are counted pointers. The first
// index counts fastest.
struct alignas(16) TVariantItems {
    std::atomic<std::int32_t> RefCount{1};
    TVarType Elements = varVariant;
    std::uint16_t DimCount = 0;
    std::size_t Count = 0;
    TVariantItems* NextToEnd = nullptr; // used while they end

    std::span<TVariantBound> Bounds() noexcept {
        return {reinterpret_cast<TVariantBound*>(this + 1), DimCount};
    }
    std::span<const TVariantBound> Bounds() const noexcept {
        return {reinterpret_cast<const TVariantBound*>(this + 1), DimCount};
    }
    std::byte* Data() noexcept {
        // The bounds are padded to 16 bytes.
        return reinterpret_cast<std::byte*>(this + 1) + (DimCount + 1U) / 2 * sizeof(TVariantBound) * 2;
    }
    const std::byte* Data() const noexcept { return const_cast<TVariantItems*>(this)->Data(); }
};

inline TVariantItems* AddRef(TVariantItems* AItems) noexcept {
    AItems->RefCount.fetch_add(1, std::memory_order_relaxed);
    return AItems;
}

// Destroys the elements with the last reference, however deeply arrays are nested.
void Release(TVariantItems* AItems) noexcept;

struct TReleaseItems {
    void operator()(TVariantItems* AItems) const noexcept { Release(AItems); }
};
using TItemsPtr = std::unique_ptr<TVariantItems, TReleaseItems>;

// Bytes of an element; 0 for a type that no array has.
std::size_t ElementSize(TVarType AElements) noexcept;

inline constexpr std::size_t cMaxArrayBytes = 0x7FFFFFFF;
inline constexpr std::size_t cMaxArrayDimensions = 64;

// Empty elements. Raises EVariantArrayCreateError for a type that no array has, for more elements or
// dimensions than the constants say, and for no dimension.
TItemsPtr NewItems(TVarType AElements, std::span<const TVariantBound> ABounds);
// A copy with other bounds; elements are kept by their place in memory.
TItemsPtr CopyItems(const TVariantItems& AItems, std::span<const TVariantBound> ABounds);

// The value of an element's bytes, whose count it takes over. Of any type but varVariant.
Variant TakeItem(TVarType AElements, const std::byte* APlace) noexcept;
// One element; the caller has seen that it is there.
Variant LoadItem(const TVariantItems& AItems, std::size_t AIndex) noexcept;
// AValue has the type of the elements.
void StoreItem(TVariantItems& AItems, std::size_t AIndex, Variant AValue) noexcept;

// The caller has checked the type of the variant.
struct TVariantAccess {
    static Variant Make(TItemsPtr AItems) noexcept {
        Variant Result;
        Result.FType = static_cast<TVarType>(varArray | AItems->Elements);
        Result.FData.Items = AItems.release();
        return Result;
    }
    static const UnicodeString& Wide(const Variant& AText) noexcept { return AText.FData.Wide; }
    static const TByteText& Narrow(const Variant& AText) noexcept { return AText.FData.Narrow; }
    // The elements of an array, which is empty from then on.
    static TVariantItems* Take(Variant& AArray) noexcept {
        AArray.FType = varEmpty;
        return std::exchange(AArray.FData.Items, nullptr);
    }
    static TVariantItems& Items(const Variant& AArray) noexcept { return *AArray.FData.Items; }
    // The elements for writing, which no other variant shares.
    static TVariantItems& OwnItems(Variant& AArray) {
        const TVariantItems& Shared = Items(AArray);
        if (Shared.RefCount.load(std::memory_order_acquire) != 1)
            AArray = Make(CopyItems(Shared, Shared.Bounds()));
        return Items(AArray);
    }
    // Integers of all kinds, booleans, units of a currency, error codes.
    static std::int64_t Integer(const Variant& AValue) noexcept { return AValue.FData.Integer; }
    static double Real(const Variant& AValue) noexcept {
        return AValue.FType == varSingle ? static_cast<double>(AValue.FData.Single) : AValue.FData.Real;
    }
    static TSysDecimal Decimal(const Variant& AValue) noexcept {
        TSysDecimal Result(static_cast<std::uint64_t>(AValue.FData.Integer), AValue.FSign != 0,
                           AValue.FScale);
        Result.High = AValue.FHigh;
        return Result;
    }
    static IInterface* Interface(const Variant& AValue) noexcept { return AValue.FData.Interface; }
    static TObject* Object(const Variant& AValue) noexcept { return AValue.FData.Object; }

    // Eight bytes as they lie in the variant.
    static std::uint64_t Bits(const Variant& AValue) noexcept {
        std::uint64_t Result = 0;
        std::memcpy(&Result, static_cast<const void*>(&AValue.FData), sizeof(Result));
        return Result;
    }
    // A variant of any type but varDecimal from its bits, whose count it takes over.
    static Variant FromBits(TVarType AType, std::uint64_t ABits) noexcept {
        Variant Result;
        Result.FType = AType;
        std::memcpy(static_cast<void*>(&Result.FData), &ABits, sizeof(ABits));
        return Result;
    }
    // The variant is empty from then on, and its count belongs to the caller.
    static std::uint64_t TakeBits(Variant& AValue) noexcept {
        AValue.FType = varEmpty;
        return Bits(AValue);
    }
    static Variant WithCode(std::int64_t AInteger, TVarType AType) noexcept {
        return Variant(AInteger, AType);
    }
    static constexpr bool IsManaged(TVarType AType) noexcept { return Variant::IsManaged(AType); }
};

} // namespace qz::detail
