// A TValue as text.
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/EnumNames.h>
#include <qz/runtime/values/RawValues.h>
#include <qz/runtime/values/Value.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {
namespace {

UnicodeString Bracketed(std::u16string_view AText) {
    return u'(' + UnicodeString(AText) + u')';
}

UnicodeString AtAddress(std::u16string_view AName, const void* AAddress) {
    return u'(' + UnicodeString(AName) + u" @ " + IntToHex(reinterpret_cast<std::uintptr_t>(AAddress)) + u')';
}

UnicodeString ClassText(TClass AClass) {
    return AClass == nullptr ? UnicodeString(u"(nil)") : UnicodeString(AClass->Name());
}

UnicodeString VariantText(const Variant& AValue) {
    if (VarIsArray(AValue))
        return u"(array)";
    switch (VarType(AValue)) {
    case varDispatch:
    case varUnknown: return u"(interface)";
    case varObject: return u"(object)";
    default: return VarToStr(AValue);
    }
}

UnicodeString PointerText(PTypeInfo AType, const void* AData) {
    void* Address;
    std::memcpy(&Address, AData, sizeof Address);
    return AtAddress(AType->Name, Address);
}

UnicodeString TextOf(const TValue& AValue) {
    PTypeInfo Type = AValue.TypeInfo();
    const void* Data = AValue.GetReferenceToRawData();
    switch (AValue.Kind()) {
    case tkInteger:
    case tkInt64: return Type->IsSigned ? IntToStr(AValue.AsInt64()) : UIntToStr(AValue.AsUInt64());
    case tkFloat:
        return Type == TypeInfo<Currency>() ? CurrToStr(AValue.AsCurrency())
                                            : FloatToStr(AValue.AsExtended());
    case tkEnumeration: return GetEnumName(Type, AValue.AsOrdinal());
    case tkSet: return SetToString(Type, Data, true);
    case tkVariant: return VariantText(*static_cast<const Variant*>(Data));
    case tkClass: {
        const TObject* Object = AValue.AsObject();
        return AtAddress(Object == nullptr ? Type->Name : Object->ClassName(), Object);
    }
    case tkInterface:
    case tkPointer: return PointerText(Type, Data);
    case tkClassRef: return ClassText(AValue.AsClass());
    case tkRecord: return u"(record)";
    case tkArray:
    case tkDynArray: return u"(array)";
    default: return IsTextKind(Type->Kind) ? AValue.AsString() : Bracketed(Type->Name);
    }
}

} // namespace

UnicodeString TValue::ToString() const {
    if (FType == nullptr)
        return u"(empty)";
    try {
        return TextOf(*this);
    } catch (
        const Exception&) { // a code page that the system does not know, a date in a variant that is none
        return Bracketed(FType->Name);
    }
}

} // namespace qz
