#include "tests/common/support/linux/Tools.h"
#include <qz/common/uQzUUCode.h>

namespace qz {
namespace {

TEST(UUCodePeers, UuencodeAndUudecodeAgree) {
    QZ_NEED_TOOL("uuencode");
    const TToolFiles Files;
    constexpr std::size_t cCount = std::size(TToolFiles::cSizes);
    for (std::size_t I = 0; I < cCount; ++I)
        // uudecode wants a line end at the end of the text too.
        Files.Save("ours", I,
                   std::string(QzUUEncode(AnsiString(Files.Load("in", I)), u"name", 644).View()) + "\n");
    Files.Run(
        "for F in in*; do uuencode $F <$F >theirs${F#in} && uudecode -o back${F#in} ours${F#in} || exit 1; done");
    for (std::size_t I = 0; I < cCount; ++I) {
        EXPECT_TRUE(Files.Load("back", I) == Files.Load("in", I)) << I;
        if (TToolFiles::cSizes[I] == 0)
            continue; // a text without a data line is refused
        TMemoryStream Target;
        TFileStream Source(Files.Path("theirs", I), fmOpenRead);
        EXPECT_EQ(QzUUDecode(Source, Target).FileName, u"in" + UnicodeString(std::to_string(I)));
        EXPECT_TRUE(std::string_view(static_cast<const char*>(Target.Memory()), Target.Content().size()) ==
                    Files.Load("in", I))
            << I;
    }
}

} // namespace
} // namespace qz
