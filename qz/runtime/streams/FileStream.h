// TFileStream: a file as a stream, of any size, and what others may do with the file while it is open.
//
//     TFileStream File(u"data.bin", fmOpenRead | fmShareDenyWrite);
//     TFileStream Log(u"trace.log", fmCreate | fmShareDenyWrite);
//
// A mode is one of fmOpenRead, fmOpenWrite, fmOpenReadWrite, fmCreate and one of the fmShare constants;
// without one of these no other handle may open the file. Sharing holds among all programs on Windows, and
// among the streams of this library, in all processes, on Linux. Nothing is buffered: what is written has
// reached the system when the call returns.
#pragma once

#include <concepts>
#include <span>

#include <qz/platform/FileHandle.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/base/UnicodeString.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/Stream.h>

namespace qz {

inline constexpr std::uint16_t fmOpenRead = 0x0000;
inline constexpr std::uint16_t fmOpenWrite = 0x0001;
inline constexpr std::uint16_t fmOpenReadWrite = 0x0002;
inline constexpr std::uint16_t fmCreate = 0xFF00; // for reading and writing; an existing file is emptied

inline constexpr std::uint16_t fmShareExclusive = 0x0010;
inline constexpr std::uint16_t fmShareDenyWrite = 0x0020; // others may read
inline constexpr std::uint16_t fmShareDenyRead = 0x0030;  // others may write
inline constexpr std::uint16_t fmShareDenyNone = 0x0040;

inline constexpr TTextConstant SFCreateError = u"Cannot create file \"%s\". %s";
inline constexpr TTextConstant SFOpenError = u"Cannot open file \"%s\". %s";

namespace detail {
// Raises E with its code; the pattern has places for the file and for the system's text.
template <std::derived_from<EStreamError> E>
[[noreturn]] void RaiseFileError(const TStringArg& APattern, const TStringArg& AFile,
                                 platform::TError AError) {
    throw E(APattern, {AFile.View(), SysErrorMessage(static_cast<std::int32_t>(AError.Code))},
            static_cast<std::int32_t>(AError.Code));
}
} // namespace detail

class QZ_API TFileStream : public TStream {
    QZ_CLASS(TFileStream, TStream)

public:
    using TStream::Seek;
    using TStream::SetSize;

    // Raises EFCreateError or EFOpenError, "Cannot open file "data.bin". No such file or directory".
    TFileStream(const TStringArg& AFileName, std::uint16_t AMode);

    // As it was given.
    const UnicodeString& FileName() const noexcept { return FFileName; }

    // Raises EReadError with the file and the reason.
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override;
    // The number of bytes that arrived, less than ACount when the disk became full. Raises EWriteError with
    // the file and the reason when none did.
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override;
    // Positions after the end are allowed; a write there leaves zeros before it. Raises EStreamError.
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override;
    // New bytes are 0; the position stays. Raises EStreamError.
    void SetSize(std::int64_t ANewSize) override;
    // Waits until all that was written is on the disk. Raises EStreamError.
    void FlushToDisk();

private:
    UnicodeString FFileName;
    platform::TFileHandle FHandle;
};

} // namespace qz
