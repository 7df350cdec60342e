#include <qz/runtime/streams/NetEncoding.h>

#include <algorithm>
#include <cstring>
#include <string>

#include <qz/runtime/base/Utf.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/streams/MemoryStream.h>
#include <qz/runtime/text/BinaryText.h>
#include <qz/runtime/text/HtmlText.h>
#include <qz/runtime/text/Utf8Form.h>

namespace qz {
namespace {

std::string_view Chars(std::span<const std::uint8_t> ABytes) noexcept {
    return {reinterpret_cast<const char*>(ABytes.data()), ABytes.size()};
}

TBytes BytesOf(std::string_view AText) {
    return TBytes(std::span(reinterpret_cast<const std::uint8_t*>(AText.data()), AText.size()));
}

UnicodeString TextOf(std::span<const std::uint8_t> ABytes) {
    return UnicodeString(Chars(ABytes));
}

std::span<const std::uint8_t> Content(const TMemoryStream& AStream) noexcept {
    const auto Bytes = AStream.Content();
    return {reinterpret_cast<const std::uint8_t*>(Bytes.data()), Bytes.size()};
}

} // namespace

constinit const TClassRec TNetEncoding::ClassRec =
    DescribeClass<TNetEncoding>(u"TNetEncoding", {.Unit = u"System"});
constinit const TClassRec TBase64Encoding::ClassRec =
    DescribeClass<TBase64Encoding>(u"TBase64Encoding", {.Unit = u"System"});
constinit const TClassRec THTMLEncoding::ClassRec =
    DescribeClass<THTMLEncoding>(u"THTMLEncoding", {.Unit = u"System"});

const TNetEncoding& TNetEncoding::Base64() {
    static const auto* const Instance = new TBase64Encoding;
    return *Instance;
}

const TNetEncoding& TNetEncoding::HTML() {
    static const auto* const Instance = new THTMLEncoding;
    return *Instance;
}

std::int64_t TNetEncoding::DoDecode(TStream& AInput, TStream& AOutput) const {
    TMemoryStream Source;
    Source.CopyRest(AInput);
    const TBytes Result = DoDecode(Content(Source));
    AOutput.WriteBuffer(Result);
    return static_cast<std::int64_t>(Result.size());
}

std::int64_t TNetEncoding::DoEncode(TStream& AInput, TStream& AOutput) const {
    TMemoryStream Source;
    Source.CopyRest(AInput);
    const TBytes Result = DoEncode(Content(Source));
    AOutput.WriteBuffer(Result);
    return static_cast<std::int64_t>(Result.size());
}

TBytes TNetEncoding::DoDecode(std::span<const std::uint8_t> AText) const {
    return DoDecodeStringToBytes(TextOf(AText));
}

TBytes TNetEncoding::DoEncode(std::span<const std::uint8_t> ABytes) const {
    return BytesOf(TUtf8Form(DoEncodeBytesToString(ABytes)).View());
}

TBytes TNetEncoding::DoDecodeStringToBytes(std::u16string_view AText) const {
    return BytesOf(TUtf8Form(DoDecode(AText)).View());
}

UnicodeString TNetEncoding::DoEncodeBytesToString(std::span<const std::uint8_t> ABytes) const {
    return DoEncode(TextOf(ABytes).View());
}

UnicodeString TNetEncoding::DoEncodeBytesToString(const void* ABytes, std::int32_t ASize) const {
    return DoEncodeBytesToString(
        std::span(static_cast<const std::uint8_t*>(ABytes), static_cast<std::size_t>(std::max(ASize, 0))));
}

TBase64Encoding::TBase64Encoding(std::int32_t ACharsPerLine) : TBase64Encoding(ACharsPerLine, u"\r\n") {}

TBase64Encoding::TBase64Encoding(std::int32_t ACharsPerLine, const TStringArg& ALineSeparator)
    : FCharsPerLine(ACharsPerLine),
      FLineSeparator(ALineSeparator.ToString()) {}

UnicodeString TBase64Encoding::InLines(std::span<const std::byte> ABytes) const {
    UnicodeString Text = Base64Text(ABytes, TBase64Alphabet::Standard);
    const auto PerLine = static_cast<std::size_t>(std::max(FCharsPerLine, 0));
    if (PerLine == 0 || Text.size() <= PerLine)
        return Text;
    UnicodeString Result;
    Result.Reserve(Text.size() + (Text.size() - 1) / PerLine * FLineSeparator.size());
    std::u16string_view Rest = Text;
    for (; Rest.size() > PerLine; Rest.remove_prefix(PerLine)) {
        Result.Append(Rest.substr(0, PerLine));
        Result.Append(FLineSeparator);
    }
    return Result += Rest;
}

UnicodeString TBase64Encoding::DoEncodeBytesToString(std::span<const std::uint8_t> ABytes) const {
    return InLines(std::as_bytes(ABytes));
}

TBytes TBase64Encoding::DoEncode(std::span<const std::uint8_t> ABytes) const {
    const std::size_t Length = Base64Length(ABytes.size(), TBase64Alphabet::Standard);
    const auto PerLine = static_cast<std::size_t>(std::max(FCharsPerLine, 0));
    const TUtf8Form Separator(FLineSeparator);
    const std::size_t Gap = Separator.View().size();
    std::size_t Breaks = PerLine == 0 || Length == 0 ? 0 : (Length - 1) / PerLine;
    TBytes Result = TBytes::ForOverwrite(Length + Breaks * Gap);
    char* Target = reinterpret_cast<char*>(Result.data());
    // The text is made at the end of the array, and its lines move to the front one by one.
    const char* Text = Target + Breaks * Gap;
    BytesToBase64(std::as_bytes(ABytes), TBase64Alphabet::Standard, Target + Breaks * Gap);
    for (; Breaks > 0; --Breaks, Text += PerLine) {
        std::memmove(Target, Text, PerLine);
        Target = std::copy_n(Separator.View().data(), Gap, Target + PerLine);
    }
    return Result;
}

UnicodeString TBase64Encoding::DoEncode(std::u16string_view AText) const {
    return InLines(TUtf8Form(AText).Bytes());
}

TBytes TBase64Encoding::DoDecode(std::span<const std::uint8_t> AText) const {
    return Base64Bytes(Chars(AText));
}

TBytes TBase64Encoding::DoDecodeStringToBytes(std::u16string_view AText) const {
    return Base64Bytes(TUtf8Form(AText).View());
}

UnicodeString TBase64Encoding::DoDecode(std::u16string_view AText) const {
    return TextOf(DoDecodeStringToBytes(AText));
}

UnicodeString THTMLEncoding::DoDecode(std::u16string_view AText) const {
    return UnescapeHtml(AText);
}

UnicodeString THTMLEncoding::DoEncode(std::u16string_view AText) const {
    return EscapeHtml(AText);
}

} // namespace qz
