#include "runtime/values/VariantArray.h"

#include "runtime/errors/DescribeException.h"
#include "runtime/values/VariantItems.h"

namespace qz {

void detail::Release(TVariantItems* AItems) noexcept {
    TVariantItems* Ending = nullptr;
    const auto Drop = [&Ending](TVariantItems* AOne) {
        if (AOne->RefCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
            AOne->NextToEnd = std::exchange(Ending, AOne);
    };
    Drop(AItems);
    while (Ending != nullptr) {
        const std::unique_ptr<TVariantItems> Gone(std::exchange(Ending, Ending->NextToEnd));
        for (Variant& Item : Gone->Items) {
            if (VarIsArray(Item))
                Drop(TVariantAccess::Take(Item));
        }
    }
}

const TClassRec EVariantArrayCreateError::ClassRec =
    DescribeException<EVariantArrayCreateError>(u"EVariantArrayCreateError", u"Variants");
const TClassRec EVariantBadIndexError::ClassRec =
    DescribeException<EVariantBadIndexError>(u"EVariantBadIndexError", u"Variants");

namespace {

using detail::TVariantAccess;
using detail::TVariantItems;

void CheckArray(const Variant& AArray) {
    if (!VarIsArray(AArray))
        throw EVariantInvalidOpError(u"A variant of type %d is no array", {VarType(AArray)});
}

TVariantItems& Dimension(const Variant& AArray, int ADimension) {
    CheckArray(AArray);
    if (ADimension != 1)
        throw EVariantBadIndexError(u"A variant array has no dimension %d", {ADimension});
    return TVariantAccess::Items(AArray);
}

std::size_t Place(const TVariantItems& AItems, int AIndex) {
    const std::int64_t Result = std::int64_t{AIndex} - AItems.LowBound;
    if (Result < 0 || Result >= static_cast<std::int64_t>(AItems.Items.size()))
        throw EVariantBadIndexError(u"Index %d is out of the bounds of the variant array", {AIndex});
    return static_cast<std::size_t>(Result);
}

} // namespace

Variant VarArrayCreate(std::initializer_list<int> ABounds, TVarType AElements) {
    const int* Bounds = ABounds.begin();
    if (AElements != varVariant || ABounds.size() != 2)
        throw EVariantArrayCreateError(u"A variant array has one dimension and elements of type varVariant");
    const std::int64_t Count = std::int64_t{Bounds[1]} - Bounds[0] + 1;
    if (Count < 0)
        throw EVariantArrayCreateError(u"A variant array cannot go from %d to %d", {Bounds[0], Bounds[1]});
    auto Items = std::make_unique<TVariantItems>();
    Items->LowBound = Bounds[0];
    Items->Items.resize(static_cast<std::size_t>(Count));
    return TVariantAccess::Make(std::move(Items));
}

Variant VarArrayOf(std::initializer_list<Variant> AItems) {
    auto Items = std::make_unique<TVariantItems>();
    Items->Items = AItems;
    return TVariantAccess::Make(std::move(Items));
}

int VarArrayDimCount(const Variant& AArray) noexcept {
    return VarIsArray(AArray) ? 1 : 0;
}

int VarArrayLowBound(const Variant& AArray, int ADimension) {
    return Dimension(AArray, ADimension).LowBound;
}

int VarArrayHighBound(const Variant& AArray, int ADimension) {
    const TVariantItems& Items = Dimension(AArray, ADimension);
    return static_cast<int>(Items.LowBound + static_cast<std::int64_t>(Items.Items.size()) - 1);
}

Variant VarArrayGet(const Variant& AArray, int AIndex) {
    const TVariantItems& Items = Dimension(AArray, 1);
    return Items.Items[Place(Items, AIndex)];
}

void VarArrayPut(Variant& AArray, const Variant& AValue, int AIndex) {
    const std::size_t Index = Place(Dimension(AArray, 1), AIndex);
    // An array that is put into itself goes there as it was: the copy makes it a shared one.
    const Variant Value = AValue; // NOLINT(performance-unnecessary-copy-initialization)
    TVariantAccess::OwnItems(AArray).Items[Index] = Value;
}

} // namespace qz
