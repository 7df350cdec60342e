#include <qz/common/uQzClasses/QzStringStream.h>

#include <algorithm>
#include <array>
#include <cstring>

#include <qz/common/uQzTypes/QzCodePage.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {
namespace {

constexpr std::size_t cSmallBlock = 16;

std::u16string_view OneUnit(const char16_t& AUnit) {
    return {&AUnit, 1};
}

} // namespace

QZ_REGISTER_TYPES(TQzStringStream);

constinit const TClassRec TQzStringStream::ClassRec =
    DescribeClass<TQzStringStream>(u"TQzStringStream", {.Unit = u"uQzClasses"});

std::uint16_t QzCodePageMaxCharSize(std::uint16_t ACodePage) {
    if (const std::uint32_t Size = platform::CodePageMaxCharSize(RealCodePage(ACodePage)))
        return static_cast<std::uint16_t>(Size);
    switch (ACodePage) {
    case cUtf16CodePage:
    case cUtf16SwappedCodePage: return 2;
    case cUtf32CodePage:
    case cUtf32SwappedCodePage: return 4;
    case cUtf8CodePage: return 6;
    default: return 1;
    }
}

TQzStringStream::TQzStringStream(std::uint16_t ACodePage, std::size_t ABlockSize)
    : TQzMemoryStream(ABlockSize),
      FCodePage(ACodePage),
      FCodePageMaxCharSize(QzCodePageMaxCharSize(ACodePage)) {}

TQzStringStream::TQzStringStream(const TByteText& AText, std::uint16_t ACodePage)
    : TQzStringStream(ACodePage, cSmallBlock) {
    WriteBuffer(AText.data(), AText.Length());
    FCurPos = FBufferStart;
}

TQzStringStream::TQzStringStream(const UnicodeString& AText) : TQzStringStream(cUtf16CodePage, cSmallBlock) {
    WriteText(AText);
    FCurPos = FBufferStart;
}

TQzStringStream::TQzStringStream(const UTF8String& AText) : TQzStringStream(AText, cUtf8CodePage) {}

TQzStringStream::TQzStringStream(void* ABuffer, std::int32_t ASize, std::uint16_t ACodePage)
    : TQzMemoryStream(ABuffer, static_cast<std::size_t>(std::max(ASize, 0))),
      FCodePage(ACodePage),
      FCodePageMaxCharSize(QzCodePageMaxCharSize(ACodePage)) {}

// Bytes between the position and the end.
std::size_t TQzStringStream::Rest() const noexcept {
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(FContentEnd - FCurPos, 0));
}

void TQzStringStream::SetCodePage(std::uint16_t ACodePage) {
    FCodePageMaxCharSize = QzCodePageMaxCharSize(ACodePage);
    FCodePage = ACodePage;
}

UnicodeString TQzStringStream::GetWString() const {
    return TQzEncoding::ConvertB(FBufferStart, FContentSize, FCodePage);
}

RawByteString TQzStringStream::StringData(std::uint16_t ACodePage) const {
    return TQzEncoding::ConvertB(FBufferStart, FContentSize, FCodePage, ACodePage);
}

AnsiString TQzStringStream::GetAString() const {
    return AnsiString(StringData(cSystemCodePage).View(), cSystemCodePage);
}

UTF8String TQzStringStream::GetAsUTF8() const {
    return UTF8String(StringData(cUtf8CodePage).View(), cUtf8CodePage);
}

std::int64_t TQzStringStream::GetCharCnt() const {
    if (FCodePage == cUtf16CodePage)
        return static_cast<std::int64_t>(FContentSize / 2);
    if (FCodePageMaxCharSize == 1)
        return static_cast<std::int64_t>(FContentSize);
    const auto Content = std::as_bytes(std::span(FBufferStart, FContentSize));
    return static_cast<std::int64_t>(
        RequireConverted(FCodePage, DecodeCodePage(FCodePage, Content, {}, platform::TDecoding::Lenient)));
}

void TQzStringStream::SetAString(const AnsiString& AValue) {
    Clear();
    Write(AValue);
    FCurPos = FBufferStart;
}

void TQzStringStream::SetWString(const UnicodeString& AValue) {
    Clear();
    Write(AValue);
    FCurPos = FBufferStart;
}

void TQzStringStream::SetAsUTF8(const UTF8String& AValue) {
    Clear();
    if (FCodePage == cUtf8CodePage)
        WriteBuffer(AValue.data(), AValue.Length());
    else
        Write(AValue.ToUnicode());
    FCurPos = FBufferStart;
}

void TQzStringStream::SetValue(const Variant& AValue) {
    switch (const TVarType Type = VarType(AValue)) {
    case varOleStr:
    case varUString: return SetWString(VarToStr(AValue));
    case varString: return SetWString(CodePageToUnicode(cSystemCodePage, VarByteText(AValue)->Bytes()));
    default: throw Exception(u"Unsupported type %d!", {Type});
    }
}

// Short texts are converted on the stack and copied once.
void TQzStringStream::WriteText(std::u16string_view AText) {
    if (AText.empty())
        return;
    if (FCodePage == cUtf16CodePage)
        return WriteBuffer(AText.data(), static_cast<std::int64_t>(AText.size() * 2));
    std::array<char, 1024> Buffer;
    if (AText.size() <= Buffer.size() / 4) {
        const auto Length = EncodeCodePage(FCodePage, AText, Buffer, platform::TComposing::Composite);
        if (Length)
            return WriteBuffer(Buffer.data(), static_cast<std::int64_t>(*Length));
        if (Length.Code() != platform::ErrorOfSmallTarget().Code)
            RaiseCodePageError(FCodePage, Length.Error());
    }
    const RawByteString Bytes =
        TQzEncoding::ConvertW(AText.data(), static_cast<std::int32_t>(AText.size()), FCodePage);
    WriteBuffer(Bytes.data(), Bytes.Length());
}

void TQzStringStream::WriteChar(char AChar) {
    if (FCodePage == cSystemCodePage)
        return WriteBuffer(&AChar, 1);
    char16_t Units[8]{};
    RequireConverted(cSystemCodePage,
                     DecodeCodePage(cSystemCodePage, std::as_bytes(std::span(&AChar, 1)), Units,
                                    platform::TDecoding::Lenient));
    WriteChar(Units[0]);
}

void TQzStringStream::WriteChar(char16_t AChar) {
    WriteText(OneUnit(AChar));
}

void TQzStringStream::Write(const UnicodeString& AText) {
    WriteText(AText);
}

void TQzStringStream::Write(const AnsiString& AText) {
    if (FCodePage == cSystemCodePage)
        WriteBuffer(AText.data(), AText.Length());
    else if (!AText.IsEmpty())
        Write(TQzEncoding::ConvertA(AText));
}

void TQzStringStream::AddChar(char AChar) {
    FCurPos = FContentEnd;
    WriteChar(AChar);
    FCurPos = FContentEnd;
}

void TQzStringStream::AddChar(char16_t AChar) {
    FCurPos = FContentEnd;
    WriteChar(AChar);
    FCurPos = FContentEnd;
}

void TQzStringStream::Add(const TByteText& AText, std::uint16_t ACodePage) {
    if (AText.IsEmpty())
        return;
    if (ACodePage != FCodePage)
        return Add(TQzEncoding::ConvertB(AText.data(), AText.size(), ACodePage));
    WriteBuffer(AText.data(), AText.Length());
    FCurPos = FContentEnd;
}

void TQzStringStream::Add(const UnicodeString& AText) {
    if (AText.IsEmpty())
        return;
    WriteText(AText);
    FCurPos = FContentEnd;
}

void TQzStringStream::Add(const TQzStringStream& AOther) {
    if (AOther.FCodePage != cSystemCodePage)
        Add(AOther.WString());
    else
        Add(AOther.AString(), cSystemCodePage);
}

void TQzStringStream::Assign(const TQzStringStream& ASource) {
    if (&ASource == this)
        return;
    Clear();
    ChangeCodePage(ASource.FCodePage, false);
    WriteBuffer(ASource.FBufferStart, static_cast<std::int64_t>(ASource.FContentSize));
    SetPosition(ASource.FCurPos - ASource.FBufferStart);
}

void TQzStringStream::ChangeCodePage(std::uint16_t ACodePage, bool AUpdateContent) {
    if (ACodePage == FCodePage)
        return;
    const bool HasContent = FContentSize != 0;
    if (HasContent && !AUpdateContent && (ACodePage == cUtf16CodePage || FCodePage == cUtf16CodePage))
        throw Exception(u"The current codepage cannot be changed without updating the content!");
    if (!HasContent || !AUpdateContent)
        return SetCodePage(ACodePage);
    if (!FFreeMem)
        throw Exception(
            u"Updating the content is not allowed (the stream is probably using a wrapped buffer)!");
    // The new content is complete before the old one goes.
    TQzStringStream Fresh(ACodePage, FBlockSize);
    Fresh.Add(WString());
    std::swap(FBufferStart, Fresh.FBufferStart);
    std::swap(FBufferSize, Fresh.FBufferSize);
    std::swap(FContentEnd, Fresh.FContentEnd);
    std::swap(FContentSize, Fresh.FContentSize);
    std::swap(FCurPos, Fresh.FCurPos);
    FCodePage = Fresh.FCodePage;
    FCodePageMaxCharSize = Fresh.FCodePageMaxCharSize;
}

} // namespace qz
