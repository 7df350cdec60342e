// TLineFlusher: has lines that wait in the buffers of text files reach the system in time. Internal.
//
// A thread of its own, started by the first line that waits, writes what waits at least once a second. At the end of the
// program everything is written, and from then on no line waits. Lines are lost when the process is ended from outside, or by
// abort and _exit.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <vector>

#include <qz/platform/Export.h>

namespace qz {

class TQzTextFile;

class TLineFlusher {
public:
    static TLineFlusher& Instance();
    // Null as long as nobody has asked for it.
    static TLineFlusher* Existing() noexcept;
    // Whether the program ends, so that lines must not wait any more.
    static bool IsEnding() noexcept;

    void Add(TQzTextFile& AFile);
    // Waits until the file is not being written by the flusher.
    void Remove(TQzTextFile& AFile) noexcept;
    // A line begins to wait. False when there is nobody to wait for.
    bool Await() noexcept;

    // Around a fork: keeps the flusher and the files quiet, and has the child begin anew, with the same files and none of their
    // lines.
    bool TryLock();
    void Unlock() noexcept;
    static void BeginChild() noexcept;
    // In both processes: all files are shared from here on.
    void ShareAll() noexcept;

private:
    static void Run() noexcept;
    static void End();
    void Serve() noexcept;
    // Full: the lines wait on, until there is room or the file is closed. Busy: somebody is writing to the file.
    enum class TOutcome : std::uint8_t { Done, Full, Busy };
    TOutcome FlushAll() noexcept;
    static TOutcome FlushOne(TQzTextFile& AFile) noexcept;

    std::vector<TQzTextFile*> FLocked; // for a fork
    std::mutex FLock;                  // of the files
    std::condition_variable FIdle;
    std::vector<TQzTextFile*> FFiles;
    TQzTextFile* FBusy = nullptr; // being written now

    std::mutex FWakeLock; // of the following; innermost
    std::condition_variable FWake;
    bool FHasThread = false;
    bool FSomeWait = false;
    TLineFlusher* FOfParent = nullptr; // kept as it was at the fork
};

} // namespace qz
