#include <qz/common/uQzTypes/VarTolerant.h>

#include <vector>

#include <qz/common/uQzTypes/KindConversions.h>
#include <qz/common/uQzTypes/TextValues.h>
#include <qz/common/uQzTypes/VarStrict.h>
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {
namespace {

// A conversion of text as a try, and as what raises when the try has failed.
template <class T> struct TFromText {
    bool (*Try)(const UnicodeString& AText, T& AValue);
    T (*Convert)(const UnicodeString& AText);
};

// What one function takes beside the unknown kind, and how. TWide is the type in which it reads numbers.
template <class TWide> struct TMember {
    TSet<TQzMainTypeKind> Kinds;
    TFromText<TWide> FromText;
    std::u16string_view Message;
};

template <class T> bool TryInt(const UnicodeString& AText, T& AValue) {
    std::int32_t Value = 0;
    const bool Result = TryStrToInt(AText, Value);
    AValue = Value;
    return Result;
}
template <class T> T ToInt(const UnicodeString& AText) {
    return StrToInt(AText);
}

TFormatSettings IsoSettings() {
    TFormatSettings Result = TFormatSettings::Create();
    Result.ShortDateFormat = u"yyyy-mm-dd";
    Result.DateSeparator = u'-';
    return Result;
}

bool TryDate(const UnicodeString& AText, double& AValue) {
    const bool IsIso = AText.Length() >= 10 && AText[4] == u'-' && AText[7] == u'-';
    TDateTime Date;
    const bool Result = IsIso ? TryStrToDateTime(AText, Date, IsoSettings()) : TryStrToDateTime(AText, Date);
    AValue = Date;
    return Result;
}

constexpr TFromText<std::int32_t> cIntText{TryInt, ToInt};
constexpr TFromText<std::int64_t> cLongwordText{TryInt, ToInt};
constexpr TFromText<std::int64_t> cInt64Text{
    [](const UnicodeString& AText, std::int64_t& AValue) { return TryStrToInt64(AText, AValue); },
    [](const UnicodeString& AText) { return StrToInt64(AText); }};
constexpr TFromText<double> cEitherFloatText{
    [](const UnicodeString& AText, double& AValue) { return QzTryStrToFloat(AText, AValue); },
    [](const UnicodeString& AText) { return QzStrToFloat(AText).Value; }};
constexpr TFromText<double> cFloatText{
    [](const UnicodeString& AText, double& AValue) { return TryStrToFloat(AText, AValue); },
    [](const UnicodeString& AText) { return StrToFloat(AText); }};
constexpr TFromText<double> cDateText{TryDate, [](const UnicodeString& AText) -> double {
                                          throw EConvertError(u"'%s' is not a valid date and time", {AText});
                                      }};

constexpr TSet<TQzMainTypeKind> cIntegers = {mtkInteger, mtkString, mtkBoolean};
constexpr TSet<TQzMainTypeKind> cFloats = {mtkInteger, mtkFloat, mtkString};
constexpr TSet<TQzMainTypeKind> cFloatsAndDates = {mtkInteger, mtkFloat, mtkString, mtkDateTime};

constexpr TMember<std::int32_t> cShortint{cIntegers, cIntText,
                                          u"The given value is not a valid shortint value!"};
constexpr TMember<std::int32_t> cSmallint{cIntegers, cIntText,
                                          u"The given value is not a valid smalling value!"};
constexpr TMember<std::int32_t> cLongInt{cIntegers, cIntText,
                                         u"The given value is not a valid LongInt value!"};
constexpr TMember<std::int64_t> cInt64{cIntegers, cInt64Text, u"The given value is not a valid Int64 value!"};
constexpr TMember<std::int32_t> cByte{cIntegers, cIntText, u"The given value is not a valid Byte value!"};
constexpr TMember<std::int32_t> cWord{cIntegers, cIntText, u"The given value is not a valid Word value!"};
constexpr TMember<std::int64_t> cLongword{cIntegers, cLongwordText,
                                          u"The given value is not a valid LongWord value!"};
constexpr TMember<double> cSingle{cFloats, cEitherFloatText, u"The given value is not a valid Single value!"};
constexpr TMember<double> cDouble{cFloatsAndDates, cEitherFloatText,
                                  u"The given value is not a valid Double value!"};
constexpr TMember<double> cExtended{cFloatsAndDates, cFloatText,
                                    u"The given value is not a valid Extended value!"};
constexpr TMember<double> cDate{cFloatsAndDates, cDateText, u"The given value is not a valid Date value!"};
constexpr std::u16string_view cBool = u"The given value is not a valid Boolean value!";
constexpr std::u16string_view cStr = u"The given value is not a valid String value!";
constexpr std::u16string_view cAStr = u"The given value is not a valid AnsiString value!";
constexpr std::u16string_view cWStr = u"The given value is not a valid WideString value!";
constexpr std::u16string_view cArray = u"The given array is not a to-string convertable value!";

TQzMainTypeKind MainKind(const Variant& AValue) noexcept {
    return TQzKindConversions::ToMainTypeKind(VarType(AValue));
}

// What AConvert gives; the default for any failure of it unless failures are to be raised.
template <class T, class TConvert> T Guarded(const T& ADefault, bool ARaise, TConvert AConvert) {
    if (ARaise)
        return AConvert();
    try {
        return AConvert();
    } catch (const std::exception&) {
        return ADefault;
    }
}

template <class T> T Refused(const T& ADefault, bool ARaise, std::u16string_view AMessage) {
    if (ARaise)
        throw EConvertError(AMessage);
    return ADefault;
}

template <class TWide> TWide Read(const Variant& AValue) {
    if constexpr (std::is_same_v<TWide, double>)
        return VarToReal(AValue);
    else if constexpr (sizeof(TWide) == 8)
        return VarToInt64(AValue);
    else
        return VarToInteger(AValue);
}

// Bad numbers in texts are common, so that they give the default without an exception.
template <class T, class TWide>
T FromText(const Variant& AValue, const T& ADefault, bool ARaise, const TFromText<TWide>& AFromText) {
    const UnicodeString Text = VarToStr(AValue);
    TWide Value{};
    if (AFromText.Try(Text, Value))
        return static_cast<T>(Value);
    return ARaise ? static_cast<T>(AFromText.Convert(Text)) : ADefault;
}

template <class T, class TDefault, class TWide>
T Number(const Variant& AValue, TDefault AUncutDefault, bool ARaise, const TMember<TWide>& AMember) {
    const T Default = static_cast<T>(AUncutDefault);
    return Guarded(Default, ARaise, [&]() -> T {
        const TQzMainTypeKind Kind = MainKind(AValue);
        if (Kind == mtkUnknown)
            return Default;
        if (!AMember.Kinds.Contains(Kind))
            return Refused(Default, ARaise, AMember.Message);
        if (Kind == mtkString)
            return FromText(AValue, Default, ARaise, AMember.FromText);
        if (Kind == mtkBoolean)
            return static_cast<T>(QzVarBool(AValue, false) ? 1 : 0);
        return static_cast<T>(Read<TWide>(AValue));
    });
}

void ToText(const Variant& AValue, UnicodeString& AText) {
    AText = VarToStr(AValue);
}
void ToText(const Variant& AValue, AnsiString& AText) {
    AText = VarToLStr(AValue);
}
void ToText(const Variant& AValue, WideString& AText) {
    AText = VarToWStr(AValue);
}

template <class T>
T Text(const Variant& AValue, const T& ADefault, bool ARaise, std::u16string_view AMessage) {
    return Guarded(ADefault, ARaise, [&]() -> T {
        T Result;
        switch (MainKind(AValue)) {
        case mtkUnknown: return ADefault;
        case mtkString: ToText(AValue, Result); return Result;
        case mtkInteger: return T(IntToStr(VarToInt64(AValue)));
        case mtkFloat: return T(FloatToStr(VarToReal(AValue)));
        case mtkBoolean: return T(BoolToStr(VarToBool(AValue), true));
        case mtkDateTime: return T(DateTimeToStr(VarToReal(AValue)));
        default: return Refused(ADefault, ARaise, AMessage);
        }
    });
}

// An array whose elements are being written.
struct TOpenArray {
    Variant Array;
    std::int64_t Next; // beyond the highest index at last
    int High;

    explicit TOpenArray(const Variant& AArray)
        : Array(AArray),
          Next(VarArrayLowBound(AArray)),
          High(VarArrayHighBound(AArray)) {}
};

// Arrays may lie in arrays to any depth.
UnicodeString Lines(const Variant& AArray, const UnicodeString& ADefault, bool ARaise) {
    UnicodeString Result;
    std::vector<TOpenArray> Open{TOpenArray(AArray)};
    while (!Open.empty()) {
        if (Open.back().Next > Open.back().High) {
            Open.pop_back();
        } else {
            const Variant Element = VarArrayGet(Open.back().Array, static_cast<int>(Open.back().Next++));
            const int Dimensions = VarArrayDimCount(Element);
            if (Dimensions == 1) {
                Open.emplace_back(Element);
                continue;
            }
            Result +=
                Dimensions > 1 ? Refused(ADefault, ARaise, cArray) : Text(Element, ADefault, ARaise, cStr);
        }
        if (!Open.empty())
            Result += u"\r\n";
    }
    return Result;
}

} // namespace

std::int8_t QzVarToShortint(const Variant& AValue, std::int32_t ADefault, bool ARaise) {
    return Number<std::int8_t>(AValue, ADefault, ARaise, cShortint);
}

std::int16_t QzVarToSmallint(const Variant& AValue, std::int32_t ADefault, bool ARaise) {
    return Number<std::int16_t>(AValue, ADefault, ARaise, cSmallint);
}

std::int32_t QzVarToLongInt(const Variant& AValue, std::int32_t ADefault, bool ARaise) {
    return Number<std::int32_t>(AValue, ADefault, ARaise, cLongInt);
}

std::int32_t QzVarToInt(const Variant& AValue, std::int32_t ADefault, bool ARaise) {
    return Number<std::int32_t>(AValue, ADefault, ARaise, cLongInt);
}

std::int64_t QzVarToInt64(const Variant& AValue, std::int32_t ADefault, bool ARaise) {
    return Number<std::int64_t>(AValue, ADefault, ARaise, cInt64);
}

std::uint8_t QzVarToByte(const Variant& AValue, std::int32_t ADefault, bool ARaise) {
    return Number<std::uint8_t>(AValue, ADefault, ARaise, cByte);
}

std::uint16_t QzVarToWord(const Variant& AValue, std::int32_t ADefault, bool ARaise) {
    return Number<std::uint16_t>(AValue, ADefault, ARaise, cWord);
}

std::uint32_t QzVarToLongword(const Variant& AValue, std::int32_t ADefault, bool ARaise) {
    return Number<std::uint32_t>(AValue, ADefault, ARaise, cLongword);
}

float QzVarToSingle(const Variant& AValue, float ADefault, bool ARaise) {
    return Number<float>(AValue, ADefault, ARaise, cSingle);
}

double QzVarToDouble(const Variant& AValue, double ADefault, bool ARaise) {
    return Number<double>(AValue, ADefault, ARaise, cDouble);
}

Extended QzVarToExtended(const Variant& AValue, Extended ADefault, bool ARaise) {
    return Number<Extended>(AValue, ADefault, ARaise, cExtended);
}

TDateTime QzVarToDate(const Variant& AValue, TDateTime ADefault, bool ARaise) {
    return Number<TDateTime>(AValue, ADefault, ARaise, cDate);
}

bool QzVarToBool(const Variant& AValue, bool ADefault, bool ARaise) {
    return Guarded(ADefault, ARaise, [&] {
        switch (MainKind(AValue)) {
        case mtkUnknown: return ADefault;
        case mtkInteger: return (VarToInteger(AValue) & 0xFF) != 0;
        case mtkString: return QzStrToBool(VarToStr(AValue));
        case mtkBoolean: return VarToBool(AValue);
        default: return Refused(ADefault, ARaise, cBool);
        }
    });
}

UnicodeString QzVarToStr(const Variant& AValue, const UnicodeString& ADefault, bool ARaise) {
    switch (VarArrayDimCount(AValue)) {
    case 0: return Text(AValue, ADefault, ARaise, cStr);
    case 1: return Guarded(ADefault, ARaise, [&] { return Lines(AValue, ADefault, ARaise); });
    default: return Refused(ADefault, ARaise, cArray);
    }
}

AnsiString QzVarToAStr(const Variant& AValue, const AnsiString& ADefault, bool ARaise) {
    return Text(AValue, ADefault, ARaise, cAStr);
}

WideString QzVarToWStr(const Variant& AValue, const WideString& ADefault, bool ARaise) {
    return Text(AValue, ADefault, ARaise, cWStr);
}

} // namespace qz
