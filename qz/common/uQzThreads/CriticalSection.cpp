#include <qz/common/uQzThreads/CriticalSection.h>

#include <qz/platform/Threads.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzCriticalSection);

constinit const TClassRec TQzCriticalSection::ClassRec =
    DescribeClass<TQzCriticalSection>(u"TQzCriticalSection", {.Unit = u"uQzThreads"});

void TQzCriticalSection::Entered() noexcept {
    if (++FLockCount == 1)
        FLockedBy.store(static_cast<std::int32_t>(platform::CurrentThreadId()), std::memory_order_relaxed);
}

bool TQzCriticalSection::TryEnter(std::uint32_t ATimeOut) noexcept {
    const std::uint32_t Start = platform::TickCount();
    while (!FCS.TryEnter()) {
        // The difference of the unsigned clocks stays right across a wrap.
        if (ATimeOut == 0 || platform::TickCount() - Start > ATimeOut)
            return false;
    }
    Entered();
    return true;
}

} // namespace qz
