// A TValue as values of other types.
#include <cmath>

#include <qz/runtime/values/RawValues.h>
#include <qz/runtime/values/detail/ValueAccess.h>

namespace qz {
namespace {

using detail::TValueAccess;

template <class T> const T& Raw(const TValue& AValue) noexcept {
    return *static_cast<const T*>(AValue.GetReferenceToRawData());
}

// Any class reference is a pointer to a class record.
TClass RawClass(const TValue& AValue) noexcept {
    TClass Result;
    std::memcpy(&Result, AValue.GetReferenceToRawData(), sizeof(void*));
    return Result;
}

// Whether the float, which is the integer rounded, is that integer.
bool IsExact(TWideOrdinal AOrdinal, double AFloat) noexcept {
    constexpr double cTwo63 = 9223372036854775808.0;
    if (AOrdinal.IsLarge)
        return AFloat < 2 * cTwo63 &&
            static_cast<std::uint64_t>(AFloat) == static_cast<std::uint64_t>(AOrdinal.Value);
    return AFloat < cTwo63 && static_cast<std::int64_t>(AFloat) == AOrdinal.Value;
}

TWideOrdinal OrdinalOf(const TValue& AValue) noexcept {
    return ReadWideOrdinal(AValue.TypeInfo(), AValue.GetReferenceToRawData());
}

TValue MakeOrdinal(PTypeInfo AType, std::int64_t AValue) noexcept {
    return TValueAccess::Make(AType, [&](void* ATarget) { WriteOrdinal(AType, ATarget, AValue); });
}

bool ToInteger(const TValue& AFrom, PTypeInfo AType, TValue& AResult) {
    if (!IsIntegerKind(AFrom.Kind()))
        return false;
    const TWideOrdinal Ordinal = OrdinalOf(AFrom);
    if (!HoldsOrdinal(AType, Ordinal))
        return false;
    AResult = MakeOrdinal(AType, Ordinal.Value);
    return true;
}

// The number as a double, if that is the same.
bool ExactNumber(const TValue& AFrom, double& ANumber) noexcept {
    if (AFrom.Kind() == tkFloat) {
        ANumber = ReadFloat(AFrom.TypeInfo(), AFrom.GetReferenceToRawData());
        Currency Back;
        return AFrom.TypeInfo() != TypeInfo<Currency>() ||
            (Currency::TryFromDouble(ANumber, Back) && Back == Raw<Currency>(AFrom));
    }
    if (!IsIntegerKind(AFrom.Kind()))
        return false;
    const TWideOrdinal Ordinal = OrdinalOf(AFrom);
    ANumber = NumberOf(Ordinal);
    return IsExact(Ordinal, ANumber);
}

bool ToFloat(const TValue& AFrom, PTypeInfo AType, TValue& AResult) {
    double Number = 0;
    if (!ExactNumber(AFrom, Number))
        return false;
    bool IsHeld = false;
    TValue Result =
        TValueAccess::Make(AType, [&](void* ATarget) { IsHeld = WriteFloat(AType, ATarget, Number); });
    if (IsHeld)
        AResult = std::move(Result);
    return IsHeld;
}

bool TryText(const TValue& AFrom, UnicodeString& AText) {
    return IsTextKind(AFrom.Kind()) && ReadText(AFrom.TypeInfo(), AFrom.GetReferenceToRawData(), AText);
}

bool ToText(const TValue& AFrom, PTypeInfo AType, TValue& AResult) {
    UnicodeString Read;
    if (!TryText(AFrom, Read))
        return false;
    const UnicodeString& Text = Read;
    if (AType->Kind == tkChar || AType->Kind == tkWChar) {
        if (Text.size() != 1 || !HoldsOrdinal(AType, {Text[0], false}))
            return false;
        AResult = MakeOrdinal(AType, Text[0]);
        return true;
    }
    TValue Result = TValue::Make(nullptr, AType);
    if (!AssignText(AType, TValueAccess::Data(Result), Text))
        return false;
    AResult = std::move(Result);
    return true;
}

bool ToObject(const TValue& AFrom, PTypeInfo AType, TValue& AResult) {
    if (AFrom.Kind() != tkClass)
        return false;
    const TObject* Object = AFrom.AsObject();
    if (Object != nullptr && !Object->InheritsFrom(AType->Class))
        return false;
    AResult = TValueAccess::Relabel(AFrom, AType);
    return true;
}

bool ToInterface(const TValue& AFrom, PTypeInfo AType, TValue& AResult) {
    void* Found = nullptr;
    if (AFrom.Kind() == tkInterface) {
        if (AFrom.IsEmpty() || AFrom.IsType(AType)) {
            AResult = TValueAccess::Relabel(AFrom, AType);
            return true;
        }
        if (AFrom.AsInterface()->QueryInterface(*AType->Guid, &Found) != S_OK_RESULT)
            return false;
    } else if (AFrom.Kind() == tkClass) {
        TObject* Object = AFrom.AsObject();
        if (Object != nullptr && !Object->GetInterface(*AType->Guid, &Found))
            return false;
    } else {
        return false;
    }
    // What was found begins with the operations of IInterface, whatever it adds to them.
    AResult = TValueAccess::Relabel(Ref<IInterface>::Attach(static_cast<IInterface*>(Found)), AType);
    return true;
}

bool ToClassRef(const TValue& AFrom, PTypeInfo AType, TValue& AResult) {
    if (AFrom.Kind() != tkClassRef)
        return false;
    const TClass Class = RawClass(AFrom);
    PTypeInfo Family = AType->ElementType();
    if (Class != nullptr && Family != nullptr && !Class->InheritsFrom(Family->Class))
        return false;
    AResult = TValueAccess::Make(AType, [&](void* ATarget) { std::memcpy(ATarget, &Class, sizeof(void*)); });
    return true;
}

Variant IntegerVariant(PTypeInfo AType, std::int64_t AValue) noexcept {
    switch (AType->Ops->Size) {
    case 1:
        return AType->IsSigned ? Variant(static_cast<std::int8_t>(AValue))
                               : Variant(static_cast<std::uint8_t>(AValue));
    case 2:
        return AType->IsSigned ? Variant(static_cast<std::int16_t>(AValue))
                               : Variant(static_cast<std::uint16_t>(AValue));
    case 4:
        return AType->IsSigned ? Variant(static_cast<std::int32_t>(AValue))
                               : Variant(static_cast<std::uint32_t>(AValue));
    default: return AType->IsSigned ? Variant(AValue) : Variant(static_cast<std::uint64_t>(AValue));
    }
}

Variant OrdinalVariant(std::int64_t AValue) noexcept {
    const auto Narrow = static_cast<std::int32_t>(AValue);
    return Narrow == AValue ? Variant(Narrow) : Variant(AValue);
}

Variant FloatVariant(const TValue& AValue) noexcept {
    PTypeInfo Type = AValue.TypeInfo();
    if (Type == TypeInfo<float>())
        return Raw<float>(AValue);
    if (Type == TypeInfo<Currency>())
        return Raw<Currency>(AValue);
    const double Number = ReadFloat(Type, AValue.GetReferenceToRawData());
    if (IsDateType(Type))
        return TDateTime(Number);
    return Number;
}

bool TextVariant(const TValue& AValue, Variant& AResult) {
    UnicodeString Text;
    if (AValue.TypeInfo() == TypeInfo<WideString>())
        AResult = Raw<WideString>(AValue);
    else if (AValue.TypeInfo() == TypeInfo<AnsiString>())
        AResult = Raw<AnsiString>(AValue);
    else if (TryText(AValue, Text))
        AResult = Text;
    else
        return false;
    return true;
}

// False when the value makes no variant.
bool ToVariant(const TValue& AValue, Variant& AResult) {
    switch (AValue.Kind()) {
    case tkUnknown: AResult = Variant(); return true;
    case tkVariant: AResult = Raw<Variant>(AValue); return true;
    case tkInteger:
    case tkInt64: AResult = IntegerVariant(AValue.TypeInfo(), AValue.AsOrdinal()); return true;
    case tkFloat: AResult = FloatVariant(AValue); return true;
    case tkEnumeration:
        if (AValue.TypeInfo() == TypeInfo<bool>())
            AResult = Raw<bool>(AValue);
        else
            AResult = OrdinalVariant(AValue.AsOrdinal());
        return true;
    case tkSet:
        if (AValue.GetDataSize() > sizeof(std::int64_t))
            return false;
        AResult = OrdinalVariant(AValue.AsOrdinal());
        return true;
    case tkInterface: AResult = Raw<Ref<IInterface>>(AValue); return true;
    default: return TextVariant(AValue, AResult);
    }
}

} // namespace

bool TValue::TryCast(PTypeInfo AType, TValue& AResult) const {
    if (AType == nullptr)
        return false;
    if (FType == AType) {
        if (AType->Ops->IsSmall && AType->Ops->Copy == nullptr)
            return false;
        AResult = *this;
        return true;
    }
    if (FType == nullptr) {
        if (!IsReferenceKind(AType->Kind) && AType->Kind != tkVariant)
            return false;
        AResult = Make(nullptr, AType);
        return true;
    }
    switch (AType->Kind) {
    case tkInteger:
    case tkInt64: return ToInteger(*this, AType, AResult);
    case tkFloat: return ToFloat(*this, AType, AResult);
    case tkClass: return ToObject(*this, AType, AResult);
    case tkInterface: return ToInterface(*this, AType, AResult);
    case tkClassRef: return ToClassRef(*this, AType, AResult);
    case tkVariant: {
        Variant Result;
        if (!ToVariant(*this, Result))
            return false;
        AResult = std::move(Result);
        return true;
    }
    default: return IsTextKind(AType->Kind) && ToText(*this, AType, AResult);
    }
}

TValue TValue::Cast(PTypeInfo AType) const {
    TValue Result;
    if (!TryCast(AType, Result))
        RaiseCast(AType == nullptr ? u"(empty)" : AType->Name);
    return Result;
}

std::int64_t TValue::AsInt64() const {
    if (!IsIntegerKind(Kind()))
        RaiseCast(u"Int64");
    return ReadOrdinal(FType, GetReferenceToRawData());
}

std::int64_t TValue::AsOrdinal() const {
    switch (Kind()) {
    case tkSet:
        if (GetDataSize() > sizeof(std::int64_t))
            break;
        [[fallthrough]];
    case tkInteger:
    case tkInt64:
    case tkChar:
    case tkWChar:
    case tkEnumeration: return ReadOrdinal(FType, GetReferenceToRawData());
    default: break;
    }
    RaiseCast(u"an ordinal");
}

Extended TValue::AsExtended() const {
    if (Kind() == tkFloat)
        return ReadFloat(FType, GetReferenceToRawData());
    if (!IsIntegerKind(Kind()))
        RaiseCast(u"Extended");
    return NumberOf(OrdinalOf(*this));
}

UnicodeString TValue::AsString() const {
    UnicodeString Result;
    if (!TryText(*this, Result))
        RaiseCast(u"string");
    return Result;
}

Variant TValue::AsVariant() const {
    Variant Result;
    if (!ToVariant(*this, Result))
        RaiseCast(u"Variant");
    return Result;
}

TObject* TValue::AsObject() const {
    if (FType == nullptr)
        return nullptr;
    if (FType->Kind != tkClass)
        RaiseCast(u"an object");
    return Raw<TObject*>(*this);
}

IInterface* TValue::AsInterface() const {
    if (FType == nullptr)
        return nullptr;
    if (FType->Kind != tkInterface)
        RaiseCast(u"an interface");
    return Raw<Ref<IInterface>>(*this).Get();
}

TClass TValue::AsClass() const {
    if (FType == nullptr)
        return nullptr;
    if (FType->Kind != tkClassRef)
        RaiseCast(u"a class reference");
    return RawClass(*this);
}

} // namespace qz
