// Any text is decoded or refused; what is encoded, percent signs apart, is decoded to the same text.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzNetEncoding/UrlEncoding.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::UnicodeString Text = TextOf(AData, ASize);
    const qz::TURLEncoding Url;
    try {
        Require(Url.Decode(Text).size() <= Text.size());
    } catch (const qz::EConvertError&) {
    } catch (const qz::EAbort&) {}
    const qz::UnicodeString Plain = qz::StringReplace(Text, u"%", u"", {qz::rfReplaceAll});
    Require(Url.Decode(Url.Encode(Plain)) == Plain);
    return 0;
}
