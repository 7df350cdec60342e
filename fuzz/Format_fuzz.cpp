// Any pattern either writes its arguments or raises EConvertError; what it writes is bounded by the widths
// that a pattern may ask for.

#include "fuzz/Fuzz.h"
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/Format.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    constexpr std::size_t cMostOfOnePlace = 66000;
    const std::string_view Pattern = TextOf(AData, ASize);
    try {
        const qz::UnicodeString Text = qz::Format(
            Pattern, {1, -2.5, u"wide", "narrow", INT64_MIN, 'c', true, nullptr, 1e300, UINT64_MAX},
            qz::TFormatSettings::Neutral());
        if (Text.size() > ASize * cMostOfOnePlace)
            std::abort();
    } catch (const qz::EConvertError&) { // the pattern does not fit
    }
    return 0;
}
