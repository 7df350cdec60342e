#include <qz/runtime/values/Currency.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/SystemDecimal.h>

namespace qz {
QZ_REGISTER_TYPES(Currency);

constinit const TTypeInfo TTypeDescription<Currency>::Info =
    DescribeType<Currency>(tkFloat, u"Currency", u"System");

void Currency::RaiseRange() {
    throw ERangeError(u"The amount does not fit into a currency");
}

// By the shortest decimal number that reads back as AValue, as texts are.
bool Currency::TryFromDouble(double AValue, Currency& ACurrency) noexcept {
    TSysDecimal Decimal;
    return TSysDecimal::TryFromDouble(AValue, Decimal) && Decimal.TryToCurrency(ACurrency);
}

double Currency::LargeToDouble(std::int64_t AUnits) noexcept {
    return TSysDecimal::FromCurrency(FromUnits(AUnits)).ToDouble();
}

Currency::Currency(double AValue) {
    if (!TryFromDouble(AValue, *this))
        RaiseRange();
}

Currency operator+(Currency ALeft, Currency ARight) {
    std::int64_t Sum = 0;
    if (__builtin_add_overflow(ALeft.FUnits, ARight.FUnits, &Sum))
        Currency::RaiseRange();
    return Currency::FromUnits(Sum);
}

Currency operator-(Currency ALeft, Currency ARight) {
    std::int64_t Difference = 0;
    if (__builtin_sub_overflow(ALeft.FUnits, ARight.FUnits, &Difference))
        Currency::RaiseRange();
    return Currency::FromUnits(Difference);
}

UnicodeString CurrToStr(Currency AValue) {
    return CurrToStr(AValue, DefaultFormatSettings());
}

UnicodeString CurrToStr(Currency AValue, const TFormatSettings& ASettings) {
    TSysDecimal Decimal = TSysDecimal::FromCurrency(AValue);
    while (Decimal.Scale > 0 && Decimal.Low % 10 == 0) {
        Decimal.Low /= 10;
        --Decimal.Scale;
    }
    return DecimalToStr(Decimal, ASettings);
}

bool TryStrToCurr(const TStringArg& AText, Currency& AValue) {
    return TryStrToCurr(AText, AValue, DefaultFormatSettings());
}

bool TryStrToCurr(const TStringArg& AText, Currency& AValue, const TFormatSettings& ASettings) {
    AValue = Currency();
    TSysDecimal Decimal;
    return TryStrToDecimal(AText, Decimal, ASettings) && Decimal.TryToCurrency(AValue);
}

Currency StrToCurr(const TStringArg& AText) {
    return StrToCurr(AText, DefaultFormatSettings());
}

Currency StrToCurr(const TStringArg& AText, const TFormatSettings& ASettings) {
    Currency Result;
    if (!TryStrToCurr(AText, Result, ASettings))
        throw EConvertError(u"'%s' is not a valid currency value", {AText.View()});
    return Result;
}

} // namespace qz
