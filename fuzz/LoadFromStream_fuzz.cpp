// Any file loads into a stream of any code page, by its mark or as it is labelled; and what is saved with a mark is loaded
// as the same text again.
#include <initializer_list>

#include "fuzz/Fuzz.h"
#include <qz/common/uQzClasses/QzStringStream.h>
#include <qz/runtime/objects/Exceptions.h>

namespace {

constexpr std::uint16_t cPages[] = {0, 932, 1200, 1201, 1252, 12000, 12001, 54936, 65001};

void TrySaved(const qz::TQzStringStream& AStream) {
    for (const std::uint16_t Page : std::initializer_list<std::uint16_t>{1200, 1201, 12000, 12001, 65001}) {
        qz::TQzMemoryStream Saved(64);
        AStream.SaveToStream(Saved, Page, true);
        qz::TQzStringStream Wide(65001, 16), Again(65001, 16);
        Wide.SetWString(AStream.WString());
        Again.LoadFromStream(&Saved, false, true, true, -1);
        // The mark of UTF-16 and a zero behind it are the mark of UTF-32.
        if (Page != 1200 || !AStream.WString().View().starts_with(u'\0'))
            Require(Wide.AsUTF8() == Again.AsUTF8());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    if (ASize < 2)
        return 0;
    qz::TQzMemoryStream File(const_cast<std::uint8_t*>(AData) + 2, ASize - 2);
    for (const std::uint16_t Page : cPages) {
        qz::TQzStringStream Stream(Page, 16);
        const int CodePage = (AData[0] & 1) != 0 ? -1 : cPages[(AData[0] >> 1) % std::size(cPages)];
        try {
            Stream.LoadFromStream(&File, false, true, (AData[1] & 1) != 0, CodePage);
        } catch (const qz::Exception&) {
            Require(Stream.Size() == 0);
        }
        TrySaved(Stream);
    }
    return 0;
}
