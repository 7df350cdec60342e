#include "tests/common/support/linux/Tools.h"
#include <qz/common/uQzZLib.h>

namespace qz {
namespace {

constexpr std::size_t cCount = std::size(TToolFiles::cSizes);

void Unpack(const TToolFiles& AFiles, std::string_view AName, std::int32_t AWindowBits) {
    for (std::size_t I = 0; I < cCount; ++I) {
        TFileStream Source(AFiles.Path(AName, I), fmOpenRead);
        TMemoryStream Target;
        ZlDecompressStream(Source, Target, AWindowBits, false);
        EXPECT_TRUE(std::string_view(static_cast<const char*>(Target.Memory()), Target.Content().size()) ==
                    AFiles.Load("in", I))
            << AName << I;
    }
}

TEST(ZLibPeers, GzipWritesWhatIsRead) {
    QZ_NEED_TOOL("gzip");
    const TToolFiles Files;
    Files.Run("for F in in*; do gzip -c $F >gz${F#in} || exit 1; done");
    Unpack(Files, "gz", 15 + 16);
}

TEST(ZLibPeers, PythonReadsAndWritesTheSame) {
    QZ_NEED_TOOL("python3");
    const TToolFiles Files;
    for (std::size_t I = 0; I < cCount; ++I) {
        TFileStream Source(Files.Path("in", I), fmOpenRead), Target(Files.Path("ours", I), fmCreate);
        ZlCompressStream(Source, Target, I % 2 == 0 ? clMax : clFastest, true);
    }
    Files.Run("python3 -c '\n"
              "import zlib, sys\n"
              "for i in range(" +
              std::to_string(cCount) +
              "):\n"
              "    data = open(f\"in{i}\", \"rb\").read()\n"
              "    assert zlib.decompress(open(f\"ours{i}\", \"rb\").read()) == data\n"
              "    raw = zlib.compressobj(6, zlib.DEFLATED, -15)\n"
              "    open(f\"raw{i}\", \"wb\").write(raw.compress(data) + raw.flush())\n"
              "    open(f\"zlib{i}\", \"wb\").write(zlib.compress(data))'");
    Unpack(Files, "raw", -15);
    Unpack(Files, "zlib", 15);
}

} // namespace
} // namespace qz
