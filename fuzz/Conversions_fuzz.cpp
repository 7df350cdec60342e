// Any bytes in any code page become text, in as many units as was said, and the text becomes bytes in any
// other, which say the same from then on.

#include "fuzz/Fuzz.h"
#include <qz/common/uQzTypes.h>

namespace {

constexpr std::uint16_t cPages[] = {0,     37,    866,   874,   932,   936,   949,   1200,  1201,  1252,
                                    1255,  1258,  1361,  10000, 12000, 12001, 20127, 20866, 20932, 28605,
                                    50220, 50225, 51949, 52936, 54936, 57002, 65000, 65001};

// The text in that page and back; nothing when the system cannot convert the page.
void TryPage(const qz::UnicodeString& AText, std::uint16_t APage) {
    const std::int32_t Length = AText.Length();
    try {
        const std::int32_t Size = qz::TQzEncoding::ConvertW(AText.data(), Length, nullptr, 0, APage);
        const qz::RawByteString Bytes = qz::TQzEncoding::ConvertW(AText, APage);
        Require(Bytes.Length() == Size);
        const qz::UnicodeString Back = qz::TQzEncoding::ConvertB(Bytes.data(), Bytes.size(), APage);
        if (qz::QzIsWideCodePage(APage) || APage == 65001)
            Require(qz::TQzEncoding::ConvertW(Back, APage) == Bytes);
    } catch (const qz::EOSError&) {}
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    if (ASize < 2)
        return 0;
    const std::uint16_t Source = cPages[AData[0] % std::size(cPages)];
    const std::uint16_t Target = cPages[AData[1] % std::size(cPages)];
    const void* Bytes = AData + 2;
    const auto Size = static_cast<std::int32_t>(ASize - 2);
    try {
        const qz::UnicodeString Text = qz::TQzEncoding::ConvertA(Bytes, Size, Source);
        TryPage(Text, Target);
        TryPage(Text, Source);
        const std::int32_t Units = qz::TQzEncoding::ConvertA(Bytes, Size, Source, nullptr, 0);
        qz::UnicodeString Strict = qz::UnicodeString::ForOverwrite(static_cast<std::size_t>(Units));
        Require(Units == 0 ||
                qz::TQzEncoding::ConvertA(Bytes, Size, Source, Strict.UniqueData(), Units) == Units);
        Require(Strict == Text);
    } catch (const qz::EOSError&) {}
    return 0;
}
