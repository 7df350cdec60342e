// What loggers call: appenders, which write messages, layouts, which format them, and the configurator, by
// which an application sets the values of loggers and appenders.
//
//     class TMyConfiguration : public TInterfacedObject, public IQzLogConfigurator {
//         ...
//     };
#pragma once

#include <qz/common/uQzLogger/LogTypes.h>
#include <qz/common/uQzTypes/TypeKinds.h>
#include <qz/runtime/values/Value.h>

namespace qz {

class TComponent;
class TQzBaseAppender;
class TQzLogBase;
class TQzLogger;
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

    // Writes a message. ASource is the full name of the logger where it began, ALogger that of the logger
    // whose appender is called, which may be an ancestor. Called on any thread; one logger makes one call at
    // a time. An exception ends the delivery of the message, and the logger drops it.
    virtual void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
                       const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) = 0;
    // Closes what the appender writes to, until the next message.
    virtual void Close() = 0;

protected:
    ~IQzLogAppender() = default;
};

class IQzLogLayout : public IQzLogBase {
public:
    static constexpr TGUID IID = Guid("{5008EFF8-569C-4FD3-8C1D-FCCEF0DF632E}");

    // The text after the last message and before the first.
    virtual UnicodeString GetFooter() = 0;
    virtual UnicodeString GetHeader() = 0;
    // The message as text, without an end of line. Called for one message at a time.
    virtual UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel,
                                     const UnicodeString& AMessage, PQzDataRec AValue,
                                     TQzLogIndent AIndent) = 0;

protected:
    ~IQzLogLayout() = default;
};

// A layout with a file extension of its own.
class IQzLogLayoutEx : public IQzLogLayout {
public:
    static constexpr TGUID IID = Guid("{69516E7B-351A-4F40-AED4-7CD5FDCB3FFD}");

    virtual UnicodeString GetFileExt() = 0;

protected:
    ~IQzLogLayoutEx() = default;
};

// A layout whose lines belong to a document with an end.
class IQzLogDocument : public IInterface {
public:
    static constexpr TGUID IID = Guid("{8C1FE0A4-3B52-4D0B-9C37-5F0B6B1D7A26}");

    // Whether a file that is opened again is continued before its footer, which is removed.
    virtual bool ContinuesDocument() = 0;

protected:
    ~IQzLogDocument() = default;
};

// A layout that needs the appender it is set to.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming): the name is fixed
class _IQzLogLayout : public IInterface {
public:
    static constexpr TGUID IID = Guid("{D47392EB-1BA9-4A9E-B586-0F8FCFF87448}");

    virtual void Initialize(TQzLogBase* ALogBase) = 0;

protected:
    ~_IQzLogLayout() = default;
};

// An appender with a layout. It has the identifier of IQzLogAppender, so that a query for either gives the
// same interface.
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

// Of appenders to a file. All their interfaces share this identifier: ask for no interface of a descendant.
class IQzFileAppender : public IQzLogAppender {
public:
    static constexpr TGUID IID = Guid("{36A4304E-7A72-4C9C-A6B8-AE1B4B533E9E}");

    virtual UnicodeString GetFileName() = 0;
    virtual bool GetAppendExisting() = 0;
    virtual UnicodeString GetFileExt() = 0;
    // A new name or extension closes the open file. A name without an extension gets the current one, a name
    // with an extension sets it, and an extension may come without its point. With a blank name nothing is
    // written. A footer that does not fit on the disk is left out.
    virtual void SetFileName(const UnicodeString& AName) = 0;
    // Whether an existing file is continued, the default, or replaced; from the next opening on.
    virtual void SetAppendExisting(bool AValue) = 0;
    virtual void SetFileExt(const UnicodeString& AExtension) = 0;

protected:
    ~IQzFileAppender() = default;
};

// The keys that loggers and appenders ask for:
//
//     logger    Level            mtkInteger   a TQzLogLevel; llDoNotLog without an answer
//               Additive         mtkBoolean   whether messages go on to the parent
//               Appenders        mtkArray     the names of its appenders, an array of texts
//     appender  class            mtkString    in RegisteredAppenders; asked if no appender has the name
//               Layout           mtkString    a name in RegisteredLayouts
//               AppendExisting   mtkBoolean   FileName, FileExt  mtkString              file appenders
//               BufferSize, FlushLevel        mtkInteger                                file appenders
//                                             (a failure to answer keeps the present value)
//               MaxFileSize, MaxBackupCount   mtkInteger         DatePattern  mtkString rolling appenders
//               ServiceName      mtkString    event log appenders
//
// A logger asks under the lock of the tree. A thread that writes to an appender asks when it is done, if
// another thread holds that lock. The configurator may log, get loggers and change appenders. It
// must not wait for another thread that does so, or for the lock of an appender.
//
// Keys are case-sensitive. The default is the answer for a key that the configurator does not know.
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
