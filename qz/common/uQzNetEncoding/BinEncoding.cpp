#include <qz/common/uQzNetEncoding/BinEncoding.h>

#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/BinaryText.h>
#include <qz/runtime/text/Utf8Form.h>

namespace qz {
namespace {

constexpr TEnumItem cEncodings[] = {{u"beBase64", 0}, {u"beHexEncoded", 1}, {u"beBase64Url", 2}};

bool IsHex(TQzBinEncoding AEncoding) {
    if (AEncoding > beBase64Url)
        throw Exception(SNetEncodingNotSupported);
    return AEncoding == beHexEncoded;
}

TBase64Alphabet AlphabetOf(TQzBinEncoding AEncoding) noexcept {
    return AEncoding == beBase64Url ? TBase64Alphabet::Url : TBase64Alphabet::Standard;
}

// Room for the bytes of a text.
std::size_t RoomOf(std::string_view AText, bool AIsHex) {
    if (AIsHex)
        return AText.size() / 2;
    if (AText.size() % 4 == 1)
        throw Exception(SInvalidBase64Data);
    return Base64Room(AText.size());
}

// The number of bytes.
std::size_t Decode(std::string_view AText, bool AIsHex, void* ATarget) noexcept {
    auto* Target = static_cast<std::byte*>(ATarget);
    return static_cast<std::size_t>((AIsHex ? HexToBytes(AText, Target) : Base64ToBytes(AText, Target)) -
                                    Target);
}

} // namespace

constinit const TTypeInfo TTypeDescription<TQzBinEncoding>::Info =
    DescribeEnum<TQzBinEncoding>(u"TQzBinEncoding", u"uQzNetEncoding", cEncodings);

RawByteString detail::EncodeBinary(std::span<const std::byte> ABytes, TQzBinEncoding AEncoding) {
    const bool AreDigits = IsHex(AEncoding);
    if (ABytes.empty())
        return {};
    const TBase64Alphabet Alphabet = AlphabetOf(AEncoding);
    auto Result =
        RawByteString::ForOverwrite(AreDigits ? 2 * ABytes.size() : Base64Length(ABytes.size(), Alphabet));
    if (AreDigits)
        BytesToHex(ABytes, Result.UniqueData());
    else
        BytesToBase64(ABytes, Alphabet, Result.UniqueData());
    return Result;
}

UnicodeString detail::EncodeBinaryText(std::span<const std::byte> ABytes, TQzBinEncoding AEncoding) {
    return IsHex(AEncoding) ? HexText(ABytes) : Base64Text(ABytes, AlphabetOf(AEncoding));
}

TBytes detail::DecodeBinary(std::string_view AText, TQzBinEncoding AEncoding) {
    const bool AreDigits = IsHex(AEncoding);
    TBytes Result = TBytes::ForOverwrite(RoomOf(AText, AreDigits));
    Result.SetLength(Decode(AText, AreDigits, Result.data()));
    return Result;
}

TMemBlock detail::DecodeBinary(std::string_view AText, TQzBinEncoding AEncoding, std::size_t& ASize) {
    const bool AreDigits = IsHex(AEncoding);
    TMemBlock Result = NewMemBlock(RoomOf(AText, AreDigits));
    ASize = Decode(AText, AreDigits, Result.get());
    if (ASize == 0)
        Result.reset();
    return Result;
}

TBytes detail::DecodeBinaryText(std::u16string_view AText, TQzBinEncoding AEncoding) {
    if (!IsHex(AEncoding) || AsciiPrefix(AText) == AText.size())
        return DecodeBinary(TUtf8Form(AText).View(), AEncoding);
    return DecodeBinary(AnsiString(UnicodeString(AText)).View(), AEncoding);
}

} // namespace qz
