#include <qz/common/uQzBase64.h>

#include <qz/common/uQzClasses/QzBytes.h>
#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/common/uQzNetEncoding.h>
#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/text/BinaryText.h>
#include <qz/runtime/text/Utf8Form.h>

namespace qz {
namespace {

AnsiString Encoded(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet) {
    AnsiString Result = AnsiString::ForOverwrite(Base64Length(ABytes.size(), AAlphabet));
    BytesToBase64(ABytes, AAlphabet, Result.UniqueData());
    return Result;
}

AnsiString EncodedRest(TStream& AStream, TBase64Alphabet AAlphabet) {
    return Encoded(TQzReadBuf(AStream).Bytes(), AAlphabet);
}

std::span<const std::byte> BytesAt(const void* AData, std::size_t ASize) noexcept {
    return {static_cast<const std::byte*>(AData), ASize};
}

} // namespace

std::int64_t QzEncodeBase64(TStream& AInput, TStream& AOutput) {
    return TQzNetEncoding::GetBase64ExEncoding().Encode(AInput, AOutput);
}

AnsiString QzEncodeBase64(TStream& AStream) {
    return EncodedRest(AStream, TBase64Alphabet::Standard);
}

AnsiString QzEncodeBase64(const TByteText& AText) {
    return Encoded(AText.Bytes(), TBase64Alphabet::Standard);
}

AnsiString QzEncodeBase64(const TStringArg& AText) {
    return Encoded(TUtf8Form(AText).Bytes(), TBase64Alphabet::Standard);
}

AnsiString QzEncodeBase64(const TBytes& ABytes) {
    return Encoded(std::as_bytes(std::span(ABytes)), TBase64Alphabet::Standard);
}

AnsiString QzEncodeBase64(const TQzBytes& ABytes) {
    return Encoded(ABytes, TBase64Alphabet::Standard);
}

AnsiString QzEncodeBase64(const void* AData, std::size_t ASize) {
    return Encoded(BytesAt(AData, ASize), TBase64Alphabet::Standard);
}

std::int64_t QzEncodeBase64Url(TStream& AInput, TStream& AOutput) {
    return TQzNetEncoding::GetBase64UrlEncoding().Encode(AInput, AOutput);
}

AnsiString QzEncodeBase64Url(TStream& AStream) {
    return EncodedRest(AStream, TBase64Alphabet::Url);
}

AnsiString QzEncodeBase64Url(const TByteText& AText) {
    return Encoded(AText.Bytes(), TBase64Alphabet::Url);
}

AnsiString QzEncodeBase64Url(const TStringArg& AText) {
    return Encoded(TUtf8Form(AText).Bytes(), TBase64Alphabet::Url);
}

AnsiString QzEncodeBase64Url(const TBytes& ABytes) {
    return Encoded(std::as_bytes(std::span(ABytes)), TBase64Alphabet::Url);
}

AnsiString QzEncodeBase64Url(const TQzBytes& ABytes) {
    return Encoded(ABytes, TBase64Alphabet::Url);
}

AnsiString QzEncodeBase64Url(const void* AData, std::size_t ASize) {
    return Encoded(BytesAt(AData, ASize), TBase64Alphabet::Url);
}

void QzDecodeBase64(const RawByteString& AText, TStream& AOutput) {
    TQzNetEncoding::GetBase64ExEncoding().Decode(AText, AOutput);
}

void QzDecodeBase64(TStream& AInput, TStream& AOutput) {
    TQzNetEncoding::GetBase64ExEncoding().Decode(AInput, AOutput);
}

TBytes QzDecodeBase64(const TStringArg& AText) {
    return detail::DecodeBinaryText(AText, beBase64);
}

TBytes QzDecodeBase64(const RawByteString& AText) {
    if (IsAscii(AText.View()))
        return detail::DecodeBinary(AText.View(), beBase64);
    return detail::DecodeBinaryText(CodePageToUnicode(cSystemCodePage, AText.Bytes()), beBase64);
}

void* QzDecodeBase64(const RawByteString& AText, std::size_t& ASize) {
    return detail::DecodeBinary(AText.View(), beBase64, ASize).release();
}

} // namespace qz
