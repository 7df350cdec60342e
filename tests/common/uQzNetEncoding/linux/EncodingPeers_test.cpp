// Base64 and the digests beside programs of the machine.
#include "tests/common/support/linux/Tools.h"
#include <qz/common/uQzBase64.h>
#include <qz/common/uQzMD5.h>
#include <qz/common/uQzNetEncoding.h>
#include <qz/common/uQzSha1.h>

namespace qz {
namespace {

TEST(EncodingPeers, Base64ToolAgrees) {
    QZ_NEED_TOOL("base64");
    const TToolFiles Files;
    constexpr std::size_t cCount = std::size(TToolFiles::cSizes);
    for (std::size_t I = 0; I < cCount; ++I)
        Files.Save("ours", I,
                   std::string(TQzNetEncoding::Base64(76, u"\n")->EncodeBytesToString(
                       Files.Load("in", I).data(), static_cast<std::int32_t>(TToolFiles::cSizes[I]))));
    Files.Run(
        "for F in in*; do base64 $F >theirs${F#in} && base64 -d ours${F#in} >back${F#in} || exit 1; done");
    for (std::size_t I = 0; I < cCount; ++I) {
        EXPECT_TRUE(Files.Load("back", I) == Files.Load("in", I)) << I;
        TMemoryStream Target;
        TFileStream Source(Files.Path("theirs", I), fmOpenRead);
        QzDecodeBase64(Source, Target);
        EXPECT_TRUE(std::string_view(static_cast<const char*>(Target.Memory()), Target.Content().size()) ==
                    Files.Load("in", I))
            << I;
    }
}

TEST(EncodingPeers, OpensslDigestsAgree) {
    QZ_NEED_TOOL("openssl");
    const TToolFiles Files;
    Files.Run(
        "for F in in*; do openssl dgst -sha1 -r $F >sha${F#in} && openssl dgst -md5 -r $F >md${F#in} || exit 1; "
        "done");
    for (std::size_t I = 0; I < std::size(TToolFiles::cSizes); ++I) {
        const auto Theirs = [&](std::string_view AName, std::size_t ADigits) {
            return UnicodeString(Files.Load(AName, I).substr(0, ADigits));
        };
        const auto Digits = [](const UnicodeString& AText) {
            const TQzHexEncoding& Hex = TQzNetEncoding::GetHexEncoding();
            return Hex.EncodeBytesToString(Hex.DecodeStringToBytes(AText));
        };
        EXPECT_EQ(MD5Hash(AnsiString(Files.Load("in", I))), Digits(Theirs("md", 32)));
        if (TToolFiles::cSizes[I] == 0)
            continue; // no digest of the empty message
        EXPECT_EQ(QzHashFile(Files.Path("in", I), beHexEncoded), Digits(Theirs("sha", 40)));
    }
}

} // namespace
} // namespace qz
