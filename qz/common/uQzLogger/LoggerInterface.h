// IQzLogger: a logger as its users see it.
//
//     Ref<IQzLogger> Log = Logger().GetLogger("app.db");
//     Log->Info("connected");
//     Log->Debug("%s took %d ms", {Query, 17});
//     Log->Fatal("failed", Failure);
//
// A message goes to the appenders of the logger if its level is at least that of the logger. Then it goes in
// the same way to the parent, and so on as long as the loggers are additive. An exception of an appender or
// layout does not reach the caller (LogDrops.h). A bad pattern raises EConvertError from the operation
// itself, before anything is logged. A message that no appender takes is neither converted nor formatted, but
// its pattern is checked.
//
// Any thread may call any operation; it must not be cancelled by pthread_cancel meanwhile. A message that
// arises while an appender writes or a layout formats a line, on the same thread, is queued and delivered
// next, to all appenders that take it. So is a message of a thread that holds the lock of an appender, when
// it has left the lock. The text of an object that is its value is taken at once. Of more than 1000 such
// messages in a row the rest is dropped. The child of a fork does not deliver what the parent has queued.
//
// This header is for code that only logs. A message with a value needs Variant.h or Value.h as well.
#pragma once

#include <exception>

#include <qz/common/uQzLogger/LogText.h>
#include <qz/common/uQzLogger/LogTypes.h>
#include <qz/runtime/objects/Ref.h>

namespace qz {

class Exception;
class IQzLogAppender;
class IQzLogConfigurator;
class IQzLogData;
class TQzBaseAppender;
class TQzLogAppenderList;
class TQzLogBase;
class TQzLoggerList;
class Variant;
template <class TBase> class ClassRef;
using TQzLogBaseClass = ClassRef<TQzLogBase>;

class IQzLogger : public IInterface {
public:
    static constexpr TGUID IID = Guid("{C9719FC7-DE99-4B3B-A008-A480D810D29E}");

    // Access. The logger owns the lists. The parent is null for the root and after the tree was closed.
    virtual Ref<IQzLogger> GetParentLogger() const = 0;
    virtual bool GetParentLevel() const = 0;
    // The level of the logger, or that of the nearest ancestor that does not take its parent's.
    virtual TQzLogLevel GetLevel() const = 0;
    virtual TQzLogAppenderList* GetAppenders() const = 0;
    virtual TQzLoggerList* GetChildLoggers() const = 0;
    virtual bool GetAdditive() const = 0;
    // The last part of the name, and the path from the root: "b" and "root.a.b".
    virtual UnicodeString GetName() const = 0;
    virtual UnicodeString GetFullName() const = 0;
    virtual void SetAdditive(bool AValue) = 0;
    // Whether the level is the parent's. False restores the logger's own level.
    virtual void SetParentLevel(bool AValue) = 0;
    virtual void SetLevel(TQzLogLevel AValue) = 0;
    // Asks for the values of this logger now. A thread that holds an appender or a list of appenders, while
    // another one configures, asks when it releases the last of them, and overwrites what was set until then.
    // Null removes the configurator from this logger and all below it, and changes no values.
    virtual void SetConfig(IQzLogConfigurator* AConfigurator) = 0;

    // The logger of that path below this one. A new logger is configured by the configurator of the root. A
    // logger, with its level and appenders, lives as long as there is a reference to it or to one below it.
    // Empty parts of the path are skipped; an empty path gives this logger. Raises what the configurator
    // raises.
    virtual Ref<IQzLogger> GetLogger(const TStringArg& AName) = 0;
    // The logger with the name of the object's class.
    virtual Ref<IQzLogger> GetLogger(const TObject* AObject) = 0;

    virtual bool IsDebugEnabled() const = 0;
    virtual bool IsErrorEnabled() const = 0;
    virtual bool IsFatalEnabled() const = 0;
    virtual bool IsInfoEnabled() const = 0;
    virtual bool IsWarnEnabled() const = 0;
    // Whether the level is at least GetLevel.
    virtual bool IsEnabledFor(TQzLogLevel ALevel) const = 0;

    // Messages. For an object, Trace prepends its class and address, EnterMethod and ExitMethod its class.
    // Patterns and arguments are those of Format.
    virtual void Trace(const TQzLogText& AMessage) = 0;
    virtual void Trace(const TObject* AObject, const TQzLogText& AMessage) = 0;
    virtual void Trace(const TObject* AObject, const TQzLogText& APattern, TVarRecs AArgs) = 0;
    virtual void Debug(const TQzLogText& AMessage) = 0;
    virtual void Debug(const TQzLogText& APattern, TVarRecs AArgs) = 0;
    virtual void Debug(const TQzLogText& AMessage, const Variant& AValue) = 0;
    virtual void Debug(const TQzLogText& AMessage, const TObject* AValue) = 0;
    virtual void Debug(const TQzLogText& AMessage, const Exception& AValue) = 0;
    virtual void Info(const TQzLogText& AMessage) = 0;
    virtual void Warn(const TQzLogText& AMessage) = 0;
    virtual void Error(const TQzLogText& AMessage) = 0;
    virtual void Fatal(const TQzLogText& AMessage) = 0;
    virtual void Fatal(const TQzLogText& APattern, TVarRecs AArgs) = 0;
    virtual void Fatal(const Exception& AValue) = 0;
    virtual void Fatal(const TQzLogText& AMessage, const Exception& AValue) = 0;
    // A counter, which readers of logs can collect: the message "#counter::NAME#" of level llDebug with the
    // value.
    virtual void Count(const TStringArg& AName, std::int32_t AValue) = 0;
    // Does nothing, since no log is kept in memory.
    virtual void ClearLog() = 0;
    // This line and those up to ExitMethod are indented by one more step.
    virtual void EnterMethod(const TQzLogText& AMessage, TQzLogLevel ALevel = llTrace) = 0;
    virtual void EnterMethod(const TQzLogText& APattern, TVarRecs AArgs, TQzLogLevel ALevel = llTrace) = 0;
    virtual void EnterMethod(const TObject* AObject, const TQzLogText& AMessage,
                             TQzLogLevel ALevel = llTrace) = 0;
    virtual void EnterMethod(const TObject* AObject, const TQzLogText& APattern, TVarRecs AArgs,
                             TQzLogLevel ALevel = llTrace) = 0;
    virtual void ExitMethod(const TQzLogText& AMessage, TQzLogLevel ALevel = llTrace) = 0;
    virtual void ExitMethod(const TQzLogText& APattern, TVarRecs AArgs, TQzLogLevel ALevel = llTrace) = 0;
    virtual void ExitMethod(const TObject* AObject, const TQzLogText& AMessage,
                            TQzLogLevel ALevel = llTrace) = 0;
    virtual void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, TQzLogIndent AIndent = liIndentNone) = 0;
    virtual void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const Variant& AValue,
                     TQzLogIndent AIndent = liIndentNone) = 0;
    virtual void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const TObject* AValue,
                     TQzLogIndent AIndent = liIndentNone) = 0;
    virtual void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const Exception& AValue,
                     TQzLogIndent AIndent = liIndentNone) = 0;
    virtual void Log(IQzLogData* AData) = 0;
    virtual void LogValue(TQzLogLevel ALevel, const TQzLogText& AMessage, const TValue& AValue,
                          TQzLogIndent AIndent = liIndentNone) = 0;

    // Appenders. TQzLogAppenderList says when a removal waits.
    virtual void AddAppender(IQzLogAppender* AAppender) = 0;
    virtual Ref<IQzLogAppender> AddAppender(TQzLogBaseClass AClass) = 0;
    virtual void RemoveAppender(IQzLogAppender* AAppender) = 0;
    virtual void ClearAppenders() = 0;
    // Holds back messages of this logger on other threads, and changes of the list, until UnLockAppenders on
    // the same thread. That raises EAssertionFailed if the thread does not hold the lock.
    virtual TQzLogAppenderList* LockAppenders() = 0;
    virtual void UnLockAppenders() = 0;

    // Beyond the common operations. Patterns and arguments are those of Format. The value of a message is the
    // exception, or the text of what() for one that is no Exception. Error instead appends CR LF and the
    // message of the exception.
    void Info(const TQzLogText& APattern, TVarRecs AArgs) { Info(TQzLogText(APattern, AArgs)); }
    void Warn(const TQzLogText& APattern, TVarRecs AArgs) { Warn(TQzLogText(APattern, AArgs)); }
    void Error(const TQzLogText& APattern, TVarRecs AArgs) { Error(TQzLogText(APattern, AArgs)); }
    void Trace(const TQzLogText& AMessage, const std::exception& AValue) { Log(llTrace, AMessage, AValue); }
    void Debug(const TQzLogText& AMessage, const std::exception& AValue) { Log(llDebug, AMessage, AValue); }
    void Info(const TQzLogText& AMessage, const std::exception& AValue) { Log(llInfo, AMessage, AValue); }
    void Warn(const TQzLogText& AMessage, const std::exception& AValue) { Log(llWarn, AMessage, AValue); }
    QZ_API void Error(const TQzLogText& AMessage, const std::exception& AValue);
    QZ_API void Fatal(const std::exception& AValue);
    void Fatal(const TQzLogText& AMessage, const std::exception& AValue) { Log(llFatal, AMessage, AValue); }
    QZ_API void Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const std::exception& AValue,
                    TQzLogIndent AIndent = liIndentNone);

    // The same for an appender of this library, which may derive from IQzLogAppender in several ways.
    QZ_API void AddAppender(TQzBaseAppender* AAppender);
    QZ_API void RemoveAppender(TQzBaseAppender* AAppender);

protected:
    ~IQzLogger() = default;
};

} // namespace qz
