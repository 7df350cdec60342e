// Loading and saving of TQzStringStream.
#include <algorithm>

#include <qz/common/uQzClasses/QzStringStream.h>
#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/common/uQzClasses/StreamText.h>
#include <qz/common/uQzTypes/QzCodePage.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/platform/Files.h>
#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/FileStream.h>

namespace qz {
namespace {

// Whether the content is copied unchanged. Invalid UTF-8 is not: it is decoded and encoded again.
bool IsPlainCopy(std::uint16_t AFrom, std::uint16_t ATo, const void* AContent, std::size_t ASize) {
    if (AFrom != ATo)
        return false;
    return AFrom == cSystemCodePage || AFrom == cUtf16CodePage ||
        (AFrom == cUtf8CodePage && IsValidUtf8({static_cast<const char*>(AContent), ASize}));
}

} // namespace

void TQzStringStream::LoadFromFile(const TStringArg& AFileName, std::int32_t ACodePage) {
    if (!platform::FileExists(AFileName))
        throw EFOpenError(u"File %s not found.", {AFileName.View()});
    TFileStream File(AFileName, fmOpenRead | fmShareDenyNone);
    LoadFromStream(&File, false, false, true, ACodePage);
}

void TQzStringStream::LoadFromStream(TStream* AStream, bool AFreeStream, bool AFromStart, bool ADetectBOM,
                                     std::int32_t ACodePage) {
    const TQzStreamGuard Guard(AStream, AFreeStream);
    Assert(AStream != nullptr, u"A stream is required");
    const std::uint16_t CodePage = detail::SettleCodePage(*AStream, AFromStart, ADetectBOM, ACodePage);
    if (CodePage != FCodePage)
        return Add(detail::RestAsText(*AStream, CodePage));
    // What has arrived as a whole is written at once.
    const TQzReadBuf Rest(*AStream);
    if (!IsPlainCopy(CodePage, FCodePage, Rest.data(), Rest.size()))
        return Add(TQzEncoding::ConvertB(Rest.data(), Rest.size(), CodePage));
    WriteBuffer(Rest.data(), static_cast<std::int64_t>(Rest.size()));
    if (CodePage == cUtf8CodePage && Rest.size() != 0)
        FCurPos = FContentEnd;
    if (AStream->Position() < AStream->Size())
        AStream->Seek(std::int64_t{0}, soEnd);
}

// The content in another code page.
RawByteString TQzStringStream::BytesToSave(std::uint16_t ACodePage) const {
    const UnicodeString Text = WString();
    if (ACodePage != cUtf16CodePage)
        return TQzEncoding::ConvertW(Text, ACodePage);
    return RawByteString(std::string_view(reinterpret_cast<const char*>(Text.data()), Text.size() * 2),
                         cUtf16CodePage);
}

void TQzStringStream::SaveToStream(TStream& AStream, std::uint16_t ACodePage, bool AWriteBOM) const {
    const std::string_view Mark = AWriteBOM ? ByteOrderMark(ACodePage) : std::string_view();
    if (IsPlainCopy(FCodePage, ACodePage, FBufferStart, FContentSize)) {
        AStream.WriteBuffer(Mark.data(), static_cast<std::int64_t>(Mark.size()));
        AStream.WriteBuffer(FBufferStart, static_cast<std::int64_t>(FContentSize));
        return;
    }
    const RawByteString Bytes = BytesToSave(ACodePage);
    AStream.WriteBuffer(Mark.data(), static_cast<std::int64_t>(Mark.size()));
    AStream.WriteBuffer(Bytes.data(), Bytes.Length());
}

void TQzStringStream::SaveToFile(const TStringArg& AFileName, std::uint16_t ACodePage, bool AWriteBOM) const {
    const std::string_view Mark = AWriteBOM ? ByteOrderMark(ACodePage) : std::string_view();
    const bool AsItStands = IsPlainCopy(FCodePage, ACodePage, FBufferStart, FContentSize);
    const RawByteString Converted = AsItStands ? RawByteString() : BytesToSave(ACodePage);
    const std::span<const std::byte> Pieces[] = {
        std::as_bytes(std::span(Mark)),
        AsItStands ? std::as_bytes(std::span(FBufferStart, FContentSize)) : Converted.Bytes(),
    };
    if (const platform::TResult<> Written = platform::WriteWholeFile(AFileName, Pieces); !Written)
        detail::RaiseFileError<EFCreateError>(SFCreateError, AFileName, Written.Error());
}

} // namespace qz
