#include <qz/runtime/values/VariantArray.h>

#include <array>
#include <limits>

#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/VariantConvert.h>
#include <qz/runtime/values/detail/VariantItems.h>

namespace qz {

QZ_REGISTER_TYPES(EVariantArrayCreateError, EVariantBadIndexError);

const TClassRec EVariantArrayCreateError::ClassRec =
    DescribeException<EVariantArrayCreateError>(u"EVariantArrayCreateError", u"System");
const TClassRec EVariantBadIndexError::ClassRec =
    DescribeException<EVariantBadIndexError>(u"EVariantBadIndexError", u"System");

namespace {

using detail::cMaxArrayDimensions;
using detail::TVariantAccess;
using detail::TVariantBound;
using detail::TVariantItems;

const TVariantItems& ItemsOf(const Variant& AArray) {
    if (!VarIsArray(AArray))
        throw EVariantInvalidOpError(u"A variant of type %s is no array", {VarTypeAsText(VarType(AArray))});
    return TVariantAccess::Items(AArray);
}

const TVariantBound& Dimension(const Variant& AArray, int ADimension) {
    const TVariantItems& Items = ItemsOf(AArray);
    if (ADimension < 1 || ADimension > Items.DimCount)
        throw EVariantBadIndexError(u"A variant array has no dimension %d", {ADimension});
    return Items.Bounds()[static_cast<std::size_t>(ADimension - 1)];
}

TVariantBound BoundOf(int ALow, int AHigh) {
    const std::int64_t Count = std::int64_t{AHigh} - ALow + 1;
    if (Count < 0 || Count > std::numeric_limits<std::int32_t>::max())
        throw EVariantArrayCreateError(u"A variant array cannot go from %d to %d", {ALow, AHigh});
    return {ALow, static_cast<std::int32_t>(Count)};
}

std::size_t Place(const TVariantItems& AItems, std::initializer_list<int> AIndexes) {
    if (AIndexes.size() != AItems.DimCount)
        throw EVariantBadIndexError(u"A variant array of %d dimensions cannot have %d indexes",
                                    {AItems.DimCount, AIndexes.size()});
    std::size_t Result = 0;
    std::size_t Step = 1;
    const int* Index = AIndexes.begin();
    for (const TVariantBound& Bound : AItems.Bounds()) {
        const std::int64_t Offset = std::int64_t{*Index} - Bound.Low;
        if (Offset < 0 || Offset >= Bound.Count)
            throw EVariantBadIndexError(u"Index %d is out of the bounds of the variant array", {*Index});
        Result += static_cast<std::size_t>(Offset) * Step;
        Step *= static_cast<std::size_t>(Bound.Count);
        ++Index;
    }
    return Result;
}

void CheckElements(const TVariantItems& AItems, TVarType AElements) {
    if (AItems.Elements != AElements)
        throw EVariantTypeCastError(u"The elements of the variant array are of type %s and not %s",
                                    {VarTypeAsText(AItems.Elements), VarTypeAsText(AElements)});
}

std::size_t SizeOf(const TVariantItems& AItems) noexcept {
    return AItems.Count * detail::ElementSize(AItems.Elements);
}

} // namespace

Variant VarArrayCreate(std::initializer_list<int> ABounds, TVarType AElements) {
    const std::size_t Count = ABounds.size() / 2;
    if (ABounds.size() % 2 != 0 || Count > cMaxArrayDimensions)
        throw EVariantArrayCreateError(
            u"A variant array has a lower and an upper bound for each of 1 to %d dimensions",
            {cMaxArrayDimensions});
    std::array<TVariantBound, cMaxArrayDimensions> Bounds{};
    for (std::size_t I = 0; I < Count; ++I)
        Bounds[I] = BoundOf(ABounds.begin()[2 * I], ABounds.begin()[2 * I + 1]);
    return TVariantAccess::Make(detail::NewItems(AElements, std::span(Bounds).first(Count)));
}

Variant VarArrayOf(std::initializer_list<Variant> AItems) {
    const TVariantBound Bound{0, static_cast<std::int32_t>(AItems.size())};
    detail::TItemsPtr Items = detail::NewItems(varVariant, {&Bound, 1});
    std::size_t Index = 0;
    for (const Variant& Item : AItems)
        detail::StoreItem(*Items, Index++, Item);
    return TVariantAccess::Make(std::move(Items));
}

int VarArrayDimCount(const Variant& AArray) noexcept {
    return VarIsArray(AArray) ? TVariantAccess::Items(AArray).DimCount : 0;
}

int VarArrayLowBound(const Variant& AArray, int ADimension) {
    return Dimension(AArray, ADimension).Low;
}

int VarArrayHighBound(const Variant& AArray, int ADimension) {
    const TVariantBound& Bound = Dimension(AArray, ADimension);
    return static_cast<int>(std::int64_t{Bound.Low} + Bound.Count - 1);
}

Variant VarArrayGet(const Variant& AArray, std::initializer_list<int> AIndexes) {
    const TVariantItems& Items = ItemsOf(AArray);
    return detail::LoadItem(Items, Place(Items, AIndexes));
}

void VarArrayPut(Variant& AArray, const Variant& AValue, std::initializer_list<int> AIndexes) {
    const TVariantItems& Items = ItemsOf(AArray);
    const std::size_t Index = Place(Items, AIndexes);
    // An array that is put into itself goes there as it was: the copy makes it a shared one.
    Variant Value = Items.Elements == varVariant ? AValue : VarAsType(AValue, Items.Elements);
    detail::StoreItem(TVariantAccess::OwnItems(AArray), Index, std::move(Value));
}

void VarArrayRedim(Variant& AArray, int AHighBound) {
    const TVariantItems& Items = ItemsOf(AArray);
    std::array<TVariantBound, cMaxArrayDimensions> Bounds;
    std::ranges::copy(Items.Bounds(), Bounds.begin());
    TVariantBound& Last = Bounds[Items.DimCount - 1U];
    Last = BoundOf(Last.Low, AHighBound);
    AArray = TVariantAccess::Make(detail::CopyItems(Items, std::span(Bounds).first(Items.DimCount)));
}

std::span<const std::byte> detail::VarArrayBytes(const Variant& AArray, TVarType AElements) {
    const TVariantItems& Items = ItemsOf(AArray);
    CheckElements(Items, AElements);
    return {Items.Data(), SizeOf(Items)};
}

std::span<std::byte> detail::OwnVarArrayBytes(Variant& AArray, TVarType AElements) {
    CheckElements(ItemsOf(AArray), AElements);
    TVariantItems& Items = TVariantAccess::OwnItems(AArray);
    return {Items.Data(), SizeOf(Items)};
}

} // namespace qz
