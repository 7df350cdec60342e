// Whole streams as text, and streams recoded between UTF-8 and UTF-16.
//
//     UnicodeString Text = QzStreamToWideString(&Stream, false, true, true, -1);   // by its byte order mark
//     QzUTF8DecodeStream(Source, Target);                                          // UTF-8 to UTF-16
//
// The functions take the bytes from the position to the end, from the start of the stream with AFromStart.
// With ADetectBOM a byte order mark gives the code page and is passed over. ASrcCodePage is the code page of
// the bytes; -1 for none, which means that of the mark, and 0 without one. A code page that differs from that
// of a mark raises Exception, "The specified encoding does not match the BOM of the stream!". With
// AFreeStream the stream is freed, also after an exception. A stream that ends before its size
// says so gives what it has.
#pragma once

#include <cstdint>

#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

// The text in an 8-bit code page; from a code page to itself the bytes as they are, a mark included when it
// is not looked for. Raises Exception, "The specified encoding is not supported!", for 1200, 1201, 12000 and
// 12001.
QZ_API RawByteString QzStreamToAnsiString(TStream* AStream, bool AFreeStream, bool AFromStart,
                                          bool ADetectBOM, std::int32_t ASrcCodePage,
                                          std::uint16_t ADstCodePage);
QZ_API UnicodeString QzStreamToWideString(TStream* AStream, bool AFreeStream, bool AFromStart,
                                          bool ADetectBOM, std::int32_t ASrcCodePage);
// The same; it cannot leave the code page open.
QZ_API UnicodeString QzStreamToString(TStream* AStream, bool AFreeStream, bool AFromStart, bool ADetectBOM,
                                      std::uint16_t ASrcCodePage);

// Writes what ASource holds from its position on, as UTF-16, to ATarget in UTF-8, with AWriteBOM after a
// mark. A byte that is left over is passed over.
QZ_API void QzUTF8EncodeStream(TStream& ASource, TStream& ATarget, bool AWriteBOM);
// Writes what ASource holds from its position on, as UTF-8 with or without a mark, to ATarget in UTF-16.
// Raises as TQzUTF8StreamAdapter::Read does.
QZ_API void QzUTF8DecodeStream(TStream& ASource, TStream& ATarget);
// The text of a UTF-8 stream. Raises EConvertError, "The sourcestream does not contain unicode data!", when
// the stream has the mark of another code page or looks like UTF-16.
QZ_API UnicodeString QzUTF8Decode(TStream& AStream);

// Frees a stream at the end of a block, if requested.
class TQzStreamGuard {
public:
    TQzStreamGuard(TStream* AStream, bool AFreeStream) noexcept : FStream(AFreeStream ? AStream : nullptr) {}
    TQzStreamGuard(const TQzStreamGuard&) = delete;
    TQzStreamGuard& operator=(const TQzStreamGuard&) = delete;
    ~TQzStreamGuard() {
        if (FStream != nullptr)
            FStream->Free();
    }

private:
    TStream* FStream;
};

namespace detail {
// The code page of what follows, with the stream after a mark that was looked for.
std::uint16_t SettleCodePage(TStream& AStream, bool AFromStart, bool ADetectBOM, std::int32_t ASrcCodePage);
// What follows the position.
UnicodeString RestAsText(TStream& AStream, std::uint16_t ACodePage);
} // namespace detail

} // namespace qz
