// TQzTextFile: a text file that grows at its end, in UTF-8 without a byte order mark. Others may read it but
// not write to it.
//
//     TQzTextFile File(u"/var/log/app/app.log");       // the directories are made
//     File.WriteLn(u"Zoë connected");                  // the line is with the system when this returns
//
// A line is in the file whole or not at all: a part that fits on a full disk is removed again. Beyond the
// common operations: with a buffer, lines that may wait are kept until it is full, until Flush, and for a
// second at most. While the disk is full they stay in the buffer. Any thread. After a fork() parent and child
// write to the same file, other writers are no longer kept out, and the lines in the buffer are the parent's.
#pragma once

#include <atomic>
#include <memory>
#include <span>

#include <qz/platform/FileHandle.h>
#include <qz/runtime/base/AccessKey.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/threads/CriticalSection.h>

namespace qz {

class TLineFlusher;

class QZ_API TQzTextFile : public TObject {
    QZ_CLASS(TQzTextFile, TObject)

public:
    // Opens the file for appending, or makes it and sets its creation time to now, where the file system can
    // keep it. Several objects of one process may have the same file open. A relative name is completed here
    // with the current directory. Raises EFOpenError or EFCreateError. ALock, if given, replaces the file's
    // own lock and lives longer than the file.
    explicit TQzTextFile(const TStringArg& AFileName, TCriticalSection* ALock = nullptr);
    TQzTextFile(const TQzTextFile&) = delete;
    TQzTextFile& operator=(const TQzTextFile&) = delete;
    // Lines in the buffer that cannot be written are reported as dropped messages (LogDrops.h).
    ~TQzTextFile() override;

    // In bytes, with the buffer.
    std::int64_t Size();
    // Appends the text, WriteLn with CR LF after it, in one write. Raises EWriteError.
    void Write(const TStringArg& AText);
    void WriteLn(const TStringArg& AText);

    // As WriteLn, for a line that may wait in the buffer. Raises EWriteError if the buffer is full and the
    // disk too; the line is lost then, and those in the buffer are not.
    void WriteLnLater(const TStringArg& AText);
    // In bytes; 0, the default, for no buffer. Writes what is in the buffer. Raises EWriteError, and
    // std::bad_alloc.
    void SetBufferSize(std::size_t ASize);
    // Writes what is in the buffer. Raises EWriteError.
    void Flush();
    // Removes the text from the end of the file. False if the file does not end with it. The buffer is empty.
    bool RemoveEnd(const TStringArg& AText);
    // Whether the file was renamed or removed. Looks at most once a second, otherwise false.
    bool HasGone();
    // Whether a parent process opened it.
    bool IsInherited() const noexcept { return FIsInherited; }

    // For the flusher. Its lock; writes what is in the buffer, under the lock; after a fork: in both
    // processes, in the child.
    TCriticalSection& Lock(TAccessKey<TLineFlusher>) noexcept { return FLock; }
    void FlushWaiting(TAccessKey<TLineFlusher>) { FlushWaiting(); }
    void Share(TAccessKey<TLineFlusher>) noexcept { Share(); }
    void Inherit(TAccessKey<TLineFlusher>) noexcept;
    // Duplicates the handle if it has that file open. True if it does.
    bool DuplicateTo(const UnicodeString& AFileName, platform::TFileHandle& AHandle,
                     TAccessKey<TLineFlusher>) noexcept;

private:
    using TBytes = std::span<const std::byte>;

    void Put(const TStringArg& AText, std::u16string_view ATail);
    void Open();
    std::size_t PutBytes(TBytes ABytes, platform::TError& AError);
    std::size_t AppendSome(TBytes ABytes, platform::TError& AError);
    bool TakeBack(TBytes ABytes);
    void FlushWaiting();
    void Share() noexcept;

    UnicodeString FFileName;
    platform::TFileHandle FHandle;
    TCriticalSection FCritSect;
    TCriticalSection& FLock;              // FCritSect, or that of the owner
    std::atomic<std::int64_t> FSize{0};   // of the file and the buffer, as far as this process knows
    std::atomic<bool> FIsShared{false};   // with another object, or with another process by a fork
    std::atomic<std::uint32_t> FLines{0}; // in the buffer
    bool FIsInherited = false;
    std::uint64_t FSizeLimit;
    std::atomic<std::uint64_t> FLookedAt;
    std::unique_ptr<char[]> FBuffer;
    std::size_t FBufferSize = 0;
    std::size_t FWaiting = 0; // bytes in the buffer
};

} // namespace qz
