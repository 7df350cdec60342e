// A file that is open: reading, writing and sizes at any place of it, beyond 4 GiB too, and what others may do with
// the file meanwhile.
//
//     TFileHandle File;
//     if (File.Open(u"data.bin", TFileAccess::Read, TFileCreation::Never, {.Read = true}))
//         if (const TResult<std::size_t> Got = File.Read(Buffer))
//             Use(Buffer, *Got);
//
// Sharing: Open fails (ETXTBSY, ERROR_SHARING_VIOLATION) when a handle that is open denies what this one wants, or
// when this one denies what a handle that is open does. Windows keeps to that for every program. Linux keeps to it
// for regular files among the handles of this library, by locks on bytes far behind any content, in all processes
// and on all file systems that have locks; where there are none, and while another program has locked the whole file,
// nothing is denied. A handle is for one thread at a time. Paths are as in Files.h.
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
    Never,       // the file must be there
    WhenMissing, // made empty when it isn't there
    Always,      // emptied when it is there, else made
    Exclusive    // made; the name must be free
};

// What others may do while the handle is open. Nothing, unless said otherwise.
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

    // Closes what is open and opens APath, at its first byte. A link is followed; a directory is refused. The handle
    // is not passed on to programs that are started; a process that was forked shares it, and with it what it denies.
    TResult<> Open(std::u16string_view APath, TFileAccess AAccess, TFileCreation ACreation,
                   TFileSharing ASharing);
    bool IsOpen() const noexcept { return FHandle != cNone; }
    // False when the system says at last that something written did not arrive.
    bool Close() noexcept;

    // Reads up to ATarget.size() bytes at the position. Gives the number of bytes, 0 at the end of the file.
    TResult<std::size_t> Read(std::span<std::byte> ATarget);
    // Writes all of ASource at the position.
    TWritten Write(std::span<const std::byte> ASource);
    // Moves the position and gives the new one, from the beginning. A position after the end is allowed.
    TResult<std::int64_t> Seek(std::int64_t AOffset, TFileOrigin AOrigin);
    // Cuts the file or lengthens it by zeros. The position stays.
    TResult<> SetSize(std::int64_t ASize);
    // Has this handle, and those that forked processes share with it, deny nothing from now on. Nothing on Windows.
    void DenyNothing() noexcept;
    // Waits until what was written is on the disk.
    TResult<> Flush();

    // Has each write go to the end of the file as it is then, also when another program or a child process writes there or
    // cuts the file. On Windows, where sharing keeps others out, this moves the position to the end.
    TResult<> WriteAtEnd();
    // As Write, behind WriteAtEnd. The position is not moved where that can be saved.
    TWritten Append(std::span<const std::byte> ASource);
    // Whether APath still leads to the open file, which may have been renamed, removed or replaced. True when nobody can tell,
    // and on Windows, where that cannot happen to a file that is open for writing.
    bool IsAt(std::u16string_view APath) const;

    // The system's own number of the open file: a descriptor, or a HANDLE.
    std::intptr_t Native() const noexcept { return FHandle; }

private:
    static constexpr std::intptr_t cNone = -1;
    std::intptr_t FHandle = cNone;
};

} // namespace qz::platform
