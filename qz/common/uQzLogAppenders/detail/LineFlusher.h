// TLineFlusher: writes the lines in the buffers of text files in time. Internal.
//
// Its thread starts with the first such line and writes what is in the buffers at least once a second. At the
// end of the program everything is written, and no line is buffered any more. Lines are lost when the process
// is killed, or ends by abort or _exit.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <vector>

#include <qz/platform/FileHandle.h>
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

class TQzTextFile;

class TLineFlusher {
public:
    static TLineFlusher& Instance();
    // Whether the program ends, so that lines must not be buffered.
    static bool IsEnding() noexcept;

    void Add(TQzTextFile& AFile);
    // Duplicates the handle of another object that has the file open. False if there is none.
    bool Duplicate(const UnicodeString& AFileName, platform::TFileHandle& AHandle) noexcept;
    // Waits while the flusher writes the file.
    void Remove(TQzTextFile& AFile) noexcept;
    // A line is in a buffer: wakes the thread. False if the thread could not start.
    bool Wake() noexcept;

    // Around a fork. The child gets a new flusher with the files that could be locked; their buffers are
    // emptied there.
    static void BeginFork();
    static void EndForkInParent();
    static void EndForkInChild();

private:
    static void Run() noexcept;
    static void End();
    void Serve() noexcept;
    void LockForFork();
    void UnlockAfterFork(bool AIsChild) noexcept;
    // Full: the lines stay until there is room or the file is closed. Busy: another thread is writing to the
    // file.
    enum class TOutcome : std::uint8_t { Done, Full, Busy };
    TOutcome FlushAll() noexcept;
    static TOutcome FlushOne(TQzTextFile& AFile) noexcept;

    std::mutex FLock; // of the files
    std::condition_variable FIdle;
    std::vector<TQzTextFile*> FFiles;
    TQzTextFile* FBusy = nullptr;         // being written now
    std::vector<TQzTextFile*> FForkFiles; // locked for a fork

    std::mutex FWakeLock; // of the following; innermost
    std::condition_variable FWake;
    bool FHasThread = false;
    bool FSomeWait = false;
    TLineFlusher* FOfParent = nullptr; // never destroyed, since threads of the parent held its locks
};

} // namespace qz
