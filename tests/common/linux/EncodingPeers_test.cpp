// Programs of the machine read what the encodings write, and the other way round.
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"
#include <qz/common/uQzUUCode.h>
#include <qz/common/uQzZLib.h>
#include <qz/runtime/streams/Streams.h>

namespace qz {
namespace {

TEST(EncodingPeers, ReadAndWriteTheSame) {
    if (std::system("command -v uuencode gzip python3 >/dev/null") != 0)
        GTEST_SKIP() << "uuencode of sharutils, gzip or python3 is not installed";
    const platform::TTemporaryDirectory Directory;
    const auto Run = [&](const std::string& ACommand) {
        EXPECT_EQ(std::system(("cd " + ToUtf8(Directory.Path()) + " && " + ACommand).c_str()), 0);
    };
    std::mt19937 Random(11);
    for (const std::size_t Size : {1u, 2u, 3u, 4u, 44u, 45u, 46u, 90u, 1000u, 46080u, 46081u, 300'000u}) {
        std::string Bytes(Size, '\0');
        std::ranges::generate(Bytes, [&] { return static_cast<char>(Random() % (Size % 2 == 0 ? 256 : 4)); });
        TMemoryStream Input;
        Input.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Size));
        Input.SaveToFile(Directory / u"in");
        {
            TFileStream Text(Directory / u"uu", fmCreate), Packed(Directory / u"zlib", fmCreate);
            Input.SetPosition(0);
            QzUUEncode(Input, Text, u"name", 644);
            Text.WriteBuffer("\n", 1); // which uudecode wants after the last line too
            ZlCompressStream(Input, Packed, clMax, true);
        }
        Run("uudecode -o - uu | cmp - in && uuencode f <in >uu && gzip -kf in");
        Run("python3 -c 'import sys,zlib; sys.stdout.buffer.write(zlib.decompress(sys.stdin.buffer.read()))' <zlib | "
            "cmp - in");
        TFileStream Text(Directory / u"uu", fmOpenRead), Packed(Directory / u"in.gz", fmOpenRead);
        TMemoryStream Decoded, Unpacked;
        QzUUDecode(Text, Decoded);
        ZlDecompressStream(Packed, Unpacked, 15 + 16, false);
        EXPECT_TRUE(std::ranges::equal(Decoded.Content(), Input.Content())) << Size;
        EXPECT_TRUE(std::ranges::equal(Unpacked.Content(), Input.Content())) << Size;
    }
}

} // namespace
} // namespace qz
