#include <qz/common/uQzClasses/StreamText.h>

#include <algorithm>
#include <array>
#include <cstring>

#include <qz/common/uQzClasses/QzStringStream.h>
#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/common/uQzClasses/Utf8StreamAdapter.h>
#include <qz/common/uQzTypes/QzCodePage.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/runtime/base/Utf.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

UnicodeString ReadUnits(TStream& AStream) {
    const std::int64_t Bytes = std::max<std::int64_t>(AStream.Size() - AStream.Position(), 0);
    UnicodeString Result = UnicodeString::ForOverwrite(static_cast<std::size_t>(Bytes / 2));
    if (Result.IsEmpty())
        return Result;
    const auto Units = static_cast<std::size_t>(AStream.ReadUpTo(Result.UniqueData(), Bytes / 2 * 2) / 2);
    if (Units < Result.size())
        Result.SetLength(Units);
    return Result;
}

RawByteString ReadBytes(TStream& AStream, std::uint16_t ACodePage) {
    const TQzReadBuf Rest(AStream);
    return RawByteString(std::string_view(static_cast<const char*>(Rest.data()), Rest.size()), ACodePage);
}

} // namespace

std::uint16_t detail::SettleCodePage(TStream& AStream, bool AFromStart, bool ADetectBOM,
                                     std::int32_t ASrcCodePage) {
    if (ASrcCodePage > UINT16_MAX)
        throw EArgumentOutOfRangeException(u"The code page %d is no number of 16 bits", {ASrcCodePage});
    if (AFromStart)
        AStream.SetPosition(0);
    const std::uint16_t Found = ADetectBOM ? QzGetCodePage(AStream) : std::uint16_t{0};
    if (Found != 0 && ASrcCodePage >= 0 && ASrcCodePage != Found)
        throw Exception(u"The specified encoding does not match the BOM of the stream!");
    return ASrcCodePage >= 0 ? static_cast<std::uint16_t>(ASrcCodePage) : Found;
}

UnicodeString detail::RestAsText(TStream& AStream, std::uint16_t ACodePage) {
    if (ACodePage == cUtf16CodePage)
        return ReadUnits(AStream);
    const TQzReadBuf Rest(AStream);
    return TQzEncoding::ConvertB(Rest.data(), Rest.size(), ACodePage);
}

RawByteString QzStreamToAnsiString(TStream* AStream, bool AFreeStream, bool AFromStart, bool ADetectBOM,
                                   std::int32_t ASrcCodePage, std::uint16_t ADstCodePage) {
    const TQzStreamGuard Guard(AStream, AFreeStream);
    Assert(AStream != nullptr, u"A stream is required");
    if (QzIsWideCodePage(ADstCodePage))
        throw Exception(u"The specified encoding is not supported!");
    const std::uint16_t CodePage = detail::SettleCodePage(*AStream, AFromStart, ADetectBOM, ASrcCodePage);
    if (ASrcCodePage == ADstCodePage)
        return ReadBytes(*AStream, ADstCodePage);
    const TQzReadBuf Rest(*AStream);
    return TQzEncoding::ConvertB(Rest.data(), Rest.size(), CodePage, ADstCodePage);
}

UnicodeString QzStreamToWideString(TStream* AStream, bool AFreeStream, bool AFromStart, bool ADetectBOM,
                                   std::int32_t ASrcCodePage) {
    const TQzStreamGuard Guard(AStream, AFreeStream);
    Assert(AStream != nullptr, u"A stream is required");
    return detail::RestAsText(*AStream,
                              detail::SettleCodePage(*AStream, AFromStart, ADetectBOM, ASrcCodePage));
}

UnicodeString QzStreamToString(TStream* AStream, bool AFreeStream, bool AFromStart, bool ADetectBOM,
                               std::uint16_t ASrcCodePage) {
    return QzStreamToWideString(AStream, AFreeStream, AFromStart, ADetectBOM, ASrcCodePage);
}

void QzUTF8EncodeStream(TStream& ASource, TStream& ATarget, bool AWriteBOM) {
    constexpr std::size_t cUnits = 4096;
    std::array<char16_t, cUnits> Units;
    std::array<char, cUnits * 3> Bytes;
    if (AWriteBOM)
        ATarget.WriteBuffer(cQzUTF8.data(), static_cast<std::int64_t>(cQzUTF8.size()));
    std::size_t Kept = 0; // the first half of a pair that a step tore
    for (;;) {
        const std::size_t Room = (cUnits - Kept) * 2;
        const auto Got =
            static_cast<std::size_t>(ASource.ReadUpTo(Units.data() + Kept, static_cast<std::int64_t>(Room)));
        const std::size_t Count = Kept + Got / 2;
        const bool Last = Got < Room;
        Kept = !Last && IsHighSurrogate(Units[Count - 1]) ? 1 : 0;
        const char* End = Utf16ToUtf8({Units.data(), Count - Kept}, Bytes.data());
        ATarget.WriteBuffer(Bytes.data(), End - Bytes.data());
        if (Last)
            return;
        Units[0] = Units[Count - 1];
    }
}

void QzUTF8DecodeStream(TStream& ASource, TStream& ATarget) {
    const std::int64_t Start = ASource.Position();
    char Mark[cQzUTF8.size()];
    const auto Got = static_cast<std::size_t>(ASource.ReadUpTo(Mark, sizeof Mark));
    if (std::string_view(Mark, Got) != cQzUTF8)
        ASource.SetPosition(Start);
    TQzUTF8StreamAdapter Adapter(&ASource, false);
    std::array<char16_t, 512> Buffer;
    constexpr std::int32_t cSize = sizeof Buffer;
    for (std::int32_t Read = cSize; Read == cSize;) {
        Read = Adapter.Read(Buffer.data(), cSize);
        ATarget.WriteBuffer(Buffer.data(), Read);
    }
}

UnicodeString QzUTF8Decode(TStream& AStream) {
    const std::uint16_t CodePage = QzGetCodePage(AStream);
    if (CodePage != 0 && CodePage != cUtf8CodePage)
        throw EConvertError(u"The sourcestream does not contain unicode data!");
    TQzStringStream Text(cUtf16CodePage, 16);
    QzUTF8DecodeStream(AStream, Text);
    return Text.WString();
}

} // namespace qz
