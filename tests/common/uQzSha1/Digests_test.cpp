#include <qz/common/uQzMD5.h>
#include <qz/common/uQzSha1.h>

#include <gtest/gtest.h>

#include <random>

#include "tests/support/Message.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/common/uQzSha1/detail/Sha1Blocks.h>
#include <qz/runtime/streams/MemoryStream.h>

namespace qz {
namespace {

struct TVector {
    std::string Text;
    std::u16string_view Digest;
};

// FIPS 180-2, appendix A, and RFC 3174, section 7.3.
const TVector cSha1[] = {
    {"abc", u"A9993E364706816ABA3E25717850C26C9CD0D89D"},
    {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq", u"84983E441C3BD26EBAAE4AA1F95129E5E54670F1"},
    {"a", u"86F7E437FAA5A7FCE15D1DDCB9EAEAEA377667B8"},
    {std::string(1'000'000, 'a'), u"34AA973CD4C4DAA4F61EEB2BDBAD27316534016F"},
};

// RFC 1321, appendix A.5.
const TVector cMD5[] = {
    {"", u"D41D8CD98F00B204E9800998ECF8427E"},
    {"a", u"0CC175B9C0F1B6A831C399E269772661"},
    {"abc", u"900150983CD24FB0D6963F7D28E17F72"},
    {"message digest", u"F96B697D7CB7938D525A2F31AAF161D0"},
    {"abcdefghijklmnopqrstuvwxyz", u"C3FCD3D76192E4007DFB496CCA67E13B"},
    {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789", u"D174AB98D277D9F5A5611C2C9F419D9F"},
    {"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
     u"57EDF4A22BE3C955AC49DA2E2107B67A"},
};

// Gives seven bytes at a time.
class TSlowStream : public TMemoryStream {
public:
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override {
        return TMemoryStream::Read(ABuffer, std::min(ACount, 7));
    }
};

TEST(Sha1, PublishedVectors) {
    for (const TVector& Vector : cSha1) {
        EXPECT_EQ(QzHashString(Vector.Text, beHexEncoded), Vector.Digest);
        EXPECT_EQ(QzHashStringA(RawByteString(Vector.Text), beHexEncoded), Vector.Digest);
    }
    EXPECT_EQ(QzHashBuffer("abc", 3)[0], 0xA9);
    EXPECT_EQ(QzHashString(u"abc", beBase64), u"qZk+NkcGgWq6PiVxeFDCbJzQ2J0=");
    EXPECT_EQ(QzHashString(u"abc", beBase64Url), u"qZk-NkcGgWq6PiVxeFDCbJzQ2J0");
}

TEST(Sha1, EncodingsOfText) {
    EXPECT_EQ(QzHashString(u"Zo\u00EB", beHexEncoded), QzHashBuffer("Zo\xC3\xAB", 4, beHexEncoded));
    EXPECT_EQ(QzHashStringW(u"Zo\u00EB", beHexEncoded), QzHashBuffer("Z\0o\0\xEB\0", 6, beHexEncoded));
    EXPECT_TRUE(QzHashString(u"abc", static_cast<TQzBinEncoding>(3)).IsEmpty());
}

TEST(Sha1, EmptyInputIsNotTheEmptyMessage) {
    TSHA1Digest Digest = {1};
    QzHashString(u"", Digest);
    EXPECT_EQ(Digest, TSHA1Digest());
    EXPECT_EQ(QzHashBuffer(nullptr, 0), TSHA1Digest());
    EXPECT_EQ(QzHashBuffer("abc", -1), TSHA1Digest());
    EXPECT_TRUE(QzHashBuffer(nullptr, 0, beBase64).IsEmpty());
    EXPECT_TRUE(QzHashStringA(RawByteString(), beHexEncoded).IsEmpty());
    EXPECT_TRUE(QzHashStringW(u"", beHexEncoded).IsEmpty());
    TMemoryStream Empty;
    EXPECT_EQ(QzHashStream(Empty, true), u"AAAAAAAAAAAAAAAAAAAAAAAAAAA=");
}

// Around the size of a piece that is read, in small reads, from the start and from the position.
TEST(Sha1, StreamsAndFiles) {
    const platform::TTemporaryDirectory Directory;
    for (const std::size_t Size : {0u, 1u, 65535u, 65536u, 65537u, 131072u, 200001u}) {
        std::string Text(Size, 'x');
        for (std::size_t I = 0; I < Size; ++I)
            Text[I] = static_cast<char>(I * I >> 7);
        TSlowStream Stream;
        Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Size));
        const auto Expected = [&](std::size_t AFrom, TQzBinEncoding AEncoding) {
            const UnicodeString Result = QzHashStringA(RawByteString(Text.substr(AFrom)), AEncoding);
            return Result.IsEmpty() ? UnicodeString(u"AAAAAAAAAAAAAAAAAAAAAAAAAAA=") : Result;
        };
        EXPECT_EQ(QzHashStream(Stream, true), Expected(0, beBase64));
        Stream.SetPosition(static_cast<std::int64_t>(Size / 3));
        EXPECT_EQ(QzHashStream(Stream, false), Expected(Size / 3, beBase64));
        Stream.SaveToFile(Directory / u"file");
        EXPECT_EQ(QzHashFile(Directory / u"file", beHexEncoded),
                  Size == 0 ? UnicodeString(40, u'0') : Expected(0, beHexEncoded));
    }
    EXPECT_THROW(QzHashFile(Directory / u"none", beBase64), EFOpenError);
}

TEST(Sha1, EachPathGivesTheSameState) {
    std::mt19937 Random(1);
    std::vector<std::byte> Bytes(64 * 5);
    for (std::byte& Byte : Bytes)
        Byte = static_cast<std::byte>(Random());
    detail::TSha1State Expected = detail::cSha1Start;
    detail::cSha1PortablePath.Blocks(Expected, Bytes.data(), 5);
    for (const detail::TSha1Path* Path : detail::Sha1Paths()) {
        detail::TSha1State State = detail::cSha1Start;
        Path->Blocks(State, Bytes.data(), 2);
        Path->Blocks(State, Bytes.data() + 128, 3);
        EXPECT_EQ(State, Expected) << Path->Name;
    }
}

TEST(MD5, PublishedVectorsInPieces) {
    for (const TVector& Vector : cMD5) {
        EXPECT_EQ(MD5Hash(Vector.Text), Vector.Digest);
        EXPECT_EQ(MD5Hash(AnsiString(Vector.Text)), Vector.Digest);
    }
    EXPECT_EQ(MD5Hash("abc", -1), MD5Hash("", 0));
    const std::string Text(300, 'q');
    for (std::size_t Size = 0; Size < Text.size(); ++Size) {
        const TMD5Digest Expected = MD5Hash(Text.data(), static_cast<std::int32_t>(Size));
        for (const std::size_t Piece : {1u, 13u, 63u, 64u, 65u, 200u}) {
            TMD5Context Context;
            TMD5Digest Digest;
            MD5Init(Context);
            for (std::size_t Done = 0; Done < Size; Done += Piece)
                MD5Update(Context, Text.data() + Done,
                          static_cast<std::uint32_t>(std::min(Piece, Size - Done)));
            MD5Final(Context, Digest);
            ASSERT_EQ(Digest, Expected) << Size << " by " << Piece;
            ASSERT_TRUE(Context.State == TMD5State() && Context.Count == TMD5Count() &&
                        Context.Buffer == TMD5Buffer());
        }
    }
}

} // namespace
} // namespace qz
