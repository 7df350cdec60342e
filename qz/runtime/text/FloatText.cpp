#include <qz/runtime/text/FloatText.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/text/detail/Decimal.h>

namespace qz {
namespace {

using detail::TDecimal;

constexpr int cMaxPrecision = 18;
constexpr int cDefaultPrecision = 15;
constexpr int cLeastFixedExponent = -3; // below it the general form is scientific

// Where a currency stands: the marks of each format, with "1" for the amount and "$" for the currency.
constexpr std::array<std::u16string_view, 4> cCurrencyForms = {u"$1", u"1$", u"$ 1", u"1 $"};
constexpr std::array<std::u16string_view, 16> cNegativeForms = {
    u"($1)", u"-$1",  u"$-1",  u"$1-",  u"(1$)", u"-1$",  u"1-$",   u"1$-",
    u"-1 $", u"-$ 1", u"1 $-", u"$ 1-", u"$ -1", u"1- $", u"($ 1)", u"(1 $)"};

void AppendExponent(UnicodeString& AText, int AExponent, bool APlus, int ADigits) {
    AText += u'E';
    if (AExponent < 0)
        AText += u'-';
    else if (APlus)
        AText += u'+';
    std::array<char16_t, 8> Buffer;
    char16_t* End = Buffer.data() + Buffer.size();
    char16_t* Start =
        detail::WriteDecimal(static_cast<std::uint64_t>(AExponent < 0 ? -AExponent : AExponent), End);
    while (End - Start < ADigits)
        *--Start = u'0';
    AText.Append({Start, static_cast<std::size_t>(End - Start)});
}

// "d.ddd" with exactly AFraction digits after the point, then the exponent.
void AppendScientific(UnicodeString& AText, const TDecimal& AValue, int AFraction, bool APlus,
                      int AExponentDigits, const TFormatSettings& ASettings) {
    AText += AValue.Digit(0);
    if (AFraction > 0) {
        AText += ASettings.DecimalSeparator;
        for (int I = 1; I <= AFraction; ++I)
            AText += AValue.Digit(I);
    }
    AppendExponent(AText, AValue.Count == 0 ? 0 : AValue.Exponent - 1, APlus, AExponentDigits);
}

// The digits before the point, in groups of three where asked for, and AFraction digits after it.
void AppendFixed(UnicodeString& AText, const TDecimal& AValue, int AFraction, bool AGroups,
                 const TFormatSettings& ASettings) {
    const int Whole = std::max(AValue.Exponent, 1);
    const bool DoGroups = AGroups && ASettings.ThousandSeparator != u'\0';
    const int Length = Whole + (DoGroups ? (Whole - 1) / 3 : 0) + (AFraction > 0 ? 1 + AFraction : 0);
    char16_t* Here = AText.AppendRoom(static_cast<std::size_t>(Length));
    const int First = AValue.Exponent - Whole;
    for (int I = 0; I < Whole; ++I) {
        if (DoGroups && I > 0 && (Whole - I) % 3 == 0)
            *Here++ = ASettings.ThousandSeparator;
        *Here++ = AValue.Digit(First + I);
    }
    if (AFraction <= 0)
        return;
    *Here++ = ASettings.DecimalSeparator;
    for (int I = 0; I < AFraction; ++I)
        *Here++ = AValue.Digit(AValue.Exponent + I);
}

void AppendGeneral(UnicodeString& AText, const TDecimal& AValue, int APrecision, int ADigits,
                   const TFormatSettings& ASettings) {
    if (AValue.IsNegative)
        AText += u'-';
    if (AValue.Exponent > APrecision || AValue.Exponent < cLeastFixedExponent)
        AppendScientific(AText, AValue, AValue.Count - 1, false, std::min(ADigits, 4), ASettings);
    else
        AppendFixed(AText, AValue, std::max(AValue.Count - AValue.Exponent, 0), false, ASettings);
}

void AppendCurrency(UnicodeString& AText, const TDecimal& AValue, int ADigits,
                    const TFormatSettings& ASettings) {
    const std::u16string_view Form = AValue.IsNegative
        ? cNegativeForms[std::min<std::size_t>(ASettings.NegCurrFormat, cNegativeForms.size() - 1)]
        : cCurrencyForms[std::min<std::size_t>(ASettings.CurrencyFormat, cCurrencyForms.size() - 1)];
    for (const char16_t Mark : Form) {
        if (Mark == u'1')
            AppendFixed(AText, AValue, ADigits, true, ASettings);
        else if (Mark == u'$')
            AText += ASettings.CurrencyString;
        else
            AText += Mark;
    }
}

bool AppendSpecial(UnicodeString& AText, const TDecimal& AValue) {
    if (AValue.Kind == TDecimal::TKind::Finite)
        return false;
    if (AValue.Kind == TDecimal::TKind::NotANumber)
        AText += u"NAN";
    else
        AText += AValue.IsNegative ? u"-INF" : u"INF";
    return true;
}

// Whether a number that from_chars finds out of range is too large, and not too small: by the place of its
// first digit that is not zero, and its exponent.
bool IsTooLarge(std::string_view AText) noexcept {
    const std::size_t Mark = std::min(AText.find_first_of("eE"), AText.size());
    const std::string_view Digits = AText.substr(0, Mark);
    const auto Point = static_cast<std::int64_t>(std::min(Digits.find('.'), Digits.size()));
    const std::size_t Found = Digits.find_first_of("123456789");
    if (Found == std::string_view::npos)
        return false;
    std::int64_t Exponent = 0;
    if (Mark < AText.size()) {
        std::string_view Tail = AText.substr(Mark + 1);
        if (Tail.starts_with('+'))
            Tail.remove_prefix(1);
        if (std::from_chars(Tail.data(), Tail.data() + Tail.size(), Exponent).ec ==
            std::errc::result_out_of_range)
            return !Tail.starts_with('-');
    }
    return Exponent > static_cast<std::int64_t>(Found) - Point;
}

// A text in the form that std::from_chars reads; allocates only if it is long.
class TPlainNumber {
public:
    // Empty when a character fits no number.
    TPlainNumber(std::u16string_view AText, char16_t ADecimalSeparator) {
        if (AText.size() > FRoom.size())
            FLong.resize(AText.size());
        char* const Start = FLong.empty() ? FRoom.data() : FLong.data();
        char* Place = Start;
        for (const char16_t Char : AText) {
            const bool IsDigit = Char >= u'0' && Char <= u'9';
            if (!IsDigit && Char != ADecimalSeparator && Char != u'e' && Char != u'E' && Char != u'-' &&
                Char != u'+')
                return;
            *Place++ = Char == ADecimalSeparator ? '.' : static_cast<char>(Char);
        }
        FText = {Start, AText.size()};
    }
    TPlainNumber(const TPlainNumber&) = delete;
    TPlainNumber& operator=(const TPlainNumber&) = delete;

    std::string_view Text() const noexcept { return FText; }

private:
    std::array<char, 64> FRoom;
    std::string FLong;
    std::string_view FText;
};

// Nothing but "INF" and "NAN" with a sign has such a length and such letters.
bool ReadSpecial(std::u16string_view AText, double& AValue) noexcept {
    if (AText.size() < 3 || AText.size() > 4 || AText.back() < u'A')
        return false;
    const bool IsNegative = AText.starts_with(u'-');
    if (SameText(AText, u"NAN"))
        AValue = std::numeric_limits<double>::quiet_NaN();
    else if (SameText(IsNegative || AText.starts_with(u'+') ? AText.substr(1) : AText, u"INF"))
        AValue =
            IsNegative ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
    else
        return false;
    return true;
}

} // namespace

void detail::AppendFloat(UnicodeString& AText, double AValue, TFloatFormat AFormat, int APrecision,
                         int ADigits, const TFormatSettings& ASettings) {
    const int Precision = std::clamp(APrecision, 1, cMaxPrecision);
    const int Digits = std::clamp(ADigits, 0, cMaxPrecision);
    TDecimal Value(AValue);
    if (AppendSpecial(AText, Value))
        return;
    const bool IsTooLong = Value.Exponent > Precision;
    const bool IsByPoint =
        AFormat != ffGeneral && AFormat != ffExponent && Value.Exponent + Digits < Precision;
    if (IsByPoint)
        Value.Round(Value.Exponent + Digits);
    else
        Value.RoundNearest(AValue, Precision);
    if (AFormat == ffGeneral || (AFormat != ffExponent && IsTooLong))
        return AppendGeneral(AText, Value, Precision, AFormat == ffGeneral ? Digits : 0, ASettings);
    if (AFormat == ffExponent) {
        if (Value.IsNegative)
            AText += u'-';
        return AppendScientific(AText, Value, Precision - 1, true, std::min(Digits, 4), ASettings);
    }
    if (AFormat == ffCurrency)
        return AppendCurrency(AText, Value, Digits, ASettings);
    if (Value.IsNegative)
        AText += u'-';
    AppendFixed(AText, Value, Digits, AFormat == ffNumber, ASettings);
}

UnicodeString FloatToStr(double AValue) {
    return FloatToStr(AValue, DefaultFormatSettings());
}

UnicodeString FloatToStr(double AValue, const TFormatSettings& ASettings) {
    return FloatToStrF(AValue, ffGeneral, cDefaultPrecision, 0, ASettings);
}

UnicodeString FloatToStrF(double AValue, TFloatFormat AFormat, int APrecision, int ADigits) {
    return FloatToStrF(AValue, AFormat, APrecision, ADigits, DefaultFormatSettings());
}

UnicodeString FloatToStrF(double AValue, TFloatFormat AFormat, int APrecision, int ADigits,
                          const TFormatSettings& ASettings) {
    UnicodeString Result;
    detail::AppendFloat(Result, AValue, AFormat, APrecision, ADigits, ASettings);
    return Result;
}

bool TryStrToFloat(const TStringArg& AText, double& AValue) {
    return TryStrToFloat(AText, AValue, DefaultFormatSettings());
}

bool TryStrToFloat(const TStringArg& AText, double& AValue, const TFormatSettings& ASettings) {
    AValue = 0;
    const std::u16string_view Trimmed = TrimView(AText);
    if (ReadSpecial(Trimmed, AValue))
        return true;
    const TPlainNumber Plain(Trimmed, ASettings.DecimalSeparator);
    std::string_view Number = Plain.Text();
    if (Number.starts_with('+') && !Number.starts_with("+-"))
        Number.remove_prefix(1);
    const char* End = Number.data() + Number.size();
    double Value = 0;
    const auto [Stop, Error] = std::from_chars(Number.data(), End, Value);
    if (Number.empty() || Stop != End)
        return false;
    if (Error == std::errc::result_out_of_range)
        return !IsTooLarge(Number);
    if (Error != std::errc())
        return false;
    AValue = Value;
    return true;
}

double StrToFloat(const TStringArg& AText) {
    return StrToFloat(AText, DefaultFormatSettings());
}

double StrToFloat(const TStringArg& AText, const TFormatSettings& ASettings) {
    double Value;
    if (!TryStrToFloat(AText, Value, ASettings))
        throw EConvertError(u"'%s' is not a valid floating point value", {AText.View()});
    return Value;
}

double StrToFloatDef(const TStringArg& AText, double ADefault) {
    return StrToFloatDef(AText, ADefault, DefaultFormatSettings());
}

double StrToFloatDef(const TStringArg& AText, double ADefault, const TFormatSettings& ASettings) {
    double Value;
    return TryStrToFloat(AText, Value, ASettings) ? Value : ADefault;
}

} // namespace qz
