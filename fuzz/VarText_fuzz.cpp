// A text in a variant, of any kind of string: without the word to raise, no conversion raises, and each agrees with the one
// that may.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/values/VariantConvert.h>

namespace {

// The default is no number that a text gives by chance in all functions.
template <class T, class TDefault>
void Check(T (*AConvert)(const qz::Variant&, TDefault, bool), const qz::Variant& AText, TDefault ADefault) {
    const T Quiet = AConvert(AText, ADefault, false);
    try {
        const T Loud = AConvert(AText, ADefault, true);
        Require(!(Loud < Quiet || Quiet < Loud)); // the same, or both no number
    } catch (const qz::EConvertError&) {
        Require(Quiet == static_cast<T>(ADefault));
    }
}

void CheckText(const qz::Variant& AText) {
    Check(qz::QzVarToInt, AText, 77);
    Check(qz::QzVarToInt64, AText, 77);
    Check(qz::QzVarToExtended, AText, qz::Extended(77));
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
