// Loading and saving of TQzStringStream.
#include <algorithm>

#include <qz/common/uQzClasses/QzStringStream.h>
#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/common/uQzClasses/StreamText.h>
#include <qz/common/uQzTypes/QzCodePage.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/platform/Files.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/FileStream.h>

namespace qz {
namespace {

// Code pages whose content is copied unchanged.
bool IsPlainCopy(std::uint16_t AFrom, std::uint16_t ATo) {
    return AFrom == ATo && (AFrom == cSystemCodePage || AFrom == cUtf16CodePage);
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
    const std::int64_t Start = AStream->Position();
    const std::uint16_t CodePage = detail::SettleCodePage(*AStream, AFromStart, ADetectBOM, ACodePage);
    if (IsPlainCopy(CodePage, FCodePage)) {
        // What has arrived as a whole is written at once.
        const TQzReadBuf Rest(*AStream);
        WriteBuffer(Rest.data(), static_cast<std::int64_t>(Rest.size()));
        if (AStream->Position() < AStream->Size())
            AStream->Seek(std::int64_t{0}, soEnd);
        return;
    }
    AStream->SetPosition(Start);
    Add(QzStreamToWideString(AStream, false, AFromStart, ADetectBOM, ACodePage));
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
    if (IsPlainCopy(FCodePage, ACodePage)) {
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
    const bool AsItStands = IsPlainCopy(FCodePage, ACodePage);
    const RawByteString Converted = AsItStands ? RawByteString() : BytesToSave(ACodePage);
    const std::span<const std::byte> Pieces[] = {
        std::as_bytes(std::span(Mark)),
        AsItStands ? std::as_bytes(std::span(FBufferStart, FContentSize)) : Converted.Bytes(),
    };
    if (const platform::TResult<> Written = platform::WriteWholeFile(AFileName, Pieces); !Written)
        detail::RaiseFileError<EFCreateError>(SFCreateError, AFileName, Written.Error());
}

} // namespace qz
