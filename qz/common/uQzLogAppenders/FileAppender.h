// TQzFileAppender: each message as a line of a text file, in UTF-8, ended by CR LF.
//
//     Ref<TQzFileAppender> File(TQzFileAppender::Create(nullptr, u"main"));
//     File->SetLayout(QzSimpleLayout);
//     File->SetFileName(u"/var/log/app/app.log");
//     Logger().AddAppender(File.Get());
//
// The first message opens the file and makes its directories. The file begins with the header of the layout,
// unless an existing one is continued, and Close ends it with the footer. When a logging call has returned,
// its line is with the operating system, and the end of the process does not lose it. A line that does not
// fit on the disk is not written at all and counted by QzDroppedLogMessages; logging goes on when there is
// room again. If the file is moved or removed, a new one is made within a second. After a failure to open the
// file, messages are dropped for a tenth of a second without another attempt. While the file is open, others
// may read it; FileHandle.h says who may write to it. Several appenders of one process may share a file.
//
// Beyond the common operations: with a BufferSize, lines below FlushLevel may wait in memory, for a second at
// most. A line of that level is written at once, with all before it. Flush, Close and the end of the program
// write the buffer; std::quick_exit, abort, _exit and a kill lose it. A full pipe holds up the end of the
// program for a second at most.
#pragma once

#include <exception>
#include <memory>

#include <qz/common/uQzLogAppenders/BaseAppender.h>
#include <qz/common/uQzLogAppenders/TextFile.h>

namespace qz {

// Mixes the interface of a file appender into the class of another file appender.
template <class TBase, class I> class TQzFileAppenderWith : public TQzLogBaseWith<TBase, I> {
public:
    void Close() override { TBase::Close(); }
    UnicodeString GetFileName() override { return TBase::GetFileName(); }
    bool GetAppendExisting() override { return TBase::GetAppendExisting(); }
    UnicodeString GetFileExt() override { return TBase::GetFileExt(); }
    void SetFileName(const UnicodeString& AName) override { TBase::SetFileName(AName); }
    void SetAppendExisting(bool AValue) override { TBase::SetAppendExisting(AValue); }
    void SetFileExt(const UnicodeString& AExtension) override { TBase::SetFileExt(AExtension); }

protected:
    using TQzLogBaseWith<TBase, I>::TQzLogBaseWith;
    ~TQzFileAppenderWith() override = default;
};

class QZ_API TQzFileAppender : public TQzLogBaseWith<TQzBaseAppender, IQzFileAppender> {
    QZ_CLASS(TQzFileAppender, TQzBaseAppender)

public:
    using TQzBaseAppender::SetLayout;

    // Raises EFOpenError or EFCreateError. After any failure the appender is closed.
    void Initialize() override;
    // Asks for "AppendExisting", "FileName", "FileExt", "BufferSize", "FlushLevel" and "Layout".
    void SetConfig(IQzLogConfigurator* AConfigurator) override;
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override;
    // Raises EWriteError if there is no room for the footer or the buffer. The file is closed all the same,
    // and lines in the buffer are counted as dropped.
    void Close() override;
    // A layout with IQzLogLayoutEx changes the extension of the file.
    void SetLayout(IQzLogLayout* ALayout) override;

    // The default is the name of the program with ".log", in a directory of that name below the documents of
    // all users (QzGetShellFolder), or beside the program if that directory cannot be made. A relative name
    // is completed with the current directory at the first opening.
    UnicodeString GetFileName() override;
    bool GetAppendExisting() override;
    UnicodeString GetFileExt() override;
    void SetFileExt(const UnicodeString& AExtension) override;
    void SetAppendExisting(bool AValue) override;
    void SetFileName(const UnicodeString& AName) override;

    // In bytes; 0, the default, for no buffer. Raises ERangeError below 0 and above 1 GiB.
    std::int64_t GetBufferSize();
    void SetBufferSize(std::int64_t AValue);
    // The default is llWarn.
    TQzLogLevel GetFlushLevel();
    void SetFlushLevel(TQzLogLevel AValue);
    // Writes the buffer. Raises EWriteError; the lines stay in the buffer then.
    void Flush();

protected:
    TQzFileAppender(TQzLogger* ALogger, const UnicodeString& AName);
    ~TQzFileAppender() override;

    // For descendants, under the lock. The open file, or null.
    TQzTextFile* File() const noexcept { return FFileStream.get(); }
    void WriteFooter();
    void EndFile();
    // Closes the file if it was renamed or removed.
    void CloseIfGone();
    // Opens the file for appending, or replaces it. A header that does not fit on the disk is written before
    // the first line.
    void OpenFile(bool AContinues);
    // As Close, without EStreamError.
    void CloseQuietly();
    // The name as a whole path.
    const UnicodeString& FileName() const;
    const UnicodeString& FileExt() const noexcept { return FFileExt; }
    bool AppendsExisting() const noexcept { return FAppendExisting; }
    // Whether the open file existed before.
    bool IsContinuing() const noexcept { return FIsContinuing; }

private:
    void PayHeader();
    void TakeDefaultName();
    void ContinueDocument(TQzTextFile& AFile);
    void OpenOnce(bool AContinues);
    void RepeatFailure();
    void ReadOwnValues(IQzLogConfigurator& AConfigurator);

    UnicodeString FFileName;
    mutable UnicodeString FPath; // FFileName as a whole path; empty until it is needed
    bool FHasDefaultName = true;
    std::exception_ptr FFailure; // to open the file, not long ago
    std::uint64_t FFailedAt = 0; // in ticks
    std::unique_ptr<TQzTextFile> FFileStream;
    bool FAppendExisting = true;
    UnicodeString FFileExt;
    std::size_t FBufferSize = 0;
    TQzLogLevel FFlushLevel = llWarn;
    bool FOwesHeader = false;
    bool FIsContinuing = false;
};

} // namespace qz
