// Bytes become Base64 of both alphabets and the same bytes again, also in lines, and cut at any place the
// first of them; any text decodes alike on every path of the machine.

#include "fuzz/Fuzz.h"
#include <qz/common/uQzNetEncoding.h>
#include <qz/runtime/text/detail/BinaryPaths.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::TBytes Bytes(std::span(AData, ASize));
    const auto Check = [&Bytes](const qz::TNetEncoding& AEncoding) {
        Require(AEncoding.DecodeStringToBytes(AEncoding.EncodeBytesToString(Bytes)) == Bytes);
    };
    Check(qz::TQzNetEncoding::GetBase64ExEncoding());
    Check(qz::TQzNetEncoding::GetBase64UrlEncoding());
    Check(qz::TBase64Encoding(ASize == 0 ? 76 : AData[0]));
    const qz::RawByteString Encoded = qz::detail::EncodeBinary(std::as_bytes(std::span(Bytes)), qz::beBase64);
    for (std::size_t Cut = 0; Cut < Encoded.size(); ++Cut) {
        const qz::TBytes Start = qz::Base64Bytes(Encoded.View().substr(0, Cut));
        Require(Start.size() <= ASize && Start == Bytes.Copy(0, Start.size()) &&
                Start.size() + 1 >= Cut / 4 * 3);
    }
    const qz::TBytes Plain = qz::Base64Bytes(TextOf(AData, ASize));
    for (const qz::detail::TBinaryPath* Path : qz::detail::BinaryPaths()) {
        qz::TBytes Decoded(qz::Base64Room(ASize));
        auto* Target = reinterpret_cast<std::byte*>(Decoded.data());
        Decoded.SetLength(
            static_cast<std::size_t>(Path->Base64ToBytes(TextOf(AData, ASize), Target) - Target));
        Require(Decoded == Plain);
    }
    return 0;
}
