// QzRound gives what decimal rounding gives, apart from values that are too close to a half to tell.
#include <cmath>
#include <cstring>

#include "fuzz/Fuzz.h"
#include <qz/common/uQzSysUtils/Numbers.h>
#include <qz/runtime/text/FloatText.h>

namespace {

constexpr int cMostDigits = 6;
constexpr double cHighest = 1e6;

void CheckAgainstDecimals(double AValue, int ADigits) {
    const double Rounded = qz::QzRound(AValue, ADigits);
    const double Scale = std::pow(10.0, ADigits);
    const double Noise = 8 * std::nextafter(std::fabs(AValue) + 1, INFINITY) * 2.3e-16;
    Require(std::fabs(Rounded - AValue) <= 0.5 / Scale + Noise);
    const double Scaled = std::fabs(AValue) * Scale;
    const double FromHalf = std::fabs(Scaled - std::floor(Scaled) - 0.5);
    const auto& Neutral = qz::TFormatSettings::Neutral();
    const double Decimal =
        qz::StrToFloat(qz::FloatToStrF(AValue, qz::ffFixed, 18, ADigits, Neutral), Neutral);
    if (FromHalf > Noise * Scale)
        Require(std::fabs(Rounded - Decimal) <= Noise);
    else
        Require(std::fabs(Rounded - Decimal) <= 1 / Scale + Noise);
    Require(qz::QzRound(-AValue, ADigits) == -Rounded);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    double Value = 0;
    if (ASize < sizeof Value + 1)
        return 0;
    std::memcpy(&Value, AData, sizeof Value);
    const auto Digits = static_cast<std::int8_t>(AData[sizeof Value]);
    const double Any = qz::QzRound(Value, Digits);
    Require(std::isnan(Any) == std::isnan(Value));
    if (!std::isfinite(Value))
        return 0;
    if (Digits >= 0 && Digits <= cMostDigits && std::fabs(Value) <= cHighest)
        CheckAgainstDecimals(Value, Digits);
    // Any bytes give a value with few digits too, of which many lie on a half.
    std::int32_t Units = 0;
    std::memcpy(&Units, AData, sizeof Units);
    for (int I = 0; I <= cMostDigits; ++I)
        CheckAgainstDecimals(Units % 1000000 / 1000.0, I);
    return 0;
}
