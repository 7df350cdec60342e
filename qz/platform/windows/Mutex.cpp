#include <qz/platform/Mutex.h>

#include <new>

#include <windows.h>

namespace qz::platform {

namespace {

constexpr DWORD cSpins = 500;

CRITICAL_SECTION* SectionIn(std::byte* AState) noexcept {
    return std::launder(reinterpret_cast<CRITICAL_SECTION*>(AState));
}

} // namespace

TRecursiveMutex::TRecursiveMutex() noexcept {
    static_assert(sizeof(CRITICAL_SECTION) <= sizeof FState &&
                  alignof(CRITICAL_SECTION) <= alignof(TRecursiveMutex));
    auto* Section = ::new (static_cast<void*>(FState)) CRITICAL_SECTION;
    InitializeCriticalSectionAndSpinCount(Section, cSpins);
}

TRecursiveMutex::~TRecursiveMutex() {
    DeleteCriticalSection(SectionIn(FState));
}

void TRecursiveMutex::Enter() noexcept {
    EnterCriticalSection(SectionIn(FState));
}

bool TRecursiveMutex::TryEnter() noexcept {
    return TryEnterCriticalSection(SectionIn(FState)) != 0;
}

void TRecursiveMutex::Leave() noexcept {
    LeaveCriticalSection(SectionIn(FState));
}

} // namespace qz::platform
