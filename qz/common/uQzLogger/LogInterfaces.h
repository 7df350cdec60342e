// What a logger needs of others: appenders, which take messages somewhere, layouts, which make text of them, and the
// configurator, by which an application tells loggers and appenders how to behave.
//
//     class TMemoryAppender : public TQzBaseAppender { ... };          // see BaseAppender.h
//     class TMyConfiguration : public TInterfacedObject, public IQzLogConfigurator { ... };
#pragma once

#include <qz/common/uQzLogger/LogTypes.h>
#include <qz/common/uQzTypes/TypeKinds.h>
#include <qz/runtime/components/Component.h>

namespace qz {

class TQzBaseAppender;
class TQzLogAppenderList;
class TQzLogBase;
class TQzLogger;
class TQzLoggerList;
using TQzLogBaseClass = ClassRef<TQzLogBase>;

// What appenders and layouts have in common.
class IQzLogBase : public IInterface {
public:
    static constexpr TGUID IID = Guid("{0061FD2F-FEF2-4D47-A7B2-2B69A7EB2CE1}");

    virtual UnicodeString GetName() const = 0;
    // The object itself.
    virtual TComponent* Component() = 0;

protected:
    ~IQzLogBase() = default;
};

class IQzLogAppender : public IQzLogBase {
public:
    static constexpr TGUID IID = Guid("{D10CACCF-3B7D-4CBB-96D3-7C22BEF8FE7E}");

    // One message. ASource is the full name of the logger where it began, ALogger that of the logger whose appender is
    // being called, which may be an ancestor. Loggers call it from any thread, one logger one call at a time. What it
    // raises is dropped by the logger, and ends the way of that message.
    virtual void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
                       const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) = 0;
    // Lets go of what the appender writes to, until the next message.
    virtual void Close() = 0;

protected:
    ~IQzLogAppender() = default;
};

class IQzLogLayout : public IQzLogBase {
public:
    static constexpr TGUID IID = Guid("{5008EFF8-569C-4FD3-8C1D-FCCEF0DF632E}");

    // What stands behind the last message and before the first.
    virtual UnicodeString GetFooter() = 0;
    virtual UnicodeString GetHeader() = 0;
    // The message as text, without an end of line. Called for one message at a time.
    virtual UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel,
                                     const UnicodeString& AMessage, PQzDataRec AValue,
                                     TQzLogIndent AIndent) = 0;

protected:
    ~IQzLogLayout() = default;
};

// A layout that wants a file extension of its own.
class IQzLogLayoutEx : public IQzLogLayout {
public:
    static constexpr TGUID IID = Guid("{69516E7B-351A-4F40-AED4-7CD5FDCB3FFD}");

    virtual UnicodeString GetFileExt() = 0;

protected:
    ~IQzLogLayoutEx() = default;
};

// A layout that wants to know the appender that took it.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming): the name is fixed
class _IQzLogLayout : public IInterface {
public:
    static constexpr TGUID IID = Guid("{D47392EB-1BA9-4A9E-B586-0F8FCFF87448}");

    virtual void Initialize(TQzLogBase* ALogBase) = 0;

protected:
    ~_IQzLogLayout() = default;
};

// An appender with a layout. It bears the identifier of IQzLogAppender: whoever asks for the one gets the other.
class IQzLogAppenderEx : public IQzLogAppender {
public:
    static constexpr TGUID IID = IQzLogAppender::IID;

    virtual void SetLayout(IQzLogLayout* ALayout) = 0;
    // A new layout of that class.
    virtual void SetLayout(TQzLogBaseClass AClass) = 0;
    // A new layout of the class of that name in RegisteredLayouts; EListError, "Class %s not found!".
    virtual void SetLayout(const UnicodeString& AClassName) = 0;

protected:
    ~IQzLogAppenderEx() = default;
};

// The keys that loggers and appenders ask for:
//
//     logger    Level            mtkInteger   a TQzLogLevel; a logger without an answer logs nothing (7)
//               Additive         mtkBoolean   whether messages go on to the parent
//               Appenders        mtkArray     the names of its appenders, an array of texts
//     appender  class            mtkString    a name in RegisteredAppenders; asked where no appender has the name yet
//               Layout           mtkString    a name in RegisteredLayouts
//               AppendExisting   mtkBoolean   FileName, FileExt  mtkString              of an appender to a file
//               MaxFileSize, MaxBackupCount   mtkInteger         DatePattern  mtkString of one that changes its file
//               ServiceName      mtkString    of one to the event log
//
// A configurator is asked under the lock of the tree: it may log, get loggers and change appenders, and must neither wait for
// another thread that does so nor for the lock of an appender.
//
// Keys are written as they stand here. Every question has a default, which is the answer for a key that the configurator
// does not know.
class IQzLogConfigurator : public IInterface {
public:
    static constexpr TGUID IID = Guid("{28A992A8-9491-4F32-B3BC-851901F67357}");

    // ALogger is the logger's full name.
    virtual Variant GetLoggerValue(const UnicodeString& ALogger, const UnicodeString& AKey,
                                   TQzMainTypeKind AKind, const Variant& ADefault) = 0;
    // AAppender is the appender's name.
    virtual Variant GetAppenderValue(const UnicodeString& AAppender, const UnicodeString& AKey,
                                     TQzMainTypeKind AKind, const Variant& ADefault) = 0;
    // For the application's own use; nothing in the library calls it.
    virtual void Reserved() {}

protected:
    ~IQzLogConfigurator() = default;
};

class IQzLogConfiguratorEx : public IQzLogConfigurator {
public:
    static constexpr TGUID IID = Guid("{A57D0CA9-7632-4A0E-8333-DAF4BDA6CF3E}");

    // Called before the logger asks for its values.
    virtual void ConfigureLogger(TQzLogger& ALogger) = 0;

protected:
    ~IQzLogConfiguratorEx() = default;
};

} // namespace qz
