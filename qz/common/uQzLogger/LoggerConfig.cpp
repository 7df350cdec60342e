// TQzLogger: reads the values that a configurator gives.
#include <vector>

#include <qz/common/uQzLogger/LogBase.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/LoggerList.h>
#include <qz/common/uQzLogger/detail/LogDispatch.h>
#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {

using detail::TStateHold;

Ref<IQzLogConfigurator> TQzLogger::Configurator() const {
    const TStateHold Hold;
    return FConfigurator;
}

// The calling thread no longer configures this logger and those below it later.
void TQzLogger::DropQueuedConfigurations() {
    detail::TLogQueue* const Queue = detail::ThisLogThread().Queue;
    if (Queue == nullptr)
        return;
    std::erase_if(Queue->Configurations, [this](const detail::TQueuedConfiguration& AEach) {
        const TQzLogger* Node = AEach.Logger.Get();
        while (Node != nullptr && Node != this)
            Node = Node->FParent.Get();
        return Node == this;
    });
}

void TQzLogger::SetConfig(IQzLogConfigurator* AConfigurator) {
    const Ref<IQzLogConfigurator> Configurator(AConfigurator);
    if (Configurator == nullptr)
        DropQueuedConfigurations();
    const detail::TTreeHold Tree; // one thread at a time asks, and two make one appender of a name
    if (Configurator != nullptr && !Tree.IsHeld()) {
        detail::QueueOf(detail::ThisLogThread())
            .Configurations.push_back({Ref<TQzLogger>(this), Configurator});
        return;
    }
    std::vector<Ref<IQzLogConfigurator>> Old; // released after the lock
    {
        const TStateHold Hold;
        Old.push_back(std::exchange(FConfigurator, Configurator));
        std::vector<TQzLogger*> Nodes;
        if (Configurator == nullptr)
            Nodes.push_back(this);
        while (!Nodes.empty()) {
            TQzLogger* Node = Nodes.back();
            Nodes.pop_back();
            Old.push_back(std::exchange(Node->FConfigurator, {}));
            const TList<TQzLogger*>& Children = Node->FChildLoggers->Items({});
            Nodes.insert(Nodes.end(), Children.begin(), Children.end());
        }
    }
    if (Configurator == nullptr)
        return;
    if (const auto Ex = As<IQzLogConfiguratorEx>(Configurator))
        Ex->ConfigureLogger(*this);
    ReadLevel(*Configurator);
    ReadAppenders(*Configurator);
}

void TQzLogger::ReadLevel(IQzLogConfigurator& AConfigurator) {
    constexpr auto cNothing = static_cast<std::int32_t>(llDoNotLog);
    SetLevel(QzLogLevelOf(QzVarToInt(AConfigurator.GetLoggerValue(FullName(), u"Level", mtkInteger, cNothing),
                                     cNothing, true)));
    SetAdditive(QzVarToBool(AConfigurator.GetLoggerValue(FullName(), u"Additive", mtkBoolean, GetAdditive()),
                            GetAdditive(), true));
}

void TQzLogger::ReadAppenders(IQzLogConfigurator& AConfigurator) {
    const Variant Names = AConfigurator.GetLoggerValue(FullName(), u"Appenders", mtkArray, VarArrayOf({}));
    if (!VarIsArray(Names))
        return;
    const int Low = VarArrayLowBound(Names);
    const std::int64_t Count = std::int64_t{VarArrayHighBound(Names)} - Low + 1;
    for (int I = 0; I < Count; ++I) {
        const UnicodeString Name = QzVarToStr(VarArrayGet(Names, Low + I), {}, true);
        const UnicodeString ClassName =
            QzVarToStr(AConfigurator.GetAppenderValue(Name, u"class", mtkString, u""), {}, true);
        Ref<IQzLogAppender> Appender = AppenderInstances().Find(Name);
        if (Appender == nullptr && !ClassName.IsEmpty())
            Appender = As<IQzLogAppender>(MakeLogBase(RegisteredAppenders().GetClass(ClassName), this, Name));
        if (Appender != nullptr)
            AddAppender(Appender.Get());
        else
            detail::ReportProblem({FullName(), Name, {}, u"The appender does not exist and has no class"});
    }
}

} // namespace qz
