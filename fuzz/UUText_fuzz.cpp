// Lines of any text are decoded or refused, by bytes as by a list; any bytes become a text that gives them
// back.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzUUCode.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/MemoryStream.h>

template <class TSource> std::string Decoded(const TSource& ASource) {
    qz::TMemoryStream Target;
    try {
        qz::QzUUDecode(ASource, Target);
    } catch (const qz::Exception&) {}
    return {static_cast<const char*>(Target.Memory()), Target.Content().size()};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::AnsiString Text(TextOf(AData, ASize), qz::cUtf8CodePage);
    qz::TStringList Lines;
    Lines.SetText(TextOf(AData, ASize));
    Require(Decoded(Text) == Decoded<qz::TStrings>(Lines));
    Require(Decoded(qz::QzUUEncode(Text, u"name", 1)) == Text.View());
    return 0;
}
