#include <qz/common/uQzNetEncoding/NetEncodingEx.h>

#include <algorithm>
#include <vector>

#include <qz/common/uQzClasses/QzBytes.h>
#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/BinaryText.h>
#include <qz/runtime/text/Utf8Form.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzNetEncoding";

constexpr TQzBase64EncodeArray EncodeArrayOf(TBase64Alphabet AAlphabet) noexcept {
    TQzBase64EncodeArray Result{};
    cBase64Chars[static_cast<std::size_t>(AAlphabet)].copy(Result.data(), Result.size());
    return Result;
}

constexpr TQzBase64DecodeArray MakeDecodeArray() noexcept {
    TQzBase64DecodeArray Result{};
    std::copy(detail::cBase64Values.begin(), detail::cBase64Values.end(), Result.begin());
    return Result;
}

constexpr TQzBase64EncodeArray cEncodeArrays[] = {EncodeArrayOf(TBase64Alphabet::Standard),
                                                  EncodeArrayOf(TBase64Alphabet::Url)};
constexpr TQzBase64DecodeArray cDecodeArray = MakeDecodeArray();

std::string_view Chars(std::span<const std::byte> ABytes) noexcept {
    return {reinterpret_cast<const char*>(ABytes.data()), ABytes.size()};
}

std::string_view Chars(std::span<const std::uint8_t> ABytes) noexcept {
    return Chars(std::as_bytes(ABytes));
}

// Writes what AFill(block) makes in ARoom bytes at most and returns the end of.
template <class TFill> std::int64_t WriteBlock(TStream& AOutput, std::size_t ARoom, TFill AFill) {
    const std::int64_t Position = AOutput.Position();
    void* Buffer = nullptr;
    const TMemBlock Own(QzStreamToWriteBuf(AOutput, Buffer, ARoom) ? static_cast<std::byte*>(Buffer)
                                                                   : nullptr);
    const std::int64_t Count = AFill(static_cast<std::byte*>(Buffer)) - static_cast<std::byte*>(Buffer);
    if (Own != nullptr)
        AOutput.WriteBuffer(Buffer, Count);
    else
        AOutput.SetSize(Position + Count);
    return Count;
}

// Runs AUse(bytes) on the rest of the input, or on a copy if the output is the same stream.
template <class TUse> std::int64_t WithRest(TStream& AInput, const TStream& AOutput, TUse AUse) {
    const TQzReadBuf Rest(AInput);
    if (&AInput != &AOutput || Rest.size() == 0)
        return AUse(Rest.Bytes());
    const std::vector<std::byte> Copy(Rest.Bytes().begin(), Rest.Bytes().end());
    return AUse(std::span<const std::byte>(Copy));
}

void CheckTwo(const TStream& AInput, const TStream& AOutput) {
    Assert(&AInput != &AOutput, u"Hexadecimal text needs two streams");
}

// Writes zeros from APosition up to AEnd. The position of the stream stays.
void WriteZeros(TStream& AOutput, std::int64_t APosition, std::int64_t AEnd) {
    constexpr std::int64_t cBlock = 4096;
    constexpr std::byte cZeros[cBlock] = {};
    const std::int64_t Old = AOutput.Position();
    AOutput.SetPosition(APosition);
    for (; APosition < AEnd; APosition += cBlock)
        AOutput.WriteBuffer(cZeros, std::min(cBlock, AEnd - APosition));
    AOutput.SetPosition(Old);
}

// Converts the rest of AInput by blocks with AConvert(source, count, target). Gives the new size of the
// output, counted from its position before. Two bytes of digits stand for one. If it raises, the output keeps
// what was written, and no byte after it that was not set.
template <class TConvert>
std::int64_t ConvertDigits(TStream& AInput, TStream& AOutput, bool AToDigits, TConvert AConvert) {
    constexpr std::int64_t cBlock = 8192;
    std::byte Source[cBlock], Target[2 * cBlock];
    const std::int64_t Start = AOutput.Position();
    const std::int64_t Rest = std::max<std::int64_t>(AInput.Size() - AInput.Position(), 0);
    const std::int64_t OldSize = AOutput.Size();
    std::int64_t Written = 0;
    try {
        AOutput.SetSize(OldSize + (AToDigits ? 2 * Rest : Rest / 2));
        while (const std::int64_t Count = AInput.ReadUpTo(Source, cBlock)) {
            const std::int64_t Made = AConvert(Source, static_cast<std::size_t>(Count), Target) - Target;
            AOutput.WriteBuffer(Target, Made);
            Written += Made;
        }
        // In the middle of the output fewer bytes are written beyond its old end than it has grown by.
        WriteZeros(AOutput, std::max(AOutput.Position(), OldSize), OldSize + Written);
        AOutput.SetSize(OldSize + Written);
    } catch (...) {
        AOutput.SetSize(std::max(AOutput.Position(), OldSize));
        throw;
    }
    return OldSize + Written - Start;
}

} // namespace

constinit const TClassRec TNetEncodingEx::ClassRec =
    DescribeClass<TNetEncodingEx>(u"TNetEncodingEx", {.Unit = cUnit});
constinit const TClassRec TQzBase64Encoding::ClassRec =
    DescribeClass<TQzBase64Encoding>(u"TQzBase64Encoding", {.Unit = cUnit});
constinit const TClassRec TQzBase64UrlEncoding::ClassRec =
    DescribeClass<TQzBase64UrlEncoding>(u"TQzBase64UrlEncoding", {.Unit = cUnit});
constinit const TClassRec TQzHexEncoding::ClassRec =
    DescribeClass<TQzHexEncoding>(u"TQzHexEncoding", {.Unit = cUnit});

TBytes TNetEncodingEx::Encode(const TQzBytes& ABytes) const {
    return DoEncode(ABytes.data(), ABytes.size());
}

TBytes TNetEncodingEx::Decode(const TQzBytes& AText) const {
    return DoDecode(AText.data(), AText.size());
}

RawByteString TNetEncodingEx::EncodeA(const void* AData, std::size_t ASize) const {
    const TBytes Text = DoEncode(AData, ASize);
    return RawByteString(Chars(Text), cSystemCodePage);
}

namespace detail {

TBytes TBinaryNetEncoding::DoDecode(std::span<const std::uint8_t> AText) const {
    return DecodeBinary(Chars(AText), FKind);
}

TBytes TBinaryNetEncoding::DoDecodeStringToBytes(std::u16string_view AText) const {
    return DecodeBinaryText(AText, FKind);
}

UnicodeString TBinaryNetEncoding::DoDecode(std::u16string_view AText) const {
    return UnicodeString(Chars(DoDecodeStringToBytes(AText)));
}

TBytes TBinaryNetEncoding::DoEncode(std::span<const std::uint8_t> ABytes) const {
    return DoEncode(ABytes.data(), ABytes.size());
}

UnicodeString TBinaryNetEncoding::DoEncode(std::u16string_view AText) const {
    return EncodeBinaryText(TUtf8Form(AText).Bytes(), FKind);
}

UnicodeString TBinaryNetEncoding::DoEncodeBytesToString(std::span<const std::uint8_t> ABytes) const {
    return EncodeBinaryText(std::as_bytes(ABytes), FKind);
}

TBytes TBinaryNetEncoding::DoEncode(TStream& AStream) const {
    const TQzReadBuf Rest(AStream);
    return DoEncode(Rest.data(), Rest.size());
}

TBytes TBinaryNetEncoding::DoEncode(const void* AData, std::size_t ASize) const {
    const std::span Bytes(static_cast<const std::byte*>(AData), ASize);
    const TBase64Alphabet Alphabet = FKind == beBase64Url ? TBase64Alphabet::Url : TBase64Alphabet::Standard;
    TBytes Result = TBytes::ForOverwrite(FKind == beHexEncoded ? 2 * ASize : Base64Length(ASize, Alphabet));
    char* Target = reinterpret_cast<char*>(Result.data());
    if (FKind == beHexEncoded)
        BytesToHex(Bytes, Target);
    else
        BytesToBase64(Bytes, Alphabet, Target);
    return Result;
}

TBytes TBinaryNetEncoding::DoDecode(TStream& AStream) const {
    const TQzReadBuf Rest(AStream);
    return DecodeBinary(Chars(Rest.Bytes()), FKind);
}

TBytes TBinaryNetEncoding::DoDecode(const void* AText, std::size_t ASize) const {
    return DecodeBinary({static_cast<const char*>(AText), ASize}, FKind);
}

} // namespace detail

TQzBase64Encoding::TQzBase64Encoding(TQzBinEncoding AEncoding) noexcept
    : TBinaryNetEncoding(AEncoding),
      FEncodeArray(cEncodeArrays[AEncoding == beBase64Url ? 1 : 0]),
      FDecodeArray(cDecodeArray),
      FFiller(AEncoding == beBase64Url ? '\0' : '=') {}

UnicodeString TQzBase64Encoding::EncodeBytesToString(TStream& AStream) const {
    const TQzReadBuf Rest(AStream);
    return detail::EncodeBinaryText(Rest.Bytes(), Kind());
}

TBytes TQzBase64Encoding::Decode(const RawByteString& AText) const {
    return detail::DecodeBinary(AText.View(), Kind());
}

std::int64_t TQzBase64Encoding::DecodeTo(std::string_view AText, TStream& AOutput) const {
    if (AText.empty())
        return 0;
    return WriteBlock(AOutput, Base64Room(AText.size()),
                      [AText](std::byte* ATarget) { return Base64ToBytes(AText, ATarget); });
}

std::int64_t TQzBase64Encoding::Decode(std::span<const std::uint8_t> AText, TStream& AOutput) const {
    return DecodeTo(Chars(AText), AOutput);
}

std::int64_t TQzBase64Encoding::Decode(const RawByteString& AText, TStream& AOutput) const {
    return DecodeTo(AText.View(), AOutput);
}

std::int64_t TQzBase64Encoding::DecodeStringToStream(const TStringArg& AText, TStream& AOutput) const {
    if (AsciiPrefix(AText.View()) == AText.View().size())
        return DecodeTo(TUtf8Form(AText).View(), AOutput);
    return DecodeTo(AnsiString(AText.ToString()).View(), AOutput);
}

std::int64_t TQzBase64Encoding::DoDecode(TStream& AInput, TStream& AOutput) const {
    return WithRest(AInput, AOutput, [&](auto AText) { return DecodeTo(Chars(AText), AOutput); });
}

std::int64_t TQzBase64Encoding::DoEncode(TStream& AInput, TStream& AOutput) const {
    const TBase64Alphabet Alphabet = FFiller == '=' ? TBase64Alphabet::Standard : TBase64Alphabet::Url;
    return WithRest(AInput, AOutput, [&](std::span<const std::byte> ABytes) -> std::int64_t {
        if (ABytes.empty())
            return 0;
        return WriteBlock(AOutput, Base64Length(ABytes.size(), Alphabet), [=](std::byte* ATarget) {
            return reinterpret_cast<std::byte*>(
                BytesToBase64(ABytes, Alphabet, reinterpret_cast<char*>(ATarget)));
        });
    });
}

std::int64_t TQzHexEncoding::DoEncode(TStream& AInput, TStream& AOutput) const {
    CheckTwo(AInput, AOutput);
    return ConvertDigits(AInput, AOutput, true,
                         [](const std::byte* ASource, std::size_t ACount, std::byte* ATarget) {
                             return reinterpret_cast<std::byte*>(
                                 BytesToHex({ASource, ACount}, reinterpret_cast<char*>(ATarget)));
                         });
}

std::int64_t TQzHexEncoding::DoDecode(TStream& AInput, TStream& AOutput) const {
    CheckTwo(AInput, AOutput);
    return ConvertDigits(AInput, AOutput, false,
                         [](const std::byte* ASource, std::size_t ACount, std::byte* ATarget) {
                             return HexToBytes({reinterpret_cast<const char*>(ASource), ACount}, ATarget);
                         });
}

UnicodeString TQzHexEncoding::DoDecode(std::u16string_view AText) const {
    std::vector<char> Digits(AText.size());
    std::transform(AText.begin(), AText.end(), Digits.begin(),
                   [](char16_t AChar) { return AChar < 0x80 ? static_cast<char>(AChar) : '?'; });
    return UnicodeString(Chars(detail::DecodeBinary({Digits.data(), Digits.size()}, beHexEncoded)));
}

} // namespace qz
