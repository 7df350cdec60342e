// IQzLogger: a logger as its users see it.
//
//     Ref<IQzLogger> Log = Logger().GetLogger("app.db");
//     Log->Info("connected");
//     Log->Debug("%s took %d ms", {Query, 17});
//     Log->Fatal("failed", Failure);
//
// A message goes to the appenders of the logger if its level is not below the logger's, then in the same way to those of
// the parent, and so on as long as the loggers are additive. Nothing that an appender or layout raises reaches the
// caller; LogDrops.h tells of it. A bad pattern raises EConvertError from the operation itself, before anything is
// logged. Texts are formatted whether or not somebody takes them: ask IsEnabledFor first where that costs too much.
//
// Any thread may call any operation. A message that arises while the thread writes to an appender, is asked by a logger for
// its values, or holds the lock of a list or of the tree, goes its way when that is over, and is not given to the appenders
// that were writing when it arose; an object that is its value comes as the text of its dump. Of more than 1000 such messages in a row the rest is dropped.
#pragma once

#include <qz/common/uQzLogger/LogData.h>
#include <qz/common/uQzLogger/LogInterfaces.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/base/VarRec.h>

namespace qz {

class IQzLogger : public IInterface {
public:
    static constexpr TGUID IID = Guid("{C9719FC7-DE99-4B3B-A008-A480D810D29E}");

    // Access. The lists belong to the logger and are as good as it is. A logger that has no parent, or whose tree was
    // closed, gives none.
    virtual Ref<IQzLogger> GetParentLogger() const = 0;
    virtual bool GetParentLevel() const = 0;
    // The logger's own level, or that of the nearest ancestor that has its own.
    virtual TQzLogLevel GetLevel() const = 0;
    virtual TQzLogAppenderList* GetAppenders() const = 0;
    virtual TQzLoggerList* GetChildLoggers() const = 0;
    virtual bool GetAdditive() const = 0;
    // The last part of the name, and the whole from the root: "b" and "root.a.b".
    virtual UnicodeString GetName() const = 0;
    virtual UnicodeString GetFullName() const = 0;
    virtual void SetAdditive(bool AValue) = 0;
    // Whether the level is the parent's. False brings the logger's own level back.
    virtual void SetParentLevel(bool AValue) = 0;
    virtual void SetLevel(TQzLogLevel AValue) = 0;
    // Has the logger ask for its values now. Null takes the configurator from the whole tree below, whose values stay.
    virtual void SetConfig(IQzLogConfigurator* AConfigurator) = 0;

    // The logger of that path below this one, made where it does not exist, and configured then by the configurator of
    // the root. A logger lives as long as somebody holds it or one below it, and so do its level and appenders. Parts
    // that are empty do not count; without any it is this logger. Raises what the configurator raises.
    virtual Ref<IQzLogger> GetLogger(const TStringArg& AName) = 0;
    // The one that bears the name of the object's class.
    virtual Ref<IQzLogger> GetLogger(const TObject* AObject) = 0;

    virtual bool IsDebugEnabled() const = 0;
    virtual bool IsErrorEnabled() const = 0;
    virtual bool IsFatalEnabled() const = 0;
    virtual bool IsInfoEnabled() const = 0;
    virtual bool IsWarnEnabled() const = 0;
    // Whether the level is not below GetLevel.
    virtual bool IsEnabledFor(TQzLogLevel ALevel) const = 0;

    // Messages. With an object, Trace begins the message with its class and address, EnterMethod and ExitMethod with its
    // class. Patterns and their arguments are those of Format.
    virtual void Trace(const TStringArg& AMessage) = 0;
    virtual void Trace(const TObject* AObject, const TStringArg& AMessage) = 0;
    virtual void Trace(const TObject* AObject, const TStringArg& APattern, TVarRecs AArgs) = 0;
    virtual void Debug(const TStringArg& AMessage) = 0;
    virtual void Debug(const TStringArg& APattern, TVarRecs AArgs) = 0;
    virtual void Debug(const TStringArg& AMessage, const Variant& AValue) = 0;
    virtual void Debug(const TStringArg& AMessage, const TObject* AValue) = 0;
    virtual void Debug(const TStringArg& AMessage, const Exception& AValue) = 0;
    virtual void Info(const TStringArg& AMessage) = 0;
    virtual void Warn(const TStringArg& AMessage) = 0;
    virtual void Error(const TStringArg& AMessage) = 0;
    virtual void Fatal(const TStringArg& AMessage) = 0;
    virtual void Fatal(const TStringArg& APattern, TVarRecs AArgs) = 0;
    virtual void Fatal(const Exception& AValue) = 0;
    virtual void Fatal(const TStringArg& AMessage, const Exception& AValue) = 0;
    // A counter for a reader that collects such: the message "#counter::NAME#" of level llDebug with the value.
    virtual void Count(const TStringArg& AName, std::int32_t AValue) = 0;
    // Does nothing: no log is kept in memory.
    virtual void ClearLog() = 0;
    // The lines from this one on stand deeper, until ExitMethod.
    virtual void EnterMethod(const TStringArg& AMessage, TQzLogLevel ALevel = llTrace) = 0;
    virtual void EnterMethod(const TStringArg& APattern, TVarRecs AArgs, TQzLogLevel ALevel = llTrace) = 0;
    virtual void EnterMethod(const TObject* AObject, const TStringArg& AMessage,
                             TQzLogLevel ALevel = llTrace) = 0;
    virtual void EnterMethod(const TObject* AObject, const TStringArg& APattern, TVarRecs AArgs,
                             TQzLogLevel ALevel = llTrace) = 0;
    virtual void ExitMethod(const TStringArg& AMessage, TQzLogLevel ALevel = llTrace) = 0;
    virtual void ExitMethod(const TStringArg& APattern, TVarRecs AArgs, TQzLogLevel ALevel = llTrace) = 0;
    virtual void ExitMethod(const TObject* AObject, const TStringArg& AMessage,
                            TQzLogLevel ALevel = llTrace) = 0;
    virtual void Log(TQzLogLevel ALevel, const TStringArg& AMessage, TQzLogIndent AIndent = liIndentNone) = 0;
    virtual void Log(TQzLogLevel ALevel, const TStringArg& AMessage, const Variant& AValue,
                     TQzLogIndent AIndent = liIndentNone) = 0;
    virtual void Log(TQzLogLevel ALevel, const TStringArg& AMessage, const TObject* AValue,
                     TQzLogIndent AIndent = liIndentNone) = 0;
    virtual void Log(TQzLogLevel ALevel, const TStringArg& AMessage, const Exception& AValue,
                     TQzLogIndent AIndent = liIndentNone) = 0;
    virtual void Log(IQzLogData* AData) = 0;
    virtual void LogValue(TQzLogLevel ALevel, const TStringArg& AMessage, const TValue& AValue,
                          TQzLogIndent AIndent = liIndentNone) = 0;

    // Appenders; see TQzLogAppenderList, also for when a call that removes one waits for messages on their way to it.
    virtual void AddAppender(IQzLogAppender* AAppender) = 0;
    virtual Ref<IQzLogAppender> AddAppender(TQzLogBaseClass AClass) = 0;
    virtual void RemoveAppender(IQzLogAppender* AAppender) = 0;
    virtual void ClearAppenders() = 0;
    // Holds up the messages of this logger, and all of this thread, for a walk through the list, until UnLockAppenders on
    // the same thread, which raises EAssertionFailed on one that holds nothing.
    virtual TQzLogAppenderList* LockAppenders() = 0;
    virtual void UnLockAppenders() = 0;

    // The same for an appender of this library, which may be an IQzLogAppender in more ways than one.
    QZ_API void AddAppender(TQzBaseAppender* AAppender);
    QZ_API void RemoveAppender(TQzBaseAppender* AAppender);

protected:
    ~IQzLogger() = default;
};

} // namespace qz
