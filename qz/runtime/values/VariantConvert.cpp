#include <qz/runtime/values/VariantConvert.h>

#include <cmath>
#include <limits>

#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/detail/VariantKinds.h>

namespace qz {

using detail::KindOf;
using detail::TTextOf;
using detail::TVariantAccess;
using detail::TVariantKind;

double detail::NumberAsReal(const Variant& ANumber) noexcept {
    const std::int64_t Integer = TVariantAccess::Integer(ANumber);
    switch (KindOf(ANumber)) {
    case TVariantKind::Integer: return static_cast<double>(Integer);
    case TVariantKind::Unsigned: return static_cast<double>(static_cast<std::uint64_t>(Integer));
    case TVariantKind::Currency: return Currency::FromUnits(Integer).ToDouble();
    case TVariantKind::Decimal: return TVariantAccess::Decimal(ANumber).ToDouble();
    default: return TVariantAccess::Real(ANumber);
    }
}

TSysDecimal detail::NumberAsDecimal(const Variant& ANumber) noexcept {
    const std::int64_t Integer = TVariantAccess::Integer(ANumber);
    switch (KindOf(ANumber)) {
    case TVariantKind::Unsigned: return {static_cast<std::uint64_t>(Integer), false};
    case TVariantKind::Currency: return TSysDecimal::FromCurrency(Currency::FromUnits(Integer));
    case TVariantKind::Decimal: return TVariantAccess::Decimal(ANumber);
    default: return TSysDecimal::FromInt64(Integer);
    }
}

namespace {

constexpr double cTwoTo64 = 18446744073709551616.0;

[[noreturn]] void RaiseOverflow(const Variant& AValue, TVarType AType) {
    throw EVariantOverflowError(u"A variant of type %s is out of the range of type %s",
                                {VarTypeAsText(VarType(AValue)), VarTypeAsText(AType)});
}

[[noreturn]] void RaiseCast(const Variant& AValue, TVarType AType) {
    if (KindOf(AValue) == TVariantKind::Text)
        throw EVariantTypeCastError(u"The text \"%s\" cannot be converted to type %s",
                                    {VarToStr(AValue), VarTypeAsText(AType)});
    throw EVariantTypeCastError(u"A variant of type %s cannot be converted to type %s",
                                {VarTypeAsText(VarType(AValue)), VarTypeAsText(AType)});
}

// A whole number before the range check.
struct TWhole {
    std::uint64_t Magnitude;
    bool IsNegative;
};

TWhole WholeOf(std::int64_t AValue) noexcept {
    const auto Bits = static_cast<std::uint64_t>(AValue);
    return {AValue < 0 ? 0 - Bits : Bits, AValue < 0};
}

// False when it is too large for 64 bits, or no number.
bool RoundReal(double AValue, TWhole& AWhole) noexcept {
    const double Whole = std::nearbyint(AValue);
    if (!(std::fabs(Whole) < cTwoTo64))
        return false;
    AWhole = {static_cast<std::uint64_t>(std::fabs(Whole)), Whole < 0};
    return true;
}

bool RoundDecimal(const TSysDecimal& AValue, TWhole& AWhole) noexcept {
    const TSysDecimal Whole = AValue.Rounded(0);
    AWhole = {Whole.Low, Whole.IsNegative() && Whole.Low != 0};
    return Whole.High == 0;
}

bool ReadWhole(const UnicodeString& AText, TWhole& AWhole, const Variant& AValue, TVarType AType) {
    AWhole.IsNegative = false;
    if (AType == varUInt64 && TryStrToUInt64(AText, AWhole.Magnitude)) // "$FFFFFFFFFFFFFFFF" is no -1 there
        return true;
    if (std::int64_t Signed = 0; TryStrToInt64(AText, Signed)) {
        AWhole = WholeOf(Signed);
        return true;
    }
    if (TryStrToUInt64(AText, AWhole.Magnitude))
        return true;
    if (TSysDecimal Decimal; TryStrToDecimal(AText, Decimal))
        return RoundDecimal(Decimal, AWhole);
    double Real = 0;
    if (!TryStrToFloat(AText, Real))
        RaiseCast(AValue, AType);
    return RoundReal(Real, AWhole);
}

template <std::integral T> T ToInteger(const Variant& AValue) {
    constexpr TVarType cType = detail::VarTypeOf<T>();
    TWhole Whole{};
    bool Fits = true;
    switch (KindOf(AValue)) {
    case TVariantKind::Empty: return 0;
    case TVariantKind::Integer: Whole = WholeOf(TVariantAccess::Integer(AValue)); break;
    case TVariantKind::Unsigned: Whole.Magnitude = TVariantAccess::Bits(AValue); break;
    case TVariantKind::Real: Fits = RoundReal(TVariantAccess::Real(AValue), Whole); break;
    case TVariantKind::Currency:
    case TVariantKind::Decimal: Fits = RoundDecimal(detail::NumberAsDecimal(AValue), Whole); break;
    case TVariantKind::Text: {
        const TTextOf Source(AValue);
        const UnicodeString& Text = Source.Text();
        std::int32_t Narrow = 0; // "$FFFFFFFF" is -1 in 32 bits
        if (std::int64_t Plain = 0; detail::TryPlainInteger(Text, Plain)) {
            if (std::in_range<T>(Plain)) [[likely]]
                return static_cast<T>(Plain);
            Whole = WholeOf(Plain);
        } else if (std::same_as<T, std::int32_t> && TryStrToInt(Text, Narrow))
            Whole = WholeOf(Narrow);
        else
            Fits = ReadWhole(Text, Whole, AValue, cType);
        break;
    }
    default: RaiseCast(AValue, cType);
    }
    const std::uint64_t Most = static_cast<std::uint64_t>(std::numeric_limits<T>::max()) +
        (std::signed_integral<T> && Whole.IsNegative);
    if (!Fits || Whole.Magnitude > Most || (std::unsigned_integral<T> && Whole.IsNegative))
        RaiseOverflow(AValue, cType);
    return static_cast<T>(Whole.IsNegative ? 0 - Whole.Magnitude : Whole.Magnitude);
}

float ToSingle(const Variant& AValue) {
    const double Real = VarToReal(AValue);
    const auto Single = static_cast<float>(Real);
    if (std::isinf(Single) && std::isfinite(Real))
        RaiseOverflow(AValue, varSingle);
    return Single;
}

// An interface of automation, which OLE knows by this identifier.
constexpr TGUID cDispatch = Guid("{00020400-0000-0000-C000-000000000046}");

Variant ToInterface(const Variant& AValue, TVarType AType) {
    const Ref<IInterface> Interface = VarToInterface(AValue);
    if (AType == varUnknown)
        return Interface;
    void* Found = nullptr;
    if (Interface != nullptr && Interface->QueryInterface(cDispatch, &Found) != S_OK_RESULT)
        RaiseCast(AValue, AType);
    const auto Dispatch = Ref<IInterface>::Attach(static_cast<IInterface*>(Found));
    return Variant::Dispatch(Dispatch);
}

Variant ToArray(const Variant& AValue, TVarType AType) {
    if (!VarIsArray(AValue))
        RaiseCast(AValue, AType);
    const detail::TVariantItems& Source = TVariantAccess::Items(AValue);
    const auto Elements = static_cast<TVarType>(AType & ~varArray);
    if (detail::ElementSize(Elements) == 0)
        RaiseCast(AValue, AType);
    detail::TItemsPtr Items = detail::NewItems(Elements, Source.Bounds());
    for (std::size_t I = 0; I < Source.Count; ++I)
        detail::StoreItem(*Items, I, VarAsType(detail::LoadItem(Source, I), Elements));
    return TVariantAccess::Make(std::move(Items));
}

} // namespace

std::int32_t VarToInteger(const Variant& AValue) {
    return ToInteger<std::int32_t>(AValue);
}

std::int64_t VarToInt64(const Variant& AValue) {
    return ToInteger<std::int64_t>(AValue);
}

std::uint64_t VarToUInt64(const Variant& AValue) {
    return ToInteger<std::uint64_t>(AValue);
}

double VarToReal(const Variant& AValue) {
    const TVariantKind Kind = KindOf(AValue);
    if (detail::IsNumber(Kind))
        return detail::NumberAsReal(AValue);
    double Result = 0;
    if (Kind != TVariantKind::Empty &&
        (Kind != TVariantKind::Text || !TryStrToFloat(TTextOf(AValue).Text(), Result)))
        RaiseCast(AValue, varDouble);
    return Result;
}

bool VarToBool(const Variant& AValue) {
    const TVariantKind Kind = KindOf(AValue);
    if (detail::IsNumber(Kind))
        return detail::NumberAsReal(AValue) != 0;
    bool Result = false;
    if (Kind != TVariantKind::Empty &&
        (Kind != TVariantKind::Text || !TryStrToBool(TTextOf(AValue).Text(), Result)))
        RaiseCast(AValue, varBoolean);
    return Result;
}

TDateTime VarToDateTime(const Variant& AValue) {
    TDateTime Result;
    if (KindOf(AValue) != TVariantKind::Text)
        return VarToReal(AValue);
    if (!TryStrToDateTime(TTextOf(AValue).Text(), Result))
        RaiseCast(AValue, varDate);
    return Result;
}

TSysDecimal VarToDecimal(const Variant& AValue) {
    const TVariantKind Kind = KindOf(AValue);
    if (detail::IsNumber(Kind) && Kind != TVariantKind::Real)
        return detail::NumberAsDecimal(AValue);
    TSysDecimal Result;
    if (Kind == TVariantKind::Text && TryStrToDecimal(TTextOf(AValue).Text(), Result))
        return Result;
    if (!TSysDecimal::TryFromDouble(VarToReal(AValue), Result))
        RaiseOverflow(AValue, varDecimal);
    return Result;
}

Currency VarToCurrency(const Variant& AValue) {
    Currency Result;
    const bool Fits = KindOf(AValue) == TVariantKind::Real
        ? Currency::TryFromDouble(TVariantAccess::Real(AValue), Result)
        : VarToDecimal(AValue).TryToCurrency(Result);
    if (!Fits)
        RaiseOverflow(AValue, varCurrency);
    return Result;
}

UnicodeString VarToStr(const Variant& AValue) {
    const std::int64_t Integer = TVariantAccess::Integer(AValue);
    switch (KindOf(AValue)) {
    case TVariantKind::Empty:
    case TVariantKind::Null: return {};
    case TVariantKind::Integer:
        if (VarType(AValue) == varBoolean)
            return BoolToStr(Integer != 0, true);
        return IntToStr(Integer);
    case TVariantKind::Unsigned: return UIntToStr(static_cast<std::uint64_t>(Integer));
    case TVariantKind::Real: {
        const double Real = TVariantAccess::Real(AValue);
        if (VarType(AValue) != varDate)
            return FloatToStr(Real);
        if (TDayAndTime Parts; !TrySplitDateTime(Real, Parts))
            RaiseCast(AValue, varUString);
        return DateTimeToStr(Real);
    }
    case TVariantKind::Currency: return CurrToStr(Currency::FromUnits(Integer));
    case TVariantKind::Decimal: return DecimalToStr(TVariantAccess::Decimal(AValue));
    case TVariantKind::Text: return TTextOf(AValue).Text();
    default: RaiseCast(AValue, varUString);
    }
}

WideString VarToWStr(const Variant& AValue) {
    return VarToStr(AValue);
}

const TByteText* VarByteText(const Variant& AValue) noexcept {
    return VarType(AValue) == varString ? &TVariantAccess::Narrow(AValue) : nullptr;
}

AnsiString VarToLStr(const Variant& AValue) {
    if (VarType(AValue) == varString) {
        const TByteText& Text = TVariantAccess::Narrow(AValue);
        if (RealCodePage(Text.CodePage()) == RealCodePage(cSystemCodePage)) {
            AnsiString Result;
            static_cast<TByteText&>(Result) = Text;
            return Result;
        }
    }
    return AnsiString(VarToStr(AValue));
}

UnicodeString VarToStrDef(const Variant& AValue, const UnicodeString& ADefault) {
    return VarIsNull(AValue) ? ADefault : VarToStr(AValue);
}

Ref<IInterface> VarToInterface(const Variant& AValue) {
    switch (VarType(AValue)) {
    case varEmpty: return nullptr;
    case varUnknown:
    case varDispatch: return TVariantAccess::Interface(AValue);
    default: RaiseCast(AValue, varUnknown);
    }
}

TObject* VarToObject(const Variant& AValue) {
    switch (VarType(AValue)) {
    case varEmpty: return nullptr;
    case varObject: return TVariantAccess::Object(AValue);
    default: RaiseCast(AValue, varObject);
    }
}

Variant VarAsType(const Variant& AValue, TVarType AType) {
    if (VarType(AValue) == AType || AType == varVariant)
        return AValue;
    switch (AType) {
    case varEmpty: return {};
    case varNull: return Variant::Null();
    case varShortInt: return ToInteger<std::int8_t>(AValue);
    case varByte: return ToInteger<std::uint8_t>(AValue);
    case varSmallint: return ToInteger<std::int16_t>(AValue);
    case varWord: return ToInteger<std::uint16_t>(AValue);
    case varInteger: return VarToInteger(AValue);
    case varLongWord: return ToInteger<std::uint32_t>(AValue);
    case varInt64: return VarToInt64(AValue);
    case varUInt64: return VarToUInt64(AValue);
    case varSingle: return ToSingle(AValue);
    case varDouble: return VarToReal(AValue);
    case varDate: return VarToDateTime(AValue);
    case varCurrency: return VarToCurrency(AValue);
    case varDecimal: return VarToDecimal(AValue);
    case varBoolean: return VarToBool(AValue);
    case varError: return Variant::Error(VarToInteger(AValue));
    case varUString: return VarToStr(AValue);
    case varOleStr: return VarToWStr(AValue);
    case varString: return VarToLStr(AValue);
    case varUnknown:
    case varDispatch: return ToInterface(AValue, AType);
    case varObject: return VarToObject(AValue);
    default: break;
    }
    if ((AType & varArray) == 0)
        RaiseCast(AValue, AType);
    return ToArray(AValue, AType);
}

bool VarIsClear(const Variant& AValue) noexcept {
    return VarIsEmpty(AValue) ||
        (KindOf(AValue) == TVariantKind::Address && TVariantAccess::Bits(AValue) == 0);
}

bool VarIsStr(const Variant& AValue) noexcept {
    return KindOf(AValue) == TVariantKind::Text;
}

bool VarIsOrdinal(const Variant& AValue) noexcept {
    const TVariantKind Kind = KindOf(AValue);
    return Kind == TVariantKind::Unsigned || (Kind == TVariantKind::Integer && VarType(AValue) != varError);
}

bool VarIsFloat(const Variant& AValue) noexcept {
    const TVariantKind Kind = KindOf(AValue);
    return detail::IsNumber(Kind) && Kind >= TVariantKind::Real && VarType(AValue) != varDate;
}

} // namespace qz
