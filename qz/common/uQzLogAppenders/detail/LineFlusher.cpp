#include <qz/common/uQzLogAppenders/detail/LineFlusher.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>

#include <qz/common/uQzLogAppenders/TextFile.h>
#include <qz/platform/Fork.h>
#include <qz/platform/Threads.h>

namespace qz {
namespace {

// In milliseconds.
constexpr std::uint32_t cPatience = 700;
constexpr std::uint32_t cRetry = 20; // when another thread is writing to the file
constexpr int cTriesAtEnd = 50;
constexpr std::chrono::milliseconds cForkPatience{1000};

std::atomic<TLineFlusher*> GInstance{nullptr};
std::atomic<bool> GIsEnding{false};
constinit thread_local TLineFlusher* GForking = nullptr; // locked by a fork of this thread

[[maybe_unused]] const bool GIsWatched = [] {
    platform::AroundFork(platform::TForkRank::LogFiles, &TLineFlusher::BeginFork,
                         &TLineFlusher::EndForkInParent, &TLineFlusher::EndForkInChild);
    return true;
}();

} // namespace

// Lives to the very end of the process, since destructors of the program may log.
TLineFlusher& TLineFlusher::Instance() {
    TLineFlusher* Result = GInstance.load(std::memory_order_acquire);
    if (Result != nullptr)
        return *Result;
    auto Fresh = std::make_unique<TLineFlusher>();
    if (!GInstance.compare_exchange_strong(Result, Fresh.get(), std::memory_order_acq_rel))
        return *Result;
    std::atexit(End);
    return *Fresh.release();
}

bool TLineFlusher::IsEnding() noexcept {
    return GIsEnding.load(std::memory_order_relaxed);
}

void TLineFlusher::Add(TQzTextFile& AFile) {
    const std::lock_guard Hold(FLock);
    FForkFiles.reserve(FFiles.size() + 1);
    FFiles.push_back(&AFile);
}

bool TLineFlusher::Duplicate(const UnicodeString& AFileName, platform::TFileHandle& AHandle) noexcept {
    const std::lock_guard Hold(FLock);
    return std::ranges::any_of(
        FFiles, [&](TQzTextFile* AFile) { return AFile->DuplicateTo(AFileName, AHandle, {}); });
}

void TLineFlusher::Remove(TQzTextFile& AFile) noexcept {
    std::unique_lock Hold(FLock);
    FIdle.wait(Hold, [&] { return FBusy != &AFile; });
    std::erase(FFiles, &AFile);
}

bool TLineFlusher::Wake() noexcept {
    const std::lock_guard Hold(FWakeLock);
    if (!FHasThread)
        FHasThread = platform::StartServiceThread(Run);
    FSomeWait = true;
    if (FHasThread)
        FWake.notify_one();
    return FHasThread;
}

void TLineFlusher::Run() noexcept {
    platform::SetCurrentThreadName("log flusher");
    Instance().Serve();
}

void TLineFlusher::Serve() noexcept {
    std::unique_lock Hold(FWakeLock);
    std::uint32_t Pause = cPatience;
    for (;;) {
        FWake.wait(Hold, [this] { return FSomeWait; });
        FSomeWait = false;
        Hold.unlock();
        platform::SleepMs(Pause);
        const TOutcome Outcome = FlushAll();
        Hold.lock();
        FSomeWait = FSomeWait || Outcome != TOutcome::Done;
        Pause = Outcome == TOutcome::Busy ? cRetry : cPatience;
    }
}

// The worst outcome of all files. Files come and go meanwhile.
TLineFlusher::TOutcome TLineFlusher::FlushAll() noexcept {
    TOutcome Result = TOutcome::Done;
    std::unique_lock Hold(FLock);
    for (std::size_t I = FFiles.size(); I-- > 0;) { // new files are appended, so that none is left out
        if (I >= FFiles.size())
            continue;
        FBusy = FFiles[I];
        Hold.unlock();
        Result = std::max(Result, FlushOne(*FBusy));
        Hold.lock();
        FBusy = nullptr;
        FIdle.notify_all();
    }
    return Result;
}

TLineFlusher::TOutcome TLineFlusher::FlushOne(TQzTextFile& AFile) noexcept {
    TCriticalSection& Lock = AFile.Lock({});
    if (!Lock.TryEnter())
        return TOutcome::Busy;
    const TScopedLock Hold(Lock, std::adopt_lock);
    try {
        AFile.FlushWaiting({});
        return TOutcome::Done;
    } catch (...) {
        return TOutcome::Full;
    }
}

// Other threads may have been ended while they held locks, and a file that blocks must not keep back the
// others.
void TLineFlusher::End() {
    GIsEnding = true;
    TLineFlusher& Flusher = Instance();
    for (int Try = 0; Try < cTriesAtEnd; ++Try) {
        TOutcome Outcome = TOutcome::Busy;
        if (Flusher.FLock.try_lock()) {
            Outcome = TOutcome::Done;
            for (TQzTextFile* File : Flusher.FFiles)
                Outcome = std::max(Outcome, FlushOne(*File));
            Flusher.FLock.unlock();
        }
        if (Outcome != TOutcome::Busy)
            return;
        platform::SleepMs(cRetry);
    }
}

// A file whose lock another thread keeps is left out: an appender that the child has lost, or a write that
// blocks.
void TLineFlusher::LockForFork() {
    std::unique_lock Hold(FLock);
    FIdle.wait_for(Hold, cForkPatience, [this] { return FBusy == nullptr; });
    for (TQzTextFile* File : FFiles) {
        if (File != FBusy && File->Lock({}).TryEnter())
            FForkFiles.push_back(File);
    }
    FWakeLock.lock();
    static_cast<void>(Hold.release());
}

// All files are shared by two processes from here on.
void TLineFlusher::UnlockAfterFork(bool AIsChild) noexcept {
    for (TQzTextFile* File : FFiles)
        File->Share({});
    for (TQzTextFile* File : FForkFiles) {
        if (AIsChild)
            File->Inherit({});
        File->Lock({}).Leave();
    }
    FForkFiles.clear();
    FWakeLock.unlock();
    FLock.unlock();
}

void TLineFlusher::BeginFork() {
    GForking = GInstance.load(std::memory_order_acquire);
    if (GForking != nullptr)
        GForking->LockForFork();
}

void TLineFlusher::EndForkInParent() {
    if (GForking != nullptr)
        GForking->UnlockAfterFork(false);
}

// The thread does not exist here, nor do those that waited for a condition, so that the old flusher stays as
// it is.
void TLineFlusher::EndForkInChild() {
    TLineFlusher* const Old = GForking;
    if (Old == nullptr)
        return;
    auto Fresh = std::make_unique<TLineFlusher>();
    Fresh->FForkFiles.reserve(Old->FFiles.size());
    Fresh->FFiles = Old->FForkFiles;
    Old->UnlockAfterFork(true);
    Fresh->FOfParent = Old;
    GInstance = Fresh.release();
}

} // namespace qz
