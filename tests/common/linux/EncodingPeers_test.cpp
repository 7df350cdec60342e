// Programs of the machine read what uQzUUCode and uQzZLib write, and the other way round.
#include "tests/common/support/linux/Tools.h"
#include <qz/common/uQzUUCode.h>
#include <qz/common/uQzZLib.h>

namespace qz {
namespace {

constexpr std::size_t cCount = std::size(TToolFiles::cSizes);

// Whether file number AIndex of that name becomes the input by its number.
template <class TDecode>
void Check(const TToolFiles& AFiles, const char* AName, std::size_t AIndex, const TDecode& ADecode) {
    TFileStream Source(AFiles.Path(AName, AIndex), fmOpenRead);
    TMemoryStream Target;
    ADecode(Source, Target);
    const std::string_view Decoded(static_cast<const char*>(Target.Memory()), Target.Content().size());
    EXPECT_TRUE(Decoded == AFiles.Load("in", AIndex)) << AName << AIndex;
}

TEST(EncodingPeers, SharutilsAgree) {
    QZ_NEED_TOOL("uuencode");
    const TToolFiles Files;
    for (std::size_t I = 0; I < cCount; ++I) // uudecode wants a line end after the last line too
        Files.Save("ours", I,
                   std::string(QzUUEncode(AnsiString(Files.Load("in", I)), u"f", 644).View()) + "\n");
    Files.Run("for F in in*; do uuencode f <$F >uu$F && uudecode -o out${F#in} ours${F#in} || exit 1; done");
    for (std::size_t I = 0; I < cCount; ++I) {
        EXPECT_TRUE(Files.Load("out", I) == Files.Load("in", I)) << I;
        if (TToolFiles::cSizes[I] > 0) // without a data line a text is refused
            Check(Files, "uuin", I, [](TStream& AText, TStream& ATarget) { QzUUDecode(AText, ATarget); });
    }
}

TEST(EncodingPeers, GzipAndPythonAgree) {
    QZ_NEED_TOOL("gzip");
    QZ_NEED_TOOL("python3");
    const TToolFiles Files;
    for (std::size_t I = 0; I < cCount; ++I) {
        TFileStream Source(Files.Path("in", I), fmOpenRead), Target(Files.Path("ours", I), fmCreate);
        ZlCompressStream(Source, Target, I % 2 == 0 ? clMax : clFastest, true);
    }
    Files.Run(
        "gzip -k in* && python3 -c 'import zlib; [open(f\"out{n}\", \"wb\").write(zlib.decompress(open(f\"ours{n}\", "
        "\"rb\").read())) for n in range(" +
        std::to_string(cCount) + ")]'");
    Files.Run("for F in in*.gz; do F=${F%.gz}; mv $F.gz gz${F#in}; done");
    for (std::size_t I = 0; I < cCount; ++I) {
        EXPECT_TRUE(Files.Load("out", I) == Files.Load("in", I)) << I;
        Check(Files, "gz", I,
              [](TStream& AData, TStream& ATarget) { ZlDecompressStream(AData, ATarget, 31, false); });
    }
}

} // namespace
} // namespace qz
