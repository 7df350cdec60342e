// Text that is read as a number is written so that it reads back as the same one; any pattern writes any
// number.
#include <cmath>
#include <cstring>

#include "fuzz/Fuzz.h"
#include <qz/runtime/text/FloatPattern.h>
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>

namespace {

void CheckFloat(double AValue) {
    const qz::TFormatSettings& Neutral = qz::TFormatSettings::Neutral();
    for (const qz::TFloatFormat Form :
         {qz::ffGeneral, qz::ffExponent, qz::ffFixed, qz::ffNumber, qz::ffCurrency})
        Require(!qz::FloatToStrF(AValue, Form, 7, 3, Neutral).IsEmpty());
    double Same;
    Require(qz::TryStrToFloat(qz::FloatToStrF(AValue, qz::ffGeneral, 17, 0, Neutral), Same, Neutral));
    Require(Same == AValue || std::isnan(AValue));
    Require(qz::TryStrToFloat(qz::FloatToStrF(AValue, qz::ffExponent, 17, 3, Neutral), Same, Neutral));
    Require(Same == AValue || std::isnan(AValue));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::UnicodeString Text = TextOf(AData, ASize);
    std::int64_t Integer;
    std::int64_t SameInteger;
    if (qz::TryStrToInt64(Text, Integer))
        Require(qz::TryStrToInt64(qz::IntToStr(Integer), SameInteger) && SameInteger == Integer);
    std::int32_t Narrow;
    if (qz::TryStrToInt(Text, Narrow))
        Require(qz::TryStrToInt64(Text, Integer) && static_cast<std::int32_t>(Integer) == Narrow);
    double Float;
    if (qz::TryStrToFloat(Text, Float, qz::TFormatSettings::Neutral()))
        CheckFloat(Float);
    if (ASize >= sizeof Float) {
        std::memcpy(&Float, AData, sizeof Float);
        CheckFloat(Float);
        qz::FormatFloat(Text.View().substr(Text.size() / 2), Float, qz::TFormatSettings::Neutral());
    }
    qz::FormatFloat(Text, -1234.5, qz::TFormatSettings::Neutral());
    return 0;
}
