#include <qz/runtime/values/Variant.h>

#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/detail/VariantItems.h>

namespace qz {

QZ_REGISTER_TYPES(EVariantError, EVariantInvalidOpError, EVariantTypeCastError, EVariantOverflowError,
                  Variant);

const TClassRec EVariantError::ClassRec = DescribeException<EVariantError>(u"EVariantError", u"System");
const TClassRec EVariantInvalidOpError::ClassRec =
    DescribeException<EVariantInvalidOpError>(u"EVariantInvalidOpError", u"System");
const TClassRec EVariantTypeCastError::ClassRec =
    DescribeException<EVariantTypeCastError>(u"EVariantTypeCastError", u"System");
const TClassRec EVariantOverflowError::ClassRec =
    DescribeException<EVariantOverflowError>(u"EVariantOverflowError", u"System");

constinit const TTypeInfo TTypeDescription<Variant>::Info =
    DescribeType<Variant>(tkVariant, u"Variant", u"System");

void Variant::ShareOther(const Variant& AOther) noexcept {
    if (FType == varString)
        new (&FData.Narrow) TByteText(AOther.FData.Narrow);
    else if (VarIsArray(*this))
        detail::AddRef(FData.Items);
    else if (FData.Interface != nullptr)
        FData.Interface->_AddRef();
}

void Variant::DropOther() noexcept {
    if (FType == varString)
        std::destroy_at(&FData.Narrow);
    else if (VarIsArray(*this))
        detail::Release(FData.Items);
    else if (FData.Interface != nullptr)
        FData.Interface->_Release();
}

} // namespace qz
