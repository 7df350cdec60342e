// A text either ends in a number that can be counted on, or raises EConvertError; the number grows by the step.
#include <cstring>

#include "fuzz/Fuzz.h"
#include <qz/common/uQzSysUtils/Numbers.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/NumberText.h>

namespace {

std::u16string_view DigitsOf(std::u16string_view AText) {
    return AText.substr(AText.find_last_not_of(u"0123456789") + 1);
}

void CheckNumber(std::u16string_view AText, std::int32_t AStep, std::u16string_view AResult) {
    const std::size_t Prefix = AText.size() - DigitsOf(AText).size();
    std::int64_t Old = 0, New = 0;
    Require(qz::TryStrToInt64(AText.substr(Prefix), Old));
    Require(AResult.size() >= AText.size() && AResult.substr(0, Prefix) == AText.substr(0, Prefix));
    // A negative number stands behind the zeros that fill it up.
    std::u16string_view Number = AResult.substr(Prefix);
    if (const std::size_t Sign = Number.find(u'-'); Sign != std::u16string_view::npos) {
        Require(Number.substr(0, Sign).find_first_not_of(u'0') == std::u16string_view::npos);
        Number.remove_prefix(Sign);
    }
    Require(qz::TryStrToInt64(Number, New) && New - AStep == Old);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    std::int32_t Step = 0;
    if (ASize < sizeof Step)
        return 0;
    std::memcpy(&Step, AData, sizeof Step);
    const qz::UnicodeString Text(
        std::string_view(reinterpret_cast<const char*>(AData) + sizeof Step, ASize - sizeof Step));
    try {
        const qz::UnicodeString Result = qz::QzStringIncrement(Text, Step);
        if (qz::Trim(Text).empty())
            Require(Result.Length() == 9 && Result.View().ends_with(u"00001"));
        else
            CheckNumber(Text, Step, Result);
    } catch (const qz::EConvertError&) {
        std::int64_t Number = 0;
        Require(!qz::TryStrToInt64(DigitsOf(Text), Number) || Number > INT64_MAX - INT64_C(0x80000000));
    }
    return 0;
}
