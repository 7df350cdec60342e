#include <qz/runtime/values/detail/VariantItems.h>

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <new>

#include <qz/runtime/values/VariantArray.h>

namespace qz::detail {
namespace {

static_assert(std::endian::native == std::endian::little,
              "elements are the lower bytes of what a variant holds");

bool IsSigned(TVarType AElements) noexcept {
    return AElements == varShortInt || AElements == varSmallint || AElements == varInteger ||
        AElements == varError || AElements == varBoolean;
}

// Whether an element needs destruction.
bool IsManagedItem(TVarType AElements) noexcept {
    return AElements == varVariant || TVariantAccess::IsManaged(AElements);
}

Variant& VariantAt(std::byte* APlace) noexcept {
    return *std::launder(reinterpret_cast<Variant*>(APlace));
}

// The lower ASize bytes of a number; ASize is 1, 2, 4 or 8.
std::uint64_t LoadBytes(const std::byte* APlace, std::size_t ASize) noexcept {
    const auto Load = [APlace](auto AValue) {
        std::memcpy(&AValue, APlace, sizeof(AValue));
        return std::uint64_t{AValue};
    };
    switch (ASize) {
    case 1: return Load(std::uint8_t{});
    case 2: return Load(std::uint16_t{});
    case 4: return Load(std::uint32_t{});
    default: return Load(std::uint64_t{});
    }
}

void StoreBytes(std::byte* APlace, std::uint64_t ABits, std::size_t ASize) noexcept {
    switch (ASize) {
    case 1: std::memcpy(APlace, &ABits, 1); break;
    case 2: std::memcpy(APlace, &ABits, 2); break;
    case 4: std::memcpy(APlace, &ABits, 4); break;
    default: std::memcpy(APlace, &ABits, 8); break;
    }
}

// False when the count is beyond all bounds.
bool CountItems(std::span<const TVariantBound> ABounds, std::size_t ASize, std::size_t& ACount) noexcept {
    const auto IsEmpty = [](const TVariantBound& ABound) { return ABound.Count == 0; };
    ACount = std::any_of(ABounds.begin(), ABounds.end(), IsEmpty) ? 0 : 1;
    if (ACount == 0)
        return true;
    for (const TVariantBound& Bound : ABounds) {
        const auto Count = static_cast<std::size_t>(Bound.Count);
        if (ACount > cMaxArrayBytes / ASize / Count)
            return false;
        ACount *= Count;
    }
    return true;
}

} // namespace

std::size_t ElementSize(TVarType AElements) noexcept {
    switch (AElements) {
    case varShortInt:
    case varByte: return 1;
    case varSmallint:
    case varWord:
    case varBoolean: return 2;
    case varInteger:
    case varLongWord:
    case varSingle:
    case varError: return 4;
    case varInt64:
    case varUInt64:
    case varDouble:
    case varCurrency:
    case varDate:
    case varOleStr:
    case varString:
    case varUString:
    case varDispatch:
    case varUnknown:
    case varObject: return 8;
    case varVariant:
    case varDecimal: return 16;
    default: return 0;
    }
}

TItemsPtr NewItems(TVarType AElements, std::span<const TVariantBound> ABounds) {
    const std::size_t Size = ElementSize(AElements);
    if (Size == 0)
        throw EVariantArrayCreateError(u"A variant array cannot have elements of type %s",
                                       {VarTypeAsText(AElements)});
    if (ABounds.empty() || ABounds.size() > cMaxArrayDimensions)
        throw EVariantArrayCreateError(u"A variant array cannot have %d dimensions", {ABounds.size()});
    std::size_t Count = 0;
    if (!CountItems(ABounds, Size, Count))
        throw EVariantArrayCreateError(u"A variant array cannot be that large");
    TVariantItems Header;
    Header.DimCount = static_cast<std::uint16_t>(ABounds.size());
    const auto Front = static_cast<std::size_t>(Header.Data() - reinterpret_cast<std::byte*>(&Header));
    // Zeros are the empty element of every type.
    void* Memory = std::calloc(Front + Count * Size, 1);
    if (Memory == nullptr)
        throw std::bad_alloc();
    auto* Items = new (Memory) TVariantItems;
    Items->Elements = AElements;
    Items->DimCount = Header.DimCount;
    Items->Count = Count;
    std::ranges::copy(ABounds, Items->Bounds().begin());
    return TItemsPtr(Items);
}

TItemsPtr CopyItems(const TVariantItems& AItems, std::span<const TVariantBound> ABounds) {
    TItemsPtr Result = NewItems(AItems.Elements, ABounds);
    const std::size_t Count = std::min(AItems.Count, Result->Count);
    const std::size_t Size = ElementSize(AItems.Elements);
    if (!IsManagedItem(AItems.Elements)) {
        std::memcpy(Result->Data(), AItems.Data(), Count * Size);
        return Result;
    }
    for (std::size_t I = 0; I < Count; ++I)
        StoreItem(*Result, I, LoadItem(AItems, I));
    return Result;
}

Variant TakeItem(TVarType AElements, const std::byte* APlace) noexcept {
    if (AElements == varDecimal) {
        TSysDecimal Decimal;
        std::memcpy(&Decimal, APlace, sizeof(Decimal));
        return Decimal;
    }
    const std::size_t Size = ElementSize(AElements);
    std::uint64_t Bits = Size == 0 ? 0 : LoadBytes(APlace, Size);
    if (IsSigned(AElements)) {
        const std::size_t Unused = 64 - 8 * Size;
        Bits = static_cast<std::uint64_t>(static_cast<std::int64_t>(Bits << Unused) >> Unused);
    }
    if (AElements == varBoolean && Bits != 0)
        Bits = ~std::uint64_t{0};
    return TVariantAccess::FromBits(AElements, Bits);
}

Variant LoadItem(const TVariantItems& AItems, std::size_t AIndex) noexcept {
    const std::byte* Place = AItems.Data() + AIndex * ElementSize(AItems.Elements);
    if (AItems.Elements == varVariant)
        return VariantAt(const_cast<std::byte*>(Place));
    Variant Item = TakeItem(AItems.Elements, Place);
    if (!TVariantAccess::IsManaged(AItems.Elements))
        return Item;
    Variant Result = Item;
    TVariantAccess::TakeBits(Item);
    return Result;
}

void StoreItem(TVariantItems& AItems, std::size_t AIndex, Variant AValue) noexcept {
    const std::size_t Size = ElementSize(AItems.Elements);
    std::byte* Place = AItems.Data() + AIndex * Size;
    if (AItems.Elements == varVariant) {
        VariantAt(Place) = std::move(AValue);
    } else if (AItems.Elements == varDecimal) {
        const TSysDecimal Decimal = TVariantAccess::Decimal(AValue);
        std::memcpy(Place, &Decimal, sizeof(Decimal));
    } else if (TVariantAccess::IsManaged(AItems.Elements)) {
        const Variant Old = TakeItem(AItems.Elements, Place);
        StoreBytes(Place, TVariantAccess::TakeBits(AValue), Size);
    } else {
        StoreBytes(Place, TVariantAccess::Bits(AValue), Size);
    }
}

void Release(TVariantItems* AItems) noexcept {
    TVariantItems* Ending = nullptr;
    const auto Drop = [&Ending](TVariantItems* AOne) {
        if (AOne->RefCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
            AOne->NextToEnd = std::exchange(Ending, AOne);
    };
    Drop(AItems);
    while (Ending != nullptr) {
        TVariantItems* Gone = std::exchange(Ending, Ending->NextToEnd);
        const std::size_t Count = IsManagedItem(Gone->Elements) ? Gone->Count : 0;
        const std::size_t Size = ElementSize(Gone->Elements);
        for (std::size_t I = 0; I < Count; ++I) {
            std::byte* Place = Gone->Data() + I * Size;
            Variant Item =
                Gone->Elements == varVariant ? std::move(VariantAt(Place)) : TakeItem(Gone->Elements, Place);
            if (VarIsArray(Item))
                Drop(TVariantAccess::Take(Item));
        }
        std::free(Gone);
    }
}

} // namespace qz::detail
