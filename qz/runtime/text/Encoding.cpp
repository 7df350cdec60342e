#include <qz/runtime/text/Encoding.h>

#include <algorithm>
#include <string_view>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

using platform::TComposing;
using platform::TDecoding;

std::span<char> Chars(const TBytes& ABytes) {
    return {reinterpret_cast<char*>(ABytes.data()), ABytes.Length()};
}

} // namespace

QZ_REGISTER_TYPES(TEncoding);

constinit const TClassRec TEncoding::ClassRec = DescribeClass<TEncoding>(u"TEncoding", {.Unit = u"System"});

bool TEncoding::IsSingleByte() const {
    return platform::CodePageMaxCharSize(RealCodePage(FCodePage)) == 1;
}

TBytes TEncoding::GetPreamble() const {
    const std::string_view Mark = ByteOrderMark(RealCodePage(FCodePage));
    return TBytes(std::span(reinterpret_cast<const std::uint8_t*>(Mark.data()), Mark.size()));
}

std::size_t TEncoding::GetByteCount(const TStringArg& AText) const {
    return RequireConverted(FCodePage, EncodeCodePage(FCodePage, AText.View(), {}, TComposing::Plain));
}

std::size_t TEncoding::GetCharCount(std::span<const std::byte> ABytes) const {
    return RequireConverted(FCodePage, DecodeCodePage(FCodePage, ABytes, {}, TDecoding::Lenient));
}

TBytes TEncoding::GetBytes(const TStringArg& AText) const {
    TBytes Result(GetByteCount(AText));
    if (!Result.IsEmpty())
        RequireConverted(FCodePage,
                         EncodeCodePage(FCodePage, AText.View(), Chars(Result), TComposing::Plain));
    return Result;
}

UnicodeString TEncoding::GetString(std::span<const std::byte> ABytes) const {
    return CodePageToUnicode(FCodePage, ABytes);
}

TBytes TEncoding::Convert(const TEncoding& ASource, const TEncoding& ATarget, const TBytes& ABytes) {
    return ASource == ATarget ? ABytes : ATarget.GetBytes(ASource.GetString(ABytes));
}

const TEncoding& TEncoding::ANSI() {
    static const TEncoding Instance(cSystemCodePage);
    return Instance;
}

const TEncoding& TEncoding::ASCII() {
    static const TEncoding Instance(cAsciiCodePage);
    return Instance;
}

const TEncoding& TEncoding::UTF7() {
    static const TEncoding Instance(65000);
    return Instance;
}

const TEncoding& TEncoding::UTF8() {
    static const TEncoding Instance(cUtf8CodePage);
    return Instance;
}

const TEncoding& TEncoding::Unicode() {
    static const TEncoding Instance(cUtf16CodePage);
    return Instance;
}

const TEncoding& TEncoding::BigEndianUnicode() {
    static const TEncoding Instance(cUtf16SwappedCodePage);
    return Instance;
}

TEncoding TEncoding::Detect(std::span<const std::byte> ABytes, const TEncoding& ADefault,
                            std::size_t& AMarkLength) {
    const std::uint16_t Found = CodePageOfMark({reinterpret_cast<const char*>(ABytes.data()), ABytes.size()});
    AMarkLength = ByteOrderMark(Found).size();
    return Found != 0 ? TEncoding(Found) : ADefault;
}

} // namespace qz
