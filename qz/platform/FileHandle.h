// A file that is open: reading, writing and sizes at any place of it, beyond 4 GiB too, and what others may do with
// the file meanwhile.
//
//     TFileHandle File;
//     TError Error;
//     if (File.Open(u"data.bin", TFileAccess::Read, TFileCreation::Never, {.Read = true}, Error))
//         File.Read(Buffer, Done, Error);
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

enum class TFileAccess : uint8_t { Read = 1, Write = 2, ReadWrite = 3 };

enum class TFileCreation : uint8_t {
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

enum class TFileOrigin : uint8_t { Beginning, Current, End };

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
    bool Open(std::u16string_view APath, TFileAccess AAccess, TFileCreation ACreation, TFileSharing ASharing,
              TError& AError);
    bool IsOpen() const noexcept { return FHandle != cNone; }
    // False when the system says at last that something written did not arrive.
    bool Close() noexcept;

    // Reads up to ATarget.size() bytes at the position; ADone is 0 at the end of the file.
    bool Read(std::span<std::byte> ATarget, size_t& ADone, TError& AError);
    // Writes all of ASource at the position. On failure ADone tells how much arrived.
    bool Write(std::span<const std::byte> ASource, size_t& ADone, TError& AError);
    // Moves the position; APosition is the new one, from the beginning. A place behind the end is allowed.
    bool Seek(int64_t AOffset, TFileOrigin AOrigin, int64_t& APosition, TError& AError);
    // Cuts the file or lengthens it by zeros. The position stays.
    bool SetSize(int64_t ASize, TError& AError);
    // Has this handle, and those that forked processes share with it, deny nothing from now on. Nothing on Windows.
    void DenyNothing() noexcept;
    // Waits until what was written is on the disk.
    bool Flush(TError& AError);

    // Has each write go to the end of the file as it is then, also when another program or a child process writes there or
    // cuts the file. On Windows, where sharing keeps others out, this moves the position to the end.
    bool WriteAtEnd(TError& AError);
    // As Write, behind WriteAtEnd. The position is not moved where that can be saved.
    bool Append(std::span<const std::byte> ASource, size_t& ADone, TError& AError);
    // Whether APath still leads to the open file, which may have been renamed, removed or replaced. True when nobody can tell,
    // and on Windows, where that cannot happen to a file that is open for writing.
    bool IsAt(std::u16string_view APath) const;

    // The system's own number of the open file: a descriptor, or a HANDLE.
    intptr_t Native() const noexcept { return FHandle; }

private:
    static constexpr intptr_t cNone = -1;
    intptr_t FHandle = cNone;
};

} // namespace qz::platform
