#include <qz/common/uQzLogAppenders/LineFlusher.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <qz/common/uQzLogAppenders/TextFile.h>
#include <qz/platform/Threads.h>

namespace qz {
namespace {

// In milliseconds.
constexpr std::uint32_t cPatience = 700;
constexpr std::uint32_t cRetry = 20; // of a file that somebody is writing to
constexpr int cTriesAtEnd = 50;

std::atomic<TLineFlusher*> GInstance{nullptr};
std::atomic<bool> GIsEnding{false};

} // namespace

// It outlives the destructors of the program, from which logging goes on.
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

TLineFlusher* TLineFlusher::Existing() noexcept {
    return GInstance.load(std::memory_order_acquire);
}

bool TLineFlusher::IsEnding() noexcept {
    return GIsEnding.load(std::memory_order_relaxed);
}

void TLineFlusher::Add(TQzTextFile& AFile) {
    const std::lock_guard Hold(FLock);
    FLocked.reserve(FFiles.size() + 1);
    FFiles.push_back(&AFile);
}

void TLineFlusher::Remove(TQzTextFile& AFile) noexcept {
    std::unique_lock Hold(FLock);
    FIdle.wait(Hold, [&] { return FBusy != &AFile; });
    std::erase(FFiles, &AFile);
}

bool TLineFlusher::Await() noexcept {
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

// The worst of all files. Files come and go meanwhile.
TLineFlusher::TOutcome TLineFlusher::FlushAll() noexcept {
    TOutcome Result = TOutcome::Done;
    std::unique_lock Hold(FLock);
    for (std::size_t I = FFiles.size(); I-- > 0;) { // what comes stands behind, so that none is passed over
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
    if (!AFile.FLock.TryEnter())
        return TOutcome::Busy;
    const TScopedLock Hold(AFile.FLock, std::adopt_lock);
    try {
        AFile.FlushWaiting();
        return TOutcome::Done;
    } catch (...) {
        return TOutcome::Full;
    }
}

// Threads may have been ended in the middle of anything by now, and a file that hangs must not keep the others.
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

bool TLineFlusher::TryLock() {
    if (!FLock.try_lock())
        return false;
    if (FBusy == nullptr && FWakeLock.try_lock()) {
        for (TQzTextFile* File : FFiles) {
            if (!File->FLock.TryEnter()) {
                Unlock();
                return false;
            }
            FLocked.push_back(File);
        }
        return true;
    }
    FLock.unlock();
    return false;
}

void TLineFlusher::Unlock() noexcept {
    for (TQzTextFile* File : FLocked)
        File->FLock.Leave();
    FLocked.clear();
    FWakeLock.unlock();
    FLock.unlock();
}

void TLineFlusher::ShareAll() noexcept {
    for (TQzTextFile* File : FFiles)
        File->Share();
}

// The thread is not there any more, and whoever waited for a condition neither, so that the old flusher is left as it is.
void TLineFlusher::BeginChild() noexcept {
    TLineFlusher* const Old = Existing();
    if (Old == nullptr)
        return;
    try {
        auto Fresh = std::make_unique<TLineFlusher>();
        for (TQzTextFile* File : Old->FFiles)
            File->Inherit();
        Fresh->FLocked.reserve(Old->FFiles.size());
        Fresh->FFiles.swap(Old->FFiles);
        Fresh->FOfParent = Old;
        GInstance = Fresh.release();
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace qz
