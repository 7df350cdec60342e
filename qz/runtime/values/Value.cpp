#include <qz/runtime/values/Value.h>

#include <algorithm>
#include <new>

#include <qz/runtime/lists/ListTypes.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/RawValues.h>
#include <qz/runtime/values/VariantConvert.h>
#include <qz/runtime/values/detail/ValueAccess.h>

namespace qz {

QZ_REGISTER_TYPES(TValue);

constinit const TTypeInfo TTypeDescription<TValue>::Info = DescribeRecord<TValue>(u"TValue", u"System");

namespace detail {

TValueBlock* TValueBlock::New(std::size_t ASize, std::size_t AAlign) {
    const std::size_t Offset = std::max(sizeof(TValueBlock), AAlign);
    void* Memory = Offset > __STDCPP_DEFAULT_NEW_ALIGNMENT__
        ? ::operator new (Offset + ASize, std::align_val_t{Offset})
        : ::operator new(Offset + ASize);
    auto* Block = new (Memory) TValueBlock;
    Block->Offset = static_cast<std::uint32_t>(Offset);
    return Block;
}

void TValueBlock::Free(TValueBlock* ABlock) noexcept {
    if (const std::size_t Offset = ABlock->Offset; Offset > __STDCPP_DEFAULT_NEW_ALIGNMENT__)
        ::operator delete (static_cast<void*>(ABlock), std::align_val_t{Offset});
    else
        ::operator delete(static_cast<void*>(ABlock));
}

} // namespace detail

void TValue::CopyFrom(const TValue& AOther) noexcept {
    if (!AOther.FType->Ops->IsSmall) {
        AOther.Block()->RefCount.fetch_add(1, std::memory_order_relaxed);
        return TakeBytes(AOther);
    }
    AOther.FType->Ops->Copy(FRoom, AOther.FRoom);
    FType = AOther.FType;
}

void TValue::Relocate(TValue& AOther) noexcept {
    AOther.FType->Ops->Relocate(FRoom, AOther.FRoom);
    FType = AOther.FType;
}

// The old value ends when the new one is in its place.
void TValue::Replace(TValue& AOther) noexcept {
    if (this == &AOther)
        return;
    TValue Old;
    Old.MoveFrom(*this);
    MoveFrom(AOther);
}

void TValue::Destroy() noexcept {
    const TTypeOps& Ops = *FType->Ops;
    if (Ops.IsSmall)
        return Ops.Destroy(FRoom);
    detail::TValueBlock* Shared = Block();
    if (Shared->RefCount.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        Ops.Destroy(Shared->Value());
        detail::TValueBlock::Free(Shared);
    }
}

// The value for writing, which no other TValue shares.
void* TValue::OwnData() {
    if (!FType->Ops->IsSmall && Block()->RefCount.load(std::memory_order_acquire) != 1)
        *this = Make(Block()->Value(), FType);
    return const_cast<void*>(GetReferenceToRawData());
}

void TValue::RaiseCast(std::u16string_view AType) const {
    throw EInvalidCast(u"A value of type %s cannot be taken as %s",
                       {FType == nullptr ? u"(empty)" : FType->Name, AType});
}

TValue TValue::Make(const void* AData, PTypeInfo AType) {
    if (AType == nullptr)
        return {};
    const TTypeOps& Ops = *AType->Ops;
    if (AData == nullptr ? Ops.Construct == nullptr : Ops.Copy == nullptr)
        throw EInvalidCast(u"A value of type %s cannot be made", {AType->Name});
    return detail::TValueAccess::Make(AType, [&](void* ATarget) {
        if (AData == nullptr)
            Ops.Construct(ATarget);
        else
            Ops.Copy(ATarget, AData);
    });
}

TValue TValue::FromOrdinal(PTypeInfo AType, std::int64_t AOrdinal) {
    const TTypeKind Kind = AType->Kind;
    const bool IsOrdinal = IsIntegerKind(Kind) || Kind == tkChar || Kind == tkWChar ||
        Kind == tkEnumeration || (Kind == tkSet && AType->Ops->Size <= sizeof AOrdinal);
    if (!IsOrdinal)
        throw EInvalidCast(u"An ordinal cannot be taken as %s", {AType->Name});
    if (AType->Ops->Size < sizeof AOrdinal && !HoldsOrdinal(AType, {AOrdinal, false}))
        throw ERangeError(u"The number %d is outside the range of type %s", {AOrdinal, AType->Name});
    return detail::TValueAccess::Make(AType, [&](void* ATarget) { WriteOrdinal(AType, ATarget, AOrdinal); });
}

TValue TValue::FromVariant(const Variant& AValue) {
    switch (VarType(AValue)) {
    case varEmpty: return {};
    case varShortInt: return static_cast<std::int8_t>(VarToInteger(AValue));
    case varSmallint: return static_cast<std::int16_t>(VarToInteger(AValue));
    case varInteger: return VarToInteger(AValue);
    case varByte: return static_cast<std::uint8_t>(VarToInteger(AValue));
    case varWord: return static_cast<std::uint16_t>(VarToInteger(AValue));
    case varLongWord: return static_cast<std::uint32_t>(VarToInt64(AValue));
    case varInt64: return VarToInt64(AValue);
    case varUInt64: return VarToUInt64(AValue);
    case varSingle: return static_cast<float>(VarToReal(AValue));
    case varDouble: return VarToReal(AValue);
    case varCurrency: return VarToCurrency(AValue);
    case varDate: return VarToDateTime(AValue);
    case varBoolean: return VarToBool(AValue);
    case varOleStr: return VarToWStr(AValue);
    case varString: return VarToLStr(AValue);
    case varUString: return VarToStr(AValue);
    case varDispatch:
    case varUnknown: return VarToInterface(AValue);
    case varObject: return VarToObject(AValue);
    default: return AValue;
    }
}

bool TValue::IsEmpty() const noexcept {
    if (FType == nullptr)
        return true;
    const void* Data = GetReferenceToRawData();
    if (FType->Kind == tkDynArray)
        return FType->Array != nullptr && FType->Array->Length(Data) == 0;
    return IsReferenceKind(FType->Kind) && FType->Ops->IsNull != nullptr && FType->Ops->IsNull(Data);
}

bool TValue::IsType(PTypeInfo AType) const noexcept {
    if (FType == AType)
        return FType != nullptr;
    if (FType == nullptr || AType == nullptr || FType->Kind != AType->Kind)
        return false;
    PTypeInfo Type = FType;
    if (Type->Kind == tkClass)
        if (const TObject* Object = AsObject())
            Type = Object->ClassType()->ClassInfo();
    while (Type != nullptr && Type != AType)
        Type = Type->BaseType();
    return Type != nullptr;
}

std::size_t TValue::GetArrayLength() const {
    if (FType == nullptr || FType->Array == nullptr)
        RaiseCast(u"an array");
    return FType->Array->Length(GetReferenceToRawData());
}

TValue TValue::GetArrayElement(std::size_t AIndex) const {
    if (AIndex >= GetArrayLength())
        detail::RaiseOutOfRange(static_cast<std::int64_t>(AIndex),
                                static_cast<std::int64_t>(GetArrayLength()));
    return detail::TValueAccess::Make(FType->ElementType(), [&](void* ATarget) {
        FType->Array->GetItem(GetReferenceToRawData(), AIndex, ATarget);
    });
}

void TValue::SetArrayElement(std::size_t AIndex, const TValue& AElement) {
    if (AIndex >= GetArrayLength())
        detail::RaiseOutOfRange(static_cast<std::int64_t>(AIndex),
                                static_cast<std::int64_t>(GetArrayLength()));
    const TValue Element = AElement.Cast(FType->ElementType());
    FType->Array->SetItem(OwnData(), AIndex, Element.GetReferenceToRawData());
}

} // namespace qz
