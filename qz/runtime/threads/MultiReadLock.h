// TMultiReadExclusiveWriteSynchronizer: many readers or one writer, re-entrant in both forms.
//
//     TMultiReadExclusiveWriteSynchronizer Lock;
//     Lock.BeginRead();
//     ...
//     Lock.EndRead();
//
// A thread that writes may write and read again; a thread that reads may read again, and may turn its reading
// into writing. Waiting writers hold back threads that begin to read. Every Begin needs its End on the same
// thread.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <vector>

#include <qz/runtime/objects/Object.h>

namespace qz {

class QZ_API TMultiReadExclusiveWriteSynchronizer : public TObject {
    QZ_CLASS(TMultiReadExclusiveWriteSynchronizer, TObject)

public:
    TMultiReadExclusiveWriteSynchronizer() = default;

    void BeginRead();
    // As BeginRead, but gives false where that would wait.
    bool TryBeginRead();
    void EndRead();
    // Waits until no other thread reads or writes. False when the calling thread was reading and another
    // thread wrote before its turn came, so that what it has read may be out of date; true otherwise.
    bool BeginWrite();
    // Gives true when the calling thread writes now, false where it would have to wait for another thread.
    bool TryBeginWrite();
    void EndWrite();
    // Counts the times that the lock went to a writer.
    std::uint32_t RevisionLevel() const;

private:
    struct TReader {
        std::uint32_t Thread;
        std::uint32_t Depth;
    };
    TReader* FindReader(std::uint32_t AThread) noexcept;
    bool HasOtherReaders(std::uint32_t AThread) const noexcept;
    bool MayRead(std::uint32_t AThread) const noexcept;
    void TakeWrite(std::uint32_t AThread) noexcept;

    mutable std::mutex FMutex;
    std::condition_variable FChanged;
    std::vector<TReader> FReaders;
    std::uint32_t FWriter = 0;
    std::uint32_t FWriteDepth = 0;
    std::uint32_t FWaitingWriters = 0;
    std::uint32_t FRevision = 0;
};

} // namespace qz
