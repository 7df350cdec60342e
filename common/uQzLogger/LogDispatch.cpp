#include "common/uQzLogger/LogDispatch.h"

#include <algorithm>
#include <vector>

#include "common/uQzLogger/DataRec.h"
#include "common/uQzLogger/LogAppenderCore.h"
#include "common/uQzLogger/LogDrops.h"
#include "common/uQzLogger/QzLogger.h"

namespace qz::detail {
namespace {

// A message that an appender logged while it wrote.
struct TWaitingMessage {
    Ref<TQzLogger> Logger;
    UnicodeString Source;
    TQzLogLevel Level;
    UnicodeString Text;
    TValue Value;
    bool HasValue;
    TQzLogIndent Indent;
    std::vector<const IQzLogAppender*> Skipped; // the appenders that were writing when it arose
};

// The message that a thread is on the way with, and those that arose from it.
struct TDispatch {
    const IQzLogAppender* Writing = nullptr;
    Ref<IQzLogAppender> Failed; // the one that raised
    std::vector<const IQzLogAppender*> Skipped;
    std::vector<TWaitingMessage> Waiting;
};

thread_local TDispatch* GDispatch = nullptr;

// An object may be gone when its turn comes, so that its text is taken at once.
TValue Keep(PQzDataRec AValue) {
    if (AValue == nullptr)
        return {};
    if (AValue->Kind() == tkClass || AValue->Kind() == tkVariant)
        return QzDataRecToString(AValue);
    return *AValue;
}

void Enqueue(TQzLogger& ALogger, const TLogMessage& AMessage) {
    TDispatch& Present = *GDispatch;
    TWaitingMessage Message{Ref<TQzLogger>(&ALogger), AMessage.Source,      AMessage.Level,
                            AMessage.Text.ToString(), Keep(AMessage.Value), AMessage.Value != nullptr,
                            AMessage.Indent,          Present.Skipped};
    if (Present.Writing != nullptr)
        Message.Skipped.push_back(Present.Writing);
    Present.Waiting.push_back(std::move(Message));
}

void WriteToAppenders(TQzLogger& ALogger, const TLogMessage& AMessage, const UnicodeString& AText) {
    TLogAppenderCore& Core = ALogger.AppenderCore();
    TDispatch& Present = *GDispatch;
    const TScopedLock Hold(Core.Gate());
    const std::uint32_t Version = Core.Version();
    const TAppenderSnapshot Items = Core.Items();
    for (const Ref<IQzLogAppender>& Item : *Items) {
        IQzLogAppender* Appender = Item.Get();
        const bool IsSkipped =
            std::find(Present.Skipped.begin(), Present.Skipped.end(), Appender) != Present.Skipped.end();
        if (IsSkipped || (Core.Version() != Version && !Core.Holds(Appender)))
            continue;
        Present.Writing = Appender;
        try {
            Appender->Write(AMessage.Source, ALogger.FullName(), AMessage.Level, AText, AMessage.Value,
                            AMessage.Indent);
        } catch (...) {
            Present.Failed = Item;
            throw;
        }
        Present.Writing = nullptr;
    }
}

void Walk(TQzLogger& ALogger, const TLogMessage& AMessage) {
    UnicodeString Text;
    bool HasText = false;
    for (TQzLogger* Node = &ALogger; Node != nullptr; Node = Node->NextOnTheWay()) {
        if (AMessage.Level < Node->GetLevel() || Node->AppenderCore().IsEmpty())
            continue;
        if (!HasText)
            Text = AMessage.Text.ToString();
        HasText = true;
        WriteToAppenders(*Node, AMessage, Text);
    }
}

// What was raised ends the way of the message, and is told when no lock is held any more.
void WalkQuietly(TQzLogger& ALogger, const TLogMessage& AMessage) noexcept {
    try {
        Walk(ALogger, AMessage);
    } catch (...) {
        GDispatch->Writing = nullptr;
        const Ref<IQzLogAppender> Failed = std::move(GDispatch->Failed);
        ReportDrop(ALogger, Failed.Get());
    }
}

void SendWaiting(TDispatch& APresent) noexcept {
    for (std::size_t I = 0; I < APresent.Waiting.size(); ++I) {
        TWaitingMessage Message = std::move(APresent.Waiting[I]);
        APresent.Skipped = std::move(Message.Skipped);
        WalkQuietly(*Message.Logger,
                    {Message.Source, Message.Level, TStringArg(Message.Text),
                     Message.HasValue ? &Message.Value : nullptr, Message.Indent});
    }
}

} // namespace

bool IsDispatching() noexcept {
    return GDispatch != nullptr;
}

void Dispatch(TQzLogger& ALogger, const TLogMessage& AMessage) noexcept {
    if (GDispatch != nullptr) {
        try {
            Enqueue(ALogger, AMessage);
        } catch (...) {
            ReportDrop(ALogger, nullptr);
        }
        return;
    }
    TDispatch Present;
    GDispatch = &Present;
    WalkQuietly(ALogger, AMessage);
    SendWaiting(Present);
    GDispatch = nullptr;
}

} // namespace qz::detail
