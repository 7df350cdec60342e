#include "runtime/values/Variant.h"

#include <memory>
#include <new>

#include "runtime/text/FloatText.h"
#include "runtime/text/NumberText.h"

namespace qz {

Variant::Variant(const Variant& AOther) noexcept : FType(AOther.FType) {
    if (IsWide())
        new (&FData.Wide) UnicodeString(AOther.FData.Wide);
    else if (FType == varString)
        new (&FData.Narrow) TByteText(AOther.FData.Narrow);
    else if (FType == varSingle || FType == varDouble)
        FData.Real = AOther.FData.Real;
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
}

Variant Variant::Null() noexcept {
    Variant Result;
    Result.FType = varNull;
    return Result;
}

UnicodeString VarToStr(const Variant& AValue) {
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
