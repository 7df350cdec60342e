// Lines of any text are decoded or refused, by bytes as by a list; any bytes become a text that gives them back.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzUUCode.h>
#include <qz/runtime/base/Utf.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/MemoryStream.h>

namespace {

template <class TDecode> std::string Decoded(const TDecode& ADecode) {
    qz::TMemoryStream Target;
    try {
        ADecode(Target);
    } catch (const qz::Exception&) {}
    return {static_cast<const char*>(Target.Memory()), Target.Content().size()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::AnsiString Text(TextOf(AData, ASize));
    qz::TStringList Lines;
    Lines.SetText(TextOf(AData, ASize));
    const std::string Bytes = Decoded([&](qz::TStream& ATarget) { qz::QzUUDecode(Text, ATarget); });
    const std::string Listed = Decoded([&](qz::TStream& ATarget) { qz::QzUUDecode(Lines, ATarget); });
    Require(Bytes == Listed || !qz::IsAscii(Text.View()));
    const qz::AnsiString Encoded = qz::QzUUEncode(Text, u"name", 1);
    Require(Decoded([&](qz::TStream& ATarget) { qz::QzUUDecode(Encoded, ATarget); }) == Text.View());
    return 0;
}
