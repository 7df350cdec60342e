// An open file: reading and writing at any position, also beyond 4 GiB, and what other handles may do
// meanwhile.
//
//     TFileHandle File;
//     if (File.Open(u"data.bin", TFileAccess::Read, TFileCreation::Never, {.Read = true}))
//         if (const TResult<std::size_t> Got = File.Read(Buffer))
//             Use(Buffer, *Got);
//
// Sharing: Open fails (ETXTBSY, ERROR_SHARING_VIOLATION) if an open handle denies the wanted access, or has
// access that this one denies. Windows enforces this for every program. Linux enforces it for regular files
// among the handles of this library, in all processes, by locks on bytes far beyond any content. Nothing is
// denied on a file system without locks, nor while another program has locked the whole file. A handle
// belongs to one thread at a time. Paths are as in Files.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

#include <qz/platform/Error.h>
#include <qz/platform/Export.h>

namespace qz::platform {

enum class TFileAccess : std::uint8_t { Read = 1, Write = 2, ReadWrite = 3 };

enum class TFileCreation : std::uint8_t {
    Never,       // the file must exist
    WhenMissing, // creates an empty file if none exists
    Always,      // creates the file, or truncates it to 0 bytes
    Exclusive    // creates the file; fails if it exists
};

// What other handles may do while this one is open.
struct TFileSharing {
    bool Read = false;
    bool Write = false;
};

enum class TFileOrigin : std::uint8_t { Beginning, Current, End };

// How much of a write arrived. It tests as true when all of it did.
struct [[nodiscard]] TWritten {
    std::size_t Done = 0; // bytes
    TError Error;

    explicit operator bool() const noexcept { return Error.Code == 0; }
};

class QZ_API TFileHandle {
public:
    TFileHandle() noexcept = default;
    TFileHandle(TFileHandle&& AOther) noexcept : FHandle(std::exchange(AOther.FHandle, cNone)) {}
    TFileHandle& operator=(TFileHandle&& AOther) noexcept {
        std::swap(FHandle, AOther.FHandle);
        return *this;
    }
    ~TFileHandle() { Close(); }

    // Closes the current file and opens APath at its first byte. Follows links; fails for a directory.
    // Started programs do not inherit the handle. A forked process shares it, and its sharing mode.
    TResult<> Open(std::u16string_view APath, TFileAccess AAccess, TFileCreation ACreation,
                   TFileSharing ASharing);
    bool IsOpen() const noexcept { return FHandle != cNone; }
    // A second handle to the open file, with the same position, access and sharing. What the file denies ends
    // when both are closed.
    TResult<TFileHandle> Duplicate() const;
    // False if the system reports here that written data was lost.
    bool Close() noexcept;

    // Reads up to ATarget.size() bytes at the position. Gives the number of bytes, 0 at the end of the file.
    TResult<std::size_t> Read(std::span<std::byte> ATarget);
    // Writes all of ASource at the position.
    TWritten Write(std::span<const std::byte> ASource);
    // Moves the position and gives the new one, from the beginning. A position after the end is allowed.
    TResult<std::int64_t> Seek(std::int64_t AOffset, TFileOrigin AOrigin);
    // Truncates the file or extends it with zeros. The position stays.
    TResult<> SetSize(std::int64_t ASize);
    // Ends the denials of this handle and of its copies in forked processes. Does nothing on Windows.
    void DenyNothing() noexcept;
    // Waits until all written data is on the disk.
    TResult<> Flush();

    // Switches to appending: each write goes to the current end of the file, also while other processes write
    // or truncate it. On Windows, where sharing keeps others out, moves the position to the end.
    TResult<> WriteAtEnd();
    // As Write, after WriteAtEnd. The position may stay where it was.
    TWritten Append(std::span<const std::byte> ASource);
    // As Append; fails with EAGAIN if a pipe or a device accepts nothing for so many milliseconds. On Windows
    // waits as long as it takes.
    TWritten AppendWithin(std::span<const std::byte> ASource, std::uint32_t AMilliseconds);
    // False if the open file was renamed, removed or replaced, so that APath does not lead to it. True if
    // that cannot be determined, and on Windows, where it cannot happen to a file that is open for writing.
    bool IsAt(std::u16string_view APath) const;

    // The file descriptor or HANDLE.
    std::intptr_t Native() const noexcept { return FHandle; }

private:
    static constexpr std::intptr_t cNone = -1;
    std::intptr_t FHandle = cNone;
};

} // namespace qz::platform
