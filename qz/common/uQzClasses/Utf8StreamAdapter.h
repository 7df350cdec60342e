// TQzUTF8StreamAdapter: shows a stream of UTF-8 as a stream of 16-bit text.
//
//     TFileStream File(u"notes.txt", fmCreate);
//     TQzUTF8StreamAdapter Text(&File, false);       // writes a byte order mark first
//     Text.WriteBuffer(u"Zoë", 6);
//
// Reading covers the Basic Multilingual Plane: forms of four bytes are not known. Sizes and positions are
// twice those of the wrapped stream, which is right for ASCII text only. An adapter belongs to one thread at
// a time.
#pragma once

#include <qz/runtime/streams/Stream.h>

namespace qz {

class QZ_API TQzUTF8StreamAdapter : public TStream {
    QZ_CLASS(TQzUTF8StreamAdapter, TStream)

public:
    using TStream::Seek;

    TStream* FWrappedStream; // holds the UTF-8
    bool FStreamOwner;       // the adapter frees the wrapped stream
    bool FWriteUTF8Prefix;   // the mark is to be written before the first text

    TQzUTF8StreamAdapter(TStream* AStream, bool AStreamOwner, bool AWriteUTF8Prefix = true);
    ~TQzUTF8StreamAdapter() override;

    // Reads up to ACount div 2 units; the bytes delivered. Takes from the wrapped stream no byte more than
    // these units have. Raises Exception, "The stream does not contain valid UTF-8 code!", for a byte that no
    // form begins with; if the stream ends within a form, a second line names what is missing.
    // Bytes within a form are not checked. The wrapped stream stands after the bytes that were looked at
    // then.
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override;
    // Writes ACount div 2 units; ACount when the wrapped stream took all of it, else 0. A pair of surrogates
    // that two calls tear apart gives U+FFFD twice.
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override;
    // AOffset div 2 bytes of the wrapped stream; twice its new position.
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override;
};

} // namespace qz
