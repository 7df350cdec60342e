// TQzLogger: a node in the tree of loggers, and the root of the tree.
//
//     Logger().AddAppender(TQzLogBaseClass::Of<TQzFileAppender>());
//     Ref<IQzLogger> Log = Logger().GetLogger("app.db");       // keep it: its level lives as long as it does
//     Log->SetLevel(llInfo);
//     Log->Info("connected");
//     CloseRootLogger();
//
// IQzLogger says what a logger does. Beyond that: the root lives until CloseRootLogger or the end of the
// program. Logger() makes a new one afterwards, also for destructors that run later. A logger that outlives
// its root writes to its own appenders and to those of its ancestors below the root. After a fork the child
// can log.
//
// A message that no appender takes costs one comparison, and the check of its pattern: each logger knows the
// lowest level at which an appender on the way to the root would be called.
#pragma once

#include <atomic>
#include <memory>
#include <span>

#include <qz/common/uQzLogger/LogInterfaces.h>
#include <qz/common/uQzLogger/LoggerInterface.h>
#include <qz/runtime/base/AccessKey.h>
#include <qz/runtime/objects/InterfacedObject.h>

namespace qz {

namespace detail {
class TAppenderSet;
class TLogDispatch;
class TLogFork;
} // namespace detail

class QZ_API TQzLogger : public TCreateOnly<TObject>, public IQzLogger {
    QZ_CLASS(TQzLogger, TObject)

public:
    // Access.
    Ref<IQzLogger> GetParentLogger() const override;
    bool GetParentLevel() const override { return FParentLevel.load(std::memory_order_relaxed); }
    TQzLogLevel GetLevel() const override { return FEffectiveLevel.load(std::memory_order_relaxed); }
    TQzLogAppenderList* GetAppenders() const override { return FAppenders.get(); }
    TQzLoggerList* GetChildLoggers() const override { return FChildLoggers.get(); }
    bool GetAdditive() const override { return FAdditive.load(std::memory_order_relaxed); }
    UnicodeString GetName() const override { return FName; }
    UnicodeString GetFullName() const override { return FullName(); }
    const UnicodeString& Name() const noexcept { return FName; }
    const UnicodeString& FullName() const;
    void SetAdditive(bool AValue) override;
    void SetParentLevel(bool AValue) override;
    void SetLevel(TQzLogLevel AValue) override;
    void SetConfig(IQzLogConfigurator* AConfigurator) override;
    Ref<IQzLogConfigurator> Configurator() const;

    // Tree.
    Ref<IQzLogger> GetLogger(const TStringArg& AName) override;
    Ref<IQzLogger> GetLogger(const TObject* AObject) override;
    // Detaches all children, which have no parent then. Raises as TQzLoggerList::Lock does, under the full
    // name and ".ClearChildLoggers".
    void ClearChildLoggers();
    // One lock for all trees, which re-enters and waits as long as it takes. Always true; the arguments are
    // not used. An appender that writes, and a thread that holds a list of appenders, must not call it.
    bool Lock(const TStringArg& AName, bool ARaise);
    void Unlock();

    bool IsDebugEnabled() const override { return IsEnabledFor(llDebug); }
    bool IsErrorEnabled() const override { return IsEnabledFor(llError); }
    bool IsFatalEnabled() const override { return IsEnabledFor(llFatal); }
    bool IsInfoEnabled() const override { return IsEnabledFor(llInfo); }
    bool IsWarnEnabled() const override { return IsEnabledFor(llWarn); }
    bool IsEnabledFor(TQzLogLevel ALevel) const override { return ALevel >= GetLevel(); }

    // Messages.
    using IQzLogger::Debug;
    using IQzLogger::Error;
    using IQzLogger::Fatal;
    using IQzLogger::Info;
    using IQzLogger::Log;
    using IQzLogger::Trace;
    using IQzLogger::Warn;
    void Trace(const TQzLogText& AMessage) override;
    void Trace(const TObject* AObject, const TQzLogText& AMessage) override;
    void Trace(const TObject* AObject, const TQzLogText& APattern, TVarRecs AArgs) override;
    void Debug(const TQzLogText& AMessage) override;
    void Debug(const TQzLogText& APattern, TVarRecs AArgs) override;
    void Debug(const TQzLogText& AMessage, const Variant& AValue) override;
    void Debug(const TQzLogText& AMessage, const TObject* AValue) override;
    void Debug(const TQzLogText& AMessage, const Exception& AValue) override;
    void Info(const TQzLogText& AMessage) override;
    void Warn(const TQzLogText& AMessage) override;
    void Error(const TQzLogText& AMessage) override;
    void Fatal(const TQzLogText& AMessage) override;
    void Fatal(const TQzLogText& APattern, TVarRecs AArgs) override;
    void Fatal(const Exception& AValue) override;
    void Fatal(const TQzLogText& AMessage, const Exception& AValue) override;
    void Count(const TStringArg& AName, std::int32_t AValue) override;
    void ClearLog() override;
    void EnterMethod(const TQzLogText& AMessage, TQzLogLevel ALevel = llTrace) override;
    void EnterMethod(const TQzLogText& APattern, TVarRecs AArgs, TQzLogLevel ALevel = llTrace) override;
    void EnterMethod(const TObject* AObject, const TQzLogText& AMessage,
                     TQzLogLevel ALevel = llTrace) override;
    void EnterMethod(const TObject* AObject, const TQzLogText& APattern, TVarRecs AArgs,
                     TQzLogLevel ALevel = llTrace) override;
    void ExitMethod(const TQzLogText& AMessage, TQzLogLevel ALevel = llTrace) override;
    void ExitMethod(const TQzLogText& APattern, TVarRecs AArgs, TQzLogLevel ALevel = llTrace) override;
    void ExitMethod(const TObject* AObject, const TQzLogText& AMessage,
                    TQzLogLevel ALevel = llTrace) override;
    void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, TQzLogIndent AIndent = liIndentNone) override;
    void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const Variant& AValue,
             TQzLogIndent AIndent = liIndentNone) override;
    void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const TObject* AValue,
             TQzLogIndent AIndent = liIndentNone) override;
    void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const Exception& AValue,
             TQzLogIndent AIndent = liIndentNone) override;
    void Log(IQzLogData* AData) override;
    void LogValue(TQzLogLevel ALevel, const TQzLogText& AMessage, const TValue& AValue,
                  TQzLogIndent AIndent = liIndentNone) override;
    // Delivers the message under that source; all others end here. Raises nothing.
    void DoLog(const UnicodeString& ASource, TQzLogLevel ALevel, const TQzLogText& AMessage,
               PQzDataRec AValue, TQzLogIndent AIndent) noexcept;

    // Appenders.
    using IQzLogger::AddAppender;
    using IQzLogger::RemoveAppender;
    void AddAppender(IQzLogAppender* AAppender) override;
    Ref<IQzLogAppender> AddAppender(TQzLogBaseClass AClass) override;
    void RemoveAppender(IQzLogAppender* AAppender) override;
    void ClearAppenders() override;
    TQzLogAppenderList* LockAppenders() override;
    void UnLockAppenders() override;

    // Raises EAssertionFailed for a logger without parent, "Do not get the IQzLogger interface from the
    // rootlogger!", since its count does not decide its life. A Ref takes the interface without this call.
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override;
    std::uint32_t _AddRef() override;
    // The last one destroys a logger that was made with a parent. If an appender that writes drops it, or a
    // thread that holds a list of appenders, that happens afterwards.
    std::uint32_t _Release() override;
    int RefCount() const noexcept { return FRefCount.Value(); }

    void AfterConstruction() override;
    void BeforeDestruction() override;

    // The next logger that a message goes to; null at the end.
    const TQzLogger* NextOnTheWay(TAccessKey<detail::TLogDispatch>) const noexcept { return NextOnTheWay(); }
    detail::TAppenderSet& AppenderSet(TAccessKey<detail::TLogDispatch>) const noexcept { return *FSet; }
    // Increments unless the logger ends.
    bool TryAddRef(TAccessKey<detail::TLogDispatch>) noexcept { return TryAddRef(); }
    // A reference unless the logger ends; null then.
    Ref<TQzLogger> Hold(TAccessKey<TQzLogBase>) noexcept;
    // The caller holds the state lock.
    void AppendersChanged(TAccessKey<detail::TAppenderSet>) { Recompute(); }
    // In the child of a fork, for all loggers; see TAppenderSet::BeginChild.
    static void BeginChild(std::span<TQzLogBase* const> ALost, TAccessKey<detail::TLogFork>);

protected:
    // AParent is null for a logger outside the tree, which its maker ends by Free while nothing uses it.
    TQzLogger(TQzLogger* AParent, const UnicodeString& AName);
    ~TQzLogger() override;
    void FinishCreate() override;
    bool BeginDestruction() noexcept override { return !FIsEnding.exchange(true); }

private:
    friend QZ_API TQzLogger& Logger();
    friend QZ_API void CloseRootLogger();
    friend struct TLogUnit;
    // Above all levels: there is no appender on the way.
    static constexpr auto cLevelOfNobody = static_cast<TQzLogLevel>(static_cast<int>(llDoNotLog) + 1);
    bool IsOrphan() const noexcept { return FIsOrphan.load(std::memory_order_relaxed); }
    bool IsTaken(TQzLogLevel ALevel) const noexcept {
        return ALevel >= FTakenFrom.load(std::memory_order_relaxed);
    }
    const TQzLogger* NextOnTheWay() const noexcept {
        return GetAdditive() && !IsOrphan() ? FParent.Get() : nullptr;
    }
    bool TryAddRef() noexcept;
    void Send(TQzLogLevel ALevel, const TQzLogText& AMessage, PQzDataRec AValue = nullptr,
              TQzLogIndent AIndent = liIndentNone);
    void SendPattern(TQzLogLevel ALevel, const TQzLogText& APattern, const TVarRecs& AArgs,
                     TQzLogIndent AIndent = liIndentNone);
    void SendTaken(TQzLogLevel ALevel, const TQzLogText& AMessage, PQzDataRec AValue, TQzLogIndent AIndent);
    void SendToNobody(TQzLogLevel ALevel, const TQzLogText& AMessage) const;
    Ref<TQzLogger> Child(std::u16string_view AName);
    void Recompute();
    bool RecomputeOwn() noexcept;
    void DetachChildren(bool ADropParent);
    void DropQueuedConfigurations();
    void ReadLevel(IQzLogConfigurator& AConfigurator);
    void ReadAppenders(IQzLogConfigurator& AConfigurator);
    bool DropReference(std::int32_t& ACount);
    void Retire();

    const UnicodeString FName;
    mutable UnicodeString FFullName; // set once, at its first use
    mutable std::atomic<bool> FHasFullName{false};
    TRefCount FRefCount{1};
    TOwned<TQzLogAppenderList> FAppenders;
    const std::shared_ptr<detail::TAppenderSet> FSet; // of FAppenders
    // Held for the life of this logger, so that a message on its way never meets a destroyed parent.
    Ref<TQzLogger> FParent;
    std::atomic<bool> FIsOrphan{false}; // the tree was closed: FParent counts as null
    TOwned<TQzLoggerList> FChildLoggers;
    std::atomic<bool> FParentLevel{true};
    std::atomic<TQzLogLevel> FLevel{llDebug};
    std::atomic<bool> FAdditive{true};
    Ref<IQzLogConfigurator> FConfigurator; // guarded by the state lock
    bool FEndsByCount;
    std::atomic<bool> FIsEnding{false};
    // Follow from the above for this logger and its ancestors; written under the state lock. Dispatch reads
    // them without a lock: a thread that has learnt of a change in another way sees the new values, since the
    // change came first.
    std::atomic<TQzLogLevel> FEffectiveLevel{llDebug};
    std::atomic<TQzLogLevel> FTakenFrom; // the lowest level that an appender on the way takes
};

// The root, made when it is first asked for; its level is llDebug. The reference is good until
// CloseRootLogger.
QZ_API TQzLogger& Logger();
// Ends the tree, if there is one: the root drops its children and appenders. Must not be called while another
// thread uses the root by its reference; loggers that were got from it may be in use.
QZ_API void CloseRootLogger();

} // namespace qz
