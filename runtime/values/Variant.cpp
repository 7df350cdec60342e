#include "runtime/values/Variant.h"

#include <memory>
#include <new>

#include "runtime/errors/DescribeException.h"
#include "runtime/text/FloatText.h"
#include "runtime/text/NumberText.h"
#include "runtime/values/VariantItems.h"

namespace qz {

const TClassRec EVariantError::ClassRec = DescribeException<EVariantError>(u"EVariantError", u"Variants");
const TClassRec EVariantInvalidOpError::ClassRec =
    DescribeException<EVariantInvalidOpError>(u"EVariantInvalidOpError", u"Variants");
const TClassRec EVariantTypeCastError::ClassRec =
    DescribeException<EVariantTypeCastError>(u"EVariantTypeCastError", u"Variants");

Variant::Variant(const Variant& AOther) noexcept : FType(AOther.FType) {
    if (IsWide())
        new (&FData.Wide) UnicodeString(AOther.FData.Wide);
    else if (FType == varString)
        new (&FData.Narrow) TByteText(AOther.FData.Narrow);
    else if (FType == varSingle || FType == varDouble)
        FData.Real = AOther.FData.Real;
    else if (VarIsArray(AOther))
        FData.Items = detail::AddRef(AOther.FData.Items);
    else
        FData.Integer = AOther.FData.Integer;
}

Variant::Variant(Variant&& AOther) noexcept : FType(AOther.FType) {
    if (IsWide())
        new (&FData.Wide) UnicodeString(std::move(AOther.FData.Wide));
    else if (FType == varString)
        new (&FData.Narrow) TByteText(std::move(AOther.FData.Narrow));
    else if (FType == varSingle || FType == varDouble)
        FData.Real = AOther.FData.Real;
    else if (VarIsArray(AOther))
        FData.Items = detail::TVariantAccess::Take(AOther);
    else
        FData.Integer = AOther.FData.Integer;
}

Variant& Variant::operator=(Variant AOther) noexcept {
    if (this != &AOther) {
        std::destroy_at(this);
        new (this) Variant(std::move(AOther));
    }
    return *this;
}

Variant::~Variant() {
    if (IsWide())
        std::destroy_at(&FData.Wide);
    else if (FType == varString)
        std::destroy_at(&FData.Narrow);
    else if (VarIsArray(*this))
        detail::Release(FData.Items);
}

Variant Variant::Null() noexcept {
    Variant Result;
    Result.FType = varNull;
    return Result;
}

UnicodeString VarToStr(const Variant& AValue) {
    if (VarIsArray(AValue))
        throw EVariantTypeCastError(u"A variant that is an array has no text");
    switch (AValue.FType) {
    case varEmpty:
    case varNull: return {};
    case varOleStr:
    case varUString: return AValue.FData.Wide;
    case varString: return AValue.FData.Narrow.ToUnicode();
    case varBoolean: return AValue.FData.Integer != 0 ? u"True" : u"False";
    case varSingle:
    case varDouble: return FloatToStr(AValue.FData.Real);
    case varUInt64: return UIntToStr(static_cast<std::uint64_t>(AValue.FData.Integer));
    default: return IntToStr(AValue.FData.Integer);
    }
}

} // namespace qz
