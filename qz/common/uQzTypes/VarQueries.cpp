#include <qz/common/uQzTypes/VarQueries.h>

#include <qz/common/uQzTypes/KindConversions.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {

bool QzVarIsEmpty(const Variant& AValue) {
    switch (TQzKindConversions::ToMainTypeKind(VarType(AValue))) {
    case mtkInteger:
    case mtkFloat:
    case mtkDateTime: return AValue == 0;
    case mtkString: return TrimView(VarToStr(AValue)).empty();
    case mtkBoolean: return false;
    case mtkArray: return VarArrayHighBound(AValue) == -1;
    default: return VarIsEmpty(AValue) || VarIsNull(AValue);
    }
}

std::int32_t QzVarArrayCount(const Variant& AValue) {
    return VarIsArray(AValue) ? static_cast<std::int32_t>(std::int64_t{VarArrayHighBound(AValue)} + 1) : 0;
}

TQzNullableBool QzNullableBool(const Variant& AValue) {
    if (TQzKindConversions::ToMainTypeKind(VarType(AValue)) != mtkBoolean)
        return nbNull;
    return VarToBool(AValue) ? nbYes : nbNo;
}

} // namespace qz
