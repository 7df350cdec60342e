// Programs of the machine read what the encodings write, and the other way round.
#include <cstdlib>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"
#include <qz/common/uQzUUCode.h>
#include <qz/common/uQzZLib.h>
#include <qz/runtime/streams/Streams.h>

namespace qz {
namespace {

constexpr std::size_t cSizes[] = {1, 2, 3, 4, 44, 45, 46, 47, 89, 90, 91, 1000, 46080, 46081, 300'000};

class EncodingPeers : public testing::Test {
protected:
    // Random files in0, in1 ... in the directory, where commands run.
    EncodingPeers() {
        std::mt19937 Random(11);
        for (std::size_t I = 0; I < std::size(cSizes); ++I) {
            TFileStream File(Path("in", I), fmCreate);
            for (std::size_t Left = cSizes[I]; Left > 0; --Left)
                Inputs[I] += static_cast<char>(I % 2 == 0 ? Random() : Random() % 4);
            File.WriteBuffer(Inputs[I].data(), static_cast<std::int64_t>(Inputs[I].size()));
        }
    }
    UnicodeString Path(const std::string& AName, std::size_t AIndex) const {
        return UnicodeString(Directory / u"") + AName + std::to_string(AIndex);
    }
    bool Run(const std::string& ACommand) const {
        return std::system(("cd " + ToUtf8(Directory.Path()) + " && " + ACommand).c_str()) == 0;
    }
    // Whether each file of that name becomes the input by its number.
    void Read(const std::string& AName, const std::function<void(TStream&, TStream&)>& ADecode) const {
        for (std::size_t I = 0; I < std::size(cSizes); ++I) {
            TFileStream Source(Path(AName, I), fmOpenRead);
            TMemoryStream Target;
            ADecode(Source, Target);
            ASSERT_EQ(Target.Content().size(), cSizes[I]) << AName;
            EXPECT_EQ(std::memcmp(Target.Memory(), Inputs[I].data(), cSizes[I]), 0) << AName << I;
        }
    }

    platform::TTemporaryDirectory Directory;
    std::string Inputs[std::size(cSizes)];
};

TEST_F(EncodingPeers, Sharutils) {
    if (!Run("command -v uuencode >/dev/null"))
        GTEST_SKIP() << "uuencode is not installed";
    for (std::size_t I = 0; I < std::size(cSizes); ++I) {
        TFileStream Source(Path("in", I), fmOpenRead), Target(Path("ours", I), fmCreate);
        QzUUEncode(Source, Target, u"name", 644);
        Target.WriteBuffer("\n", 1); // which uudecode wants after the last line too
    }
    ASSERT_TRUE(
        Run("for N in $(seq 0 14); do uuencode f <in$N >uu$N && uudecode -o out$N ours$N || exit 1; done"));
    Read("uu", [](TStream& ASource, TStream& ATarget) { QzUUDecode(ASource, ATarget); });
    Read("out", [](TStream& ASource, TStream& ATarget) { ATarget.CopyRest(ASource); });
}

TEST_F(EncodingPeers, GzipAndPython) {
    if (!Run("command -v gzip python3 >/dev/null"))
        GTEST_SKIP() << "gzip or python3 is not installed";
    for (std::size_t I = 0; I < std::size(cSizes); ++I) {
        TFileStream Source(Path("in", I), fmOpenRead), Target(Path("ours", I), fmCreate);
        ZlCompressStream(Source, Target, I % 2 == 0 ? clMax : clFastest, true);
    }
    ASSERT_TRUE(
        Run("python3 -c 'import zlib; [open(f\"out{n}\", \"wb\").write(zlib.decompress(open(f\"ours{n}\", "
            "\"rb\").read())) for n in range(15)]' && for N in $(seq 0 14); do gzip -c in$N >gz$N; done"));
    Read("gz",
         [](TStream& ASource, TStream& ATarget) { ZlDecompressStream(ASource, ATarget, 15 + 16, false); });
    Read("out", [](TStream& ASource, TStream& ATarget) { ATarget.CopyRest(ASource); });
}

} // namespace
} // namespace qz
