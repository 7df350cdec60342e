#include "common/uQzLogger/LogAppenderCore.h"

#include <algorithm>

#include "common/uQzLogger/LogDispatch.h"
#include "common/uQzLogger/LogTreeLock.h"
#include "common/uQzLogger/QzLogger.h"

namespace qz::detail {

TAppenderSnapshot TLogAppenderCore::Items() const {
    const std::lock_guard Hold(FLock);
    return FItems;
}

bool TLogAppenderCore::Holds(const IQzLogAppender* AAppender) const {
    const std::lock_guard Hold(FLock);
    return std::any_of(FItems->begin(), FItems->end(),
                       [AAppender](const Ref<IQzLogAppender>& AItem) { return AItem.Get() == AAppender; });
}

bool TLogAppenderCore::Add(IQzLogAppender* AAppender) {
    {
        TAppenderSnapshot Old;
        const std::lock_guard Hold(FLock);
        const auto IsIt = [AAppender](const Ref<IQzLogAppender>& AItem) { return AItem.Get() == AAppender; };
        if (std::any_of(FItems->begin(), FItems->end(), IsIt))
            return false;
        auto Fresh = std::make_shared<TAppenders>(*FItems);
        Fresh->emplace_back(AAppender);
        Old = Replace(std::move(Fresh));
    }
    Changed();
    return true;
}

TAppenderSnapshot TLogAppenderCore::Replace(TAppenderSnapshot AItems) {
    FCount.store(static_cast<int>(AItems->size()), std::memory_order_relaxed);
    FVersion.fetch_add(1, std::memory_order_release);
    FItems.swap(AItems);
    return AItems;
}

void TLogAppenderCore::Changed() {
    const TLogTreeLock Hold;
    if (FLogger != nullptr)
        FLogger->AppendersChanged();
}

void TLogAppenderCore::LoseLogger() {
    const TLogTreeLock Hold;
    FLogger = nullptr;
}

void TLogAppenderCore::AwaitWrites() {
    if (IsDispatching() || TLogTreeLock::IsHeldByThisThread())
        return;
    FGate.Enter();
    FGate.Leave();
}

} // namespace qz::detail
