// TQzFileAppender: each message as a line of a text file, in UTF-8, ended by CR LF.
//
//     Ref<TQzFileAppender> File(TQzFileAppender::Create(nullptr, u"main"));
//     File->SetLayout(QzSimpleLayout);
//     File->SetFileName(u"/var/log/app/app.log");
//     Logger().AddAppender(File.Get());
//
// The file is opened, and its directories made, at the first message. It begins with the header of the layout, unless it is
// continued, and Close ends it with the footer. When a logging call has returned, its line is with the operating system: the
// end of the process does not take it back. A line for which there is no room leaves no part of it behind, is counted by
// QzDroppedLogMessages, and logging goes on when there is room again. A file that somebody has moved away or removed is made
// anew within a second. While it is open, others may read it; who may not write to it is told in FileHandle.h.
//
// Ours: with a BufferSize, lines below FlushLevel may wait in memory, for a second at most; a line of that level and all before
// it are written at once. Flush, Close and the end of the program write what waits; abort, _exit and an end from outside lose
// it.
#pragma once

#include <memory>

#include <qz/common/uQzLogAppenders/BaseAppender.h>
#include <qz/common/uQzLogAppenders/TextFile.h>

namespace qz {

// Appenders to a file and their descendants share one identifier: ask a TQzFileAppender for no interface of its descendants.
class IQzFileAppender : public IQzLogAppender {
public:
    static constexpr TGUID IID = Guid("{36A4304E-7A72-4C9C-A6B8-AE1B4B533E9E}");

    virtual UnicodeString GetFileName() = 0;
    virtual bool GetAppendExisting() = 0;
    virtual UnicodeString GetFileExt() = 0;
    // Each closes a file that is open, unless it gets what is set already. A name without extension gets the present one, and one
    // with an extension brings its own; an extension may be given without its point. A blank name has the appender write
    // nothing. A footer for which there is no room is left out.
    virtual void SetFileName(const UnicodeString& AName) = 0;
    // Whether a file that is there is continued, as it is at first, or replaced; at the next opening.
    virtual void SetAppendExisting(bool AValue) = 0;
    virtual void SetFileExt(const UnicodeString& AExtension) = 0;

protected:
    ~IQzFileAppender() = default;
};

// In a class of a file appender with an interface of its own: its part of those is the base's.
#define QZ_FILE_APPENDER(ABase)                                 \
    QZ_LOG_BASE(ABase)                                          \
public:                                                         \
    void Close() override {                                     \
        ABase::Close();                                         \
    }                                                           \
    UnicodeString GetFileName() override {                      \
        return ABase::GetFileName();                            \
    }                                                           \
    bool GetAppendExisting() override {                         \
        return ABase::GetAppendExisting();                      \
    }                                                           \
    UnicodeString GetFileExt() override {                       \
        return ABase::GetFileExt();                             \
    }                                                           \
    void SetFileName(const UnicodeString& AName) override {     \
        ABase::SetFileName(AName);                              \
    }                                                           \
    void SetAppendExisting(bool AValue) override {              \
        ABase::SetAppendExisting(AValue);                       \
    }                                                           \
    void SetFileExt(const UnicodeString& AExtension) override { \
        ABase::SetFileExt(AExtension);                          \
    }                                                           \
                                                                \
private:

class QZ_API TQzFileAppender : public TQzBaseAppender, public IQzFileAppender {
    QZ_CLASS(TQzFileAppender, TQzBaseAppender)
    QZ_LOG_BASE(TQzBaseAppender)

public:
    using TQzBaseAppender::SetLayout;

    // Raises EFOpenError or EFCreateError; the appender is closed then, as it is after any failure.
    void Initialize() override;
    // Asks for "AppendExisting", "FileName", "FileExt", "BufferSize", "FlushLevel" and "Layout".
    void SetConfig(IQzLogConfigurator* AConfigurator) override;
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override;
    // Raises EWriteError when the footer, or what waits, finds no room; the file is closed nevertheless, and lines that waited
    // are counted as dropped.
    void Close() override;
    // A layout that wants an extension of its own changes that of the file.
    void SetLayout(IQzLogLayout* ALayout) override;

    // At first the name of the program with ".log", in a directory of that name among the documents of all users
    // (QzGetShellFolder), or beside the program where there is no such place.
    UnicodeString GetFileName() override;
    bool GetAppendExisting() override;
    UnicodeString GetFileExt() override;
    void SetFileExt(const UnicodeString& AExtension) override;
    void SetAppendExisting(bool AValue) override;
    void SetFileName(const UnicodeString& AName) override;

    // How many bytes of lines may wait; 0, as it is at first, for none. Raises ERangeError for more than 1 GiB or less than 0.
    std::int64_t GetBufferSize();
    void SetBufferSize(std::int64_t AValue);
    // llWarn at first.
    TQzLogLevel GetFlushLevel();
    void SetFlushLevel(TQzLogLevel AValue);
    // Writes what waits. Raises EWriteError; the lines wait on.
    void Flush();

protected:
    TQzFileAppender(TQzLogger* ALogger, const UnicodeString& AName);
    ~TQzFileAppender() override;

    // For descendants, under the lock: the open file, or null; a footer and the end of the file; the name and what it is
    // made of.
    TQzTextFile* File() const noexcept { return FFileStream.get(); }
    void WriteFooter();
    void EndFile();
    // Opens the file behind its content, or in its place. A header for which there is no room is written with the first line.
    void OpenFile(bool AContinues);
    // As Close, where the disk may be full.
    void CloseQuietly();
    const UnicodeString& FileName() const noexcept { return FFileName; }
    const UnicodeString& FileExt() const noexcept { return FFileExt; }
    bool AppendsExisting() const noexcept { return FAppendExisting; }
    // Whether the open file was there before it was opened.
    bool IsContinuing() const noexcept { return FIsContinuing; }

private:
    void PayHeader();

    UnicodeString FFileName;
    std::unique_ptr<TQzTextFile> FFileStream;
    bool FAppendExisting = true;
    UnicodeString FFileExt;
    std::size_t FBufferSize = 0;
    TQzLogLevel FFlushLevel = llWarn;
    bool FOwesHeader = false;
    bool FIsContinuing = false;
};

} // namespace qz
