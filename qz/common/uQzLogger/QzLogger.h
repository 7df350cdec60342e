// TQzLogger: a node in the tree of loggers, and the root of the tree.
//
//     Logger().AddAppender(TQzLogBaseClass::Of<TQzFileAppender>());
//     Ref<IQzLogger> Log = Logger().GetLogger("app.db");       // keep it: its level lives as long as it does
//     Log->SetLevel(llInfo);
//     Log->Info("connected");
//     CloseRootLogger();
//
// IQzLogger tells what a logger does. Beyond that: the root lives until CloseRootLogger or the end of the program, and can
// be had again afterwards, also from destructors that run later. A logger that outlives its root writes to its own
// appenders and walks no further. After a fork the child can log.
//
// A message that no appender takes costs one comparison beside what its arguments cost (a narrow text is converted, a u""
// text is not): each logger knows the lowest level at which an appender on the way to the root would be called.
#pragma once

#include <atomic>
#include <memory>

#include <qz/common/uQzLogger/LogAppenderCore.h>
#include <qz/common/uQzLogger/LogAppenderList.h>
#include <qz/common/uQzLogger/LogDispatch.h>
#include <qz/common/uQzLogger/LoggerInterface.h>
#include <qz/common/uQzLogger/LoggerList.h>
#include <qz/runtime/objects/InterfacedObject.h>

namespace qz {

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
    // Lets go of all children, which are then without parent. Raises as TQzLoggerList::Lock does, under the full name and
    // ".ClearChildLoggers".
    void ClearChildLoggers();
    // One lock for all trees, which re-enters and waits as long as it takes. Always true; the arguments are not used.
    bool Lock(const TStringArg& AName, bool ARaise);
    void Unlock();

    bool IsDebugEnabled() const override { return IsEnabledFor(llDebug); }
    bool IsErrorEnabled() const override { return IsEnabledFor(llError); }
    bool IsFatalEnabled() const override { return IsEnabledFor(llFatal); }
    bool IsInfoEnabled() const override { return IsEnabledFor(llInfo); }
    bool IsWarnEnabled() const override { return IsEnabledFor(llWarn); }
    bool IsEnabledFor(TQzLogLevel ALevel) const override { return ALevel >= GetLevel(); }

    // Messages.
    void Trace(const TStringArg& AMessage) override;
    void Trace(const TObject* AObject, const TStringArg& AMessage) override;
    void Trace(const TObject* AObject, const TStringArg& APattern, TVarRecs AArgs) override;
    void Debug(const TStringArg& AMessage) override;
    void Debug(const TStringArg& APattern, TVarRecs AArgs) override;
    void Debug(const TStringArg& AMessage, const Variant& AValue) override;
    void Debug(const TStringArg& AMessage, const TObject* AValue) override;
    void Debug(const TStringArg& AMessage, const Exception& AValue) override;
    void Info(const TStringArg& AMessage) override;
    void Warn(const TStringArg& AMessage) override;
    void Error(const TStringArg& AMessage) override;
    // The message, CR LF, and that of the exception.
    void Error(const TStringArg& AMessage, const Exception& AValue);
    void Fatal(const TStringArg& AMessage) override;
    void Fatal(const TStringArg& APattern, TVarRecs AArgs) override;
    void Fatal(const Exception& AValue) override;
    void Fatal(const TStringArg& AMessage, const Exception& AValue) override;
    void Count(const TStringArg& AName, std::int32_t AValue) override;
    void ClearLog() override;
    void EnterMethod(const TStringArg& AMessage, TQzLogLevel ALevel = llTrace) override;
    void EnterMethod(const TStringArg& APattern, TVarRecs AArgs, TQzLogLevel ALevel = llTrace) override;
    void EnterMethod(const TObject* AObject, const TStringArg& AMessage,
                     TQzLogLevel ALevel = llTrace) override;
    void EnterMethod(const TObject* AObject, const TStringArg& APattern, TVarRecs AArgs,
                     TQzLogLevel ALevel = llTrace) override;
    void ExitMethod(const TStringArg& AMessage, TQzLogLevel ALevel = llTrace) override;
    void ExitMethod(const TStringArg& APattern, TVarRecs AArgs, TQzLogLevel ALevel = llTrace) override;
    void ExitMethod(const TObject* AObject, const TStringArg& AMessage,
                    TQzLogLevel ALevel = llTrace) override;
    void Log(TQzLogLevel ALevel, const TStringArg& AMessage, TQzLogIndent AIndent = liIndentNone) override;
    void Log(TQzLogLevel ALevel, const TStringArg& AMessage, const Variant& AValue,
             TQzLogIndent AIndent = liIndentNone) override;
    void Log(TQzLogLevel ALevel, const TStringArg& AMessage, const TObject* AValue,
             TQzLogIndent AIndent = liIndentNone) override;
    void Log(TQzLogLevel ALevel, const TStringArg& AMessage, const Exception& AValue,
             TQzLogIndent AIndent = liIndentNone) override;
    void Log(IQzLogData* AData) override;
    void LogValue(TQzLogLevel ALevel, const TStringArg& AMessage, const TValue& AValue,
                  TQzLogIndent AIndent = liIndentNone) override;
    // What all of them come to: the message goes its way under that source. Nothing is raised.
    void DoLog(const UnicodeString& ASource, TQzLogLevel ALevel, const TStringArg& AMessage,
               PQzDataRec AValue, TQzLogIndent AIndent) noexcept {
        if (IsTaken(ALevel))
            detail::Dispatch(*this, {ASource, ALevel, AMessage, AValue, AIndent});
    }

    // Appenders.
    using IQzLogger::AddAppender;
    using IQzLogger::RemoveAppender;
    void AddAppender(IQzLogAppender* AAppender) override;
    Ref<IQzLogAppender> AddAppender(TQzLogBaseClass AClass) override;
    void RemoveAppender(IQzLogAppender* AAppender) override;
    void ClearAppenders() override;
    TQzLogAppenderList* LockAppenders() override;
    void UnLockAppenders() override;

    // IQzLogger cannot be asked of a logger without parent, whose count does not decide its life: EAssertionFailed, "Do not
    // get the IQzLogger interface from the rootlogger!". A Ref takes it without asking.
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override;
    std::uint32_t _AddRef() override;
    // The last one ends a logger, unless it has no parent by birth; one that an appender drops while this logger's message is
    // on its way counts until that has arrived.
    std::uint32_t _Release() override;
    int RefCount() const noexcept { return FRefCount.Value(); }

    void AfterConstruction() override;
    void FinishCreate();
    void BeforeDestruction() override;
    bool BeginDestruction() noexcept override { return !FIsEnding.exchange(true); }

    // For what keeps the tree together: the way up, the appenders as dispatch sees them, and the word that there are
    // others now, under the lock of the tree.
    TQzLogger* NextOnTheWay() const noexcept {
        return GetAdditive() && !IsOrphan() ? FParent.Get() : nullptr;
    }
    detail::TLogAppenderCore& AppenderCore() const noexcept { return *FCore; }
    void AppendersChanged();
    // Counts a reference unless there is none left, as of a logger that ends.
    bool TryAddRef() noexcept;
    // The full name, which is not worked out for this.
    UnicodeString FullNameIfKnown() const;
    bool IsNamed(std::u16string_view AFullName) const noexcept;
    // Of all living loggers.
    static std::vector<detail::TLogAppenderCorePtr> AllAppenders();

protected:
    // AParent is null for a logger of its own, which its maker ends by Free, and which then must not be in use.
    TQzLogger(TQzLogger* AParent, const UnicodeString& AName);
    ~TQzLogger() override;

private:
    friend QZ_API TQzLogger& Logger();
    friend QZ_API void CloseRootLogger();
    bool IsOrphan() const noexcept { return FIsOrphan.load(std::memory_order_relaxed); }
    bool IsTaken(TQzLogLevel ALevel) const noexcept {
        return ALevel >= FTakenFrom.load(std::memory_order_relaxed);
    }
    void Send(TQzLogLevel ALevel, const TStringArg& AMessage, PQzDataRec AValue = nullptr,
              TQzLogIndent AIndent = liIndentNone);
    Ref<TQzLogger> Child(std::u16string_view AName);
    void Recompute();
    bool RecomputeOwn() noexcept;
    void DetachChildren(bool ALetGo);
    void LeaveParent();
    void ReadLevel(IQzLogConfigurator& AConfigurator);
    void ReadAppenders(IQzLogConfigurator& AConfigurator);
    bool DropReference(std::int32_t& ACount);
    void Retire();
    friend struct TLogUnit;

    UnicodeString FName;
    mutable UnicodeString FFullName; // set once, when it is first asked for
    mutable std::atomic<bool> FHasFullName{false};
    TRefCount FRefCount{1};
    TOwned<TQzLogAppenderList> FAppenders;
    detail::TLogAppenderCorePtr FCore; // of FAppenders
    // The parent is held as long as this logger lives, so that a message on its way never meets a dead one.
    Ref<TQzLogger> FParent;
    std::atomic<bool> FIsOrphan{false}; // there is no parent any more as far as anybody can tell
    TOwned<TQzLoggerList> FChildLoggers;
    std::atomic<bool> FParentLevel{true};
    std::atomic<TQzLogLevel> FLevel{llDebug};
    std::atomic<bool> FAdditive{true};
    Ref<IQzLogConfigurator> FConfigurator; // guarded by the lock of the tree
    bool FEndsByCount;
    std::atomic<bool> FIsEnding{false};
    // What follows from the above for this logger and its ancestors; changed under the lock of the tree. A message needs
    // no lock to read them: whoever has heard of a change in some other way has its values too, since the change came
    // first, and anybody else may be before it as well as behind it.
    std::atomic<TQzLogLevel> FEffectiveLevel{llDebug};
    std::atomic<TQzLogLevel> FTakenFrom; // the lowest level that an appender on the way takes
};

// The root, made when it is first asked for; its level is llDebug. The reference is good until CloseRootLogger.
QZ_API TQzLogger& Logger();
// Ends the tree, if there is one: the root lets go of its children and appenders. Must not be called while another thread
// uses the root by its reference; loggers that were got from it may be in use.
QZ_API void CloseRootLogger();

} // namespace qz
