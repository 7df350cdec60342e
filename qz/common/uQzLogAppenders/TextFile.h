// TQzTextFile: a file of text that grows at its end, in UTF-8 without a mark, which others may read but not write meanwhile.
//
//     TQzTextFile File(u"/var/log/app/app.log");       // the directories are made
//     File.WriteLn(u"Zoë connected");                  // the line is with the system when this returns
//
// A line is in the file whole or not at all: where it does not fit on the disk it is taken back. Ours, beside that: with a
// buffer, lines that may wait are held back until it is full, until Flush, and for a second at most (LineFlusher.h). Lines
// that wait when the disk is full stay until there is room. Any thread. After a fork() parent and child write to one
// file, which is closed to other writers no more, and lines that wait are the parent's.
#pragma once

#include <atomic>
#include <memory>

#include <qz/runtime/streams/FileStream.h>
#include <qz/runtime/threads/CriticalSection.h>

namespace qz {

class QZ_API TQzTextFile : public TObject {
    QZ_CLASS(TQzTextFile, TObject)

public:
    // Opens the file behind its content, or makes it and notes the present as its creation time, in UTC, where the file system
    // can keep it. Raises EFOpenError or EFCreateError. ALock, if given, is used in the place of the file's own lock, and lives longer than the file: who holds it
    // already pays for one lock only.
    explicit TQzTextFile(const TStringArg& AFileName, TCriticalSection* ALock = nullptr);
    TQzTextFile(const TQzTextFile&) = delete;
    TQzTextFile& operator=(const TQzTextFile&) = delete;
    // Lines that cannot be written any more are counted as dropped messages.
    ~TQzTextFile() override;

    // In bytes, with what waits.
    std::int64_t Size();
    // The text as it is, or with CR LF behind it, in one write. Raises EWriteError.
    void Write(const TStringArg& AText);
    void WriteLn(const TStringArg& AText);

    // As WriteLn, for a line that may wait. Without a buffer it does not. Raises EWriteError when the buffer is full and the
    // disk too; the line is lost then, and those that wait are not.
    void WriteLnLater(const TStringArg& AText);
    // In bytes; 0, as it is at first, for no buffer. Writes what waits. Raises EWriteError, and std::bad_alloc.
    void SetBufferSize(std::size_t ASize);
    // Writes what waits. Raises EWriteError.
    void Flush();
    // Whether the file has another name by now, or none. Looks at most once a second; false in between, and for a name that is
    // no whole path.
    bool HasGone();
    // Whether a parent process opened it.
    bool IsInherited() const noexcept { return FIsInherited; }

private:
    friend class TLineFlusher;
    using TBytes = std::span<const std::byte>;

    void Put(const TStringArg& AText, std::u16string_view ATail);
    void PutBytes(TBytes ABytes);
    void FlushWaiting();
    // By a fork, in both processes; in the child.
    void Share() noexcept;
    void Inherit() noexcept;

    TFileStream FFile;
    TCriticalSection FCritSect;
    TCriticalSection& FLock;              // that one, or another
    std::atomic<std::int64_t> FSize{0};   // of the file, as far as this process writes it
    std::atomic<bool> FIsShared{false};   // with another process, by a fork
    std::atomic<std::uint32_t> FLines{0}; // that wait
    bool FIsInherited = false;
    bool FIsWholePath;
    std::uint64_t FSizeLimit;
    std::atomic<std::uint64_t> FLookedAt;
    std::unique_ptr<char[]> FBuffer;
    std::size_t FBufferSize = 0;
    std::size_t FWaiting = 0; // bytes
};

} // namespace qz
