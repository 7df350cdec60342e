#include <qz/common/uQzTypes/VarStrict.h>

#include <limits>

#include <qz/common/uQzTypes/KindConversions.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/common/uQzTypes/TextValues.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {
namespace {

using TKinds = TSet<TQzTypeKind, 64>;

// What one function takes. Signed numbers of 32 bits may be bounded above.
struct TMember {
    TKinds Kinds;
    std::u16string_view Message;
    std::int32_t MaxLongInt = std::numeric_limits<std::int32_t>::max();
};

constexpr TKinds cBytes = {rtkByte, rtkShortInt};
constexpr TKinds cWords = cBytes + TKinds{rtkWord, rtkSmallInt};
constexpr TKinds cLongs = cWords + TKinds{rtkLongWord, rtkLongInt};
constexpr TKinds cSingles = cLongs + TKinds{rtkSingle};
constexpr TKinds cDoubles = cSingles + TKinds{rtkDouble};

constexpr TMember cShortint{cBytes, u"The given value is not a valid shortint value!"};
constexpr TMember cSmallint{cWords + TKinds{rtkLongInt}, u"The given value is not a valid smallint value!",
                            32767};
constexpr TMember cLongInt{cLongs, u"The given value is not a valid longword value!"};
constexpr TMember cInt64{cLongs + TKinds{rtkInt64}, u"The given value is not a valid int64 value!"};
constexpr TMember cByte{cBytes, u"The given value is not a valid byte value!"};
constexpr TMember cWord{cWords, u"The given value is not a valid word value!"};
constexpr TMember cSingle{cSingles, u"The given value is not a valid single value!"};
constexpr TMember cDouble{cDoubles, u"The given value is not a valid double value!"};
constexpr TMember cExtended{cDoubles + TKinds{rtkExtended},
                            u"The given value is not a valid extended value!"};
constexpr TMember cDate{cDoubles + TKinds{rtkDate, rtkTime, rtkDatetime},
                        u"The given value is not a valid datetime value!"};
constexpr std::u16string_view cString = u"The given value is not a valid string value!";
constexpr std::u16string_view cBoolean = u"The given value is not a valid boolean value!";

// Longword and Int64 do not fit 32 bits with a sign.
template <class T> T Read(const Variant& AValue) {
    if constexpr (!std::is_integral_v<T>)
        return static_cast<T>(VarToReal(AValue));
    else if constexpr (std::is_same_v<T, std::uint32_t> || sizeof(T) == 8)
        return static_cast<T>(VarToInt64(AValue));
    else
        return static_cast<T>(VarToInteger(AValue));
}

template <class T, class TDefault>
T Number(const Variant& AValue, TDefault ADefault, const TMember& AMember) {
    const TQzTypeKind Kind = TQzKindConversions::VarTypeKind(AValue);
    if (Kind == rtkUnknown)
        return static_cast<T>(ADefault);
    if (!AMember.Kinds.Contains(Kind) || (Kind == rtkLongInt && VarToInteger(AValue) > AMember.MaxLongInt))
        throw EConvertError(AMember.Message);
    return Read<T>(AValue);
}

// Whether there is a text; the default is wanted where there is none.
bool HasText(const Variant& AValue) {
    switch (TQzKindConversions::ToMainTypeKind(VarType(AValue))) {
    case mtkString: return true;
    case mtkUnknown: return false;
    default: throw EConvertError(cString);
    }
}

} // namespace

std::int8_t QzVarShortint(const Variant& AValue, std::int32_t ADefault) {
    return Number<std::int8_t>(AValue, ADefault, cShortint);
}

std::uint8_t QzVarByte(const Variant& AValue, std::int32_t ADefault) {
    return Number<std::uint8_t>(AValue, ADefault, cByte);
}

std::uint16_t QzVarWord(const Variant& AValue, std::int32_t ADefault) {
    return Number<std::uint16_t>(AValue, ADefault, cWord);
}

std::int16_t QzVarSmallint(const Variant& AValue, std::int32_t ADefault) {
    return Number<std::int16_t>(AValue, ADefault, cSmallint);
}

std::int32_t QzVarLongInt(const Variant& AValue, std::int32_t ADefault) {
    return Number<std::int32_t>(AValue, ADefault, cLongInt);
}

std::int32_t QzVarInt(const Variant& AValue, std::int32_t ADefault) {
    return Number<std::int32_t>(AValue, ADefault, cLongInt);
}

std::uint32_t QzVarLongword(const Variant& AValue, std::int32_t ADefault) {
    return Number<std::uint32_t>(AValue, ADefault, cLongInt);
}

std::int64_t QzVarInt64(const Variant& AValue, std::int32_t ADefault) {
    return Number<std::int64_t>(AValue, ADefault, cInt64);
}

float QzVarSingle(const Variant& AValue, float ADefault) {
    return Number<float>(AValue, ADefault, cSingle);
}

double QzVarDouble(const Variant& AValue, double ADefault) {
    return Number<double>(AValue, ADefault, cDouble);
}

Extended QzVarExtended(const Variant& AValue, Extended ADefault) {
    return Number<Extended>(AValue, ADefault, cExtended);
}

TDateTime QzVarDate(const Variant& AValue, TDateTime ADefault) {
    return Number<TDateTime>(AValue, ADefault, cDate);
}

UnicodeString QzVarStr(const Variant& AValue, const UnicodeString& ADefault) {
    return HasText(AValue) ? VarToStr(AValue) : ADefault;
}

AnsiString QzVarStrA(const Variant& AValue, const AnsiString& ADefault) {
    return HasText(AValue) ? AnsiString(TQzEncoding::ConvertW(VarToStr(AValue), cSystemCodePage)) : ADefault;
}

WideString QzVarStrW(const Variant& AValue, const WideString& ADefault) {
    return HasText(AValue) ? VarToWStr(AValue) : ADefault;
}

bool QzVarBool(const Variant& AValue, bool ADefault) {
    switch (TQzKindConversions::ToMainTypeKind(VarType(AValue))) {
    case mtkInteger: return AValue != 0;
    case mtkString: return QzStrToBool(VarToStr(AValue));
    case mtkBoolean: return VarToBool(AValue);
    case mtkUnknown: return ADefault;
    default: throw EConvertError(cBoolean);
    }
}

} // namespace qz
