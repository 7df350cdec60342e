// A value record that reads a text gives a text that it reads as the same value; one that does not stays
// null.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzXSTypes.h>

namespace {

template <class R> void CheckText(const qz::UnicodeString& AText) {
    R Value, Same;
    try {
        Value.FromString(AText);
    } catch (const qz::EConvertError&) {
        Require(Value.IsNull());
        return;
    }
    Require(Value.IsNull() == AText.IsEmpty());
    if (Value.IsNull() || !(Value.FValue <= Value.FValue)) // not a number
        return;
    Same.FromString(Value.ToString());
    Require(Same.ToString() == Value.ToString());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::UnicodeString Text = TextOf(AData, ASize);
    CheckText<qz::TXsInteger<std::int8_t>>(Text);
    CheckText<qz::TXsInteger<std::int64_t>>(Text);
    CheckText<qz::TXsRational<double>>(Text);
    CheckText<qz::TXsBoolean>(Text);
    return 0;
}
