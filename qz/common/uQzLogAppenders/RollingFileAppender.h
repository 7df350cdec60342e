// TQzRollingFileAppender: a file of limited size with numbered backups.
//
//     Ref<TQzRollingFileAppender> File(TQzRollingFileAppender::Create(nullptr, u"main"));
//     File->SetLayout(QzSimpleLayout);
//     File->SetFileName(u"/var/log/app/app.log");
//     File->SetMaxFileSize(1 << 20);
//     File->SetMaxBackupCount(5);                // app.log and app.1.log to app.4.log
//
// A message that finds the file at its size or above rolls over first: the file becomes number 1, the number
// of each backup grows by one, and backups beyond the count are deleted. Files of equal number, such as those
// with a date, count as newer if they were written later. The family is read from the directory, so that it
// outlives the program. It is every entry whose name begins with that of the file: app2.log, a directory
// app.d and a stylesheet belong to the family of app.log, so give a family a directory of its own. A file
// whose name is only an extension, such as .log, is a family of one. A backup that cannot be renamed stays
// until its name is needed. A live file that cannot be renamed is continued, and the next attempt comes a
// second later.
//
// A name consists of the base, a point, the number, what followed the number before, and the extension. The
// base is the name of the file without its extension (".log.xml" under an XML layout). Two processes that
// write to one family never mix their lines, but each counts the family as it finds it.
#pragma once

#include <vector>

#include <qz/common/uQzLogAppenders/FileAppender.h>

namespace qz {

class IQzRollingFileAppender : public IQzFileAppender {
public:
    static constexpr TGUID IID = IQzFileAppender::IID;

    virtual std::uint32_t GetMaxFileSize() = 0;
    virtual std::uint16_t GetMaxBackupCount() = 0;
    // In bytes; 0 for no limit.
    virtual void SetMaxFileSize(std::uint32_t AValue) = 0;
    // The number of files, the live one included. Deletes files beyond it. With 0 the whole family is deleted
    // and nothing is written.
    virtual void SetMaxBackupCount(std::uint16_t AValue) = 0;
    // Ends the file with the footer and starts a new one.
    virtual void RollOver() = 0;

protected:
    ~IQzRollingFileAppender() = default;
};

// The parts of the name of a file of the family.
class QZ_API TQzFileInfo : public TObject {
    QZ_CLASS(TQzFileInfo, TObject)

public:
    UnicodeString FileNameLeft;  // the base
    std::int32_t Index = 0;      // the number of a backup, or 0
    UnicodeString FileNameRight; // between the number and the extension
};

class QZ_API TQzRollingFileAppender : public TQzFileAppenderWith<TQzFileAppender, IQzRollingFileAppender> {
    QZ_CLASS(TQzRollingFileAppender, TQzFileAppender)

public:
    void Initialize() override;
    // Asks for "MaxFileSize", which is cut to 32 bits, and "MaxBackupCount" beside what a file appender asks
    // for. Raises ERangeError for a count outside 0 to 65535.
    void SetConfig(IQzLogConfigurator* AConfigurator) override;
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override;

    // Parses a name of the directory; under the lock.
    virtual TQzFileInfo CreateFileInfo(const UnicodeString& AFileName);
    // The default is 10 MiB.
    std::uint32_t GetMaxFileSize() override;
    // The default is 5.
    std::uint16_t GetMaxBackupCount() override;
    void SetMaxFileSize(std::uint32_t AValue) override;
    void SetMaxBackupCount(std::uint16_t AValue) override;
    // Deletes the files beyond the count.
    virtual void CheckBackupCount();
    // Rolls over if the file has reached its size.
    virtual void CheckRollover();
    // Raises what Initialize and the layout raise. Without room for the footer the files are renamed all the
    // same.
    void RollOver() override;

protected:
    using TQzFileAppenderWith::TQzFileAppenderWith;
    // The name of the file without its extension.
    UnicodeString BasePath() const;

private:
    struct TMember {
        UnicodeString Name;
        bool IsBackup;
        TQzFileInfo Info;
        std::int64_t Written; // the time of the last write, in 100 ns
        bool IsStuck;         // could not be renamed
    };
    std::vector<TMember> Family();
    void Move(std::vector<TMember>& AFamily, TMember& AMember, std::int64_t APlace);
    void Shift();

    bool IsFull() const;
    bool IsOfFamily(std::u16string_view AName) const;

    std::uint64_t FNextTry = 0; // after a failed rollover, in ticks
    std::uint32_t FMaxFileSize = 10 << 20;
    std::uint16_t FMaxBackupCount = 5;
};

} // namespace qz
