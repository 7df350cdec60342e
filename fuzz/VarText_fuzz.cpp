// A text in a variant, of any kind of string: without the word to raise, no conversion raises, and each agrees with the one
// that may.
#include <cmath>
#include <type_traits>

#include "fuzz/Fuzz.h"
#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>

namespace {

// Equal, or both no number.
template <class T> bool IsSame(T ALeft, T ARight) {
    if constexpr (std::is_integral_v<T>)
        return ALeft == ARight;
    else
        return ALeft == ARight ||
            (std::isnan(static_cast<double>(ALeft)) && std::isnan(static_cast<double>(ARight)));
}

// The default is no number that a text gives by chance in all functions.
template <class T, class TDefault>
void Check(T (*AConvert)(const qz::Variant&, TDefault, bool), const qz::Variant& AText, TDefault ADefault) {
    const T Quiet = AConvert(AText, ADefault, false);
    try {
        const T Loud = AConvert(AText, ADefault, true);
        Require(IsSame(Loud, Quiet));
        Require(IsSame(AConvert(qz::VarArrayGet(qz::VarArrayOf({AText}), 0), ADefault, true), Loud));
    } catch (const qz::EConvertError&) {
        Require(Quiet == static_cast<T>(ADefault));
    }
}

void CheckText(const qz::Variant& AText) {
    Check(qz::QzVarToShortint, AText, 77);
    Check(qz::QzVarToInt, AText, 77);
    Check(qz::QzVarToInt64, AText, 77);
    Check(qz::QzVarToLongword, AText, 77);
    Check(qz::QzVarToSingle, AText, 77.0F);
    Check(qz::QzVarToExtended, AText, qz::Extended(77));
    Check(qz::QzVarToDouble, AText, 77.0);
    Check(qz::QzVarToDate, AText, qz::TDateTime(77));
    Check(qz::QzVarToBool, AText, false);
    Require(qz::QzVarToStr(AText, u"", true) == qz::VarToStr(AText));
    for (const qz::TVarType Type :
         {qz::varInteger, qz::varDouble, qz::varCurrency, qz::varDecimal, qz::varDate}) {
        try {
            const qz::Variant Number = qz::VarAsType(AText, Type);
            if (Type != qz::varDate && Type != qz::varDouble)
                Require(qz::VarAsType(qz::VarToStr(Number), Type) == Number);
        } catch (const qz::EVariantError&) { // no such number
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const std::string_view Bytes = TextOf(AData, ASize);
    CheckText(qz::UnicodeString(Bytes));
    CheckText(qz::AnsiString(Bytes));
    CheckText(qz::WideString(qz::UnicodeString(Bytes)));
    return 0;
}
