// TQzRollingFileAppender: a file that is put aside when it has reached a size, in a family of numbered files.
//
//     Ref<TQzRollingFileAppender> File(TQzRollingFileAppender::Create(nullptr, u"main"));
//     File->SetLayout(QzSimpleLayout);
//     File->SetFileName(u"/var/log/app/app.log");
//     File->SetMaxFileSize(1 << 20);
//     File->SetMaxBackupCount(5);                // app.log and app.1.log to app.4.log
//
// A message that finds the file at its size or above rolls over first: the file becomes number 1, each backup moves up by
// one, and what stands behind the last place is deleted. The family is what is found in the directory, so that it outlives
// the program: every entry whose name begins with that of the file, whatever follows it and whatever it is. app2.log and a
// directory app.d are of the family of app.log, and so is a stylesheet: give a family a directory of its own. A file whose
// name is all extension, such as .log, is a family of one. What cannot be renamed stays until another file needs its place,
// and logging goes on; a file that could not be put aside is continued and tried again a second later.
//
// Names consist of the base, which is the file's name without its extension (".log.xml" under an XML layout), a point, the
// number, what stood behind the number, and the extension. Two processes that write to one family never mix their lines, but
// each counts the family as it finds it.
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
    // How many files there are, the one that is written to among them. Deletes what is too many; 0 deletes the whole family
    // and has the appender write nothing.
    virtual void SetMaxBackupCount(std::uint16_t AValue) = 0;
    // Ends the file, with the footer, and begins a new one.
    virtual void RollOver() = 0;

protected:
    ~IQzRollingFileAppender() = default;
};

// What the name of a file of the family is made of.
class QZ_API TQzFileInfo : public TObject {
    QZ_CLASS(TQzFileInfo, TObject)

public:
    UnicodeString FileNameLeft;  // the base
    std::int32_t Index = 0;      // the number of a backup; 0 when there is none
    UnicodeString FileNameRight; // what stands between the number and the extension
};

class QZ_API TQzRollingFileAppender : public TQzFileAppenderWith<TQzFileAppender, IQzRollingFileAppender> {
    QZ_CLASS(TQzRollingFileAppender, TQzFileAppender)

public:
    void Initialize() override;
    // Asks for "MaxFileSize", which is cut to 32 bits, and "MaxBackupCount" beside what a file appender asks for. Raises
    // ERangeError for a count outside 0 to 65535.
    void SetConfig(IQzLogConfigurator* AConfigurator) override;
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override;

    // Of a name as it stands in the directory, under the lock.
    virtual TQzFileInfo CreateFileInfo(const UnicodeString& AFileName);
    // 10 MiB at first.
    std::uint32_t GetMaxFileSize() override;
    // 5 at first.
    std::uint16_t GetMaxBackupCount() override;
    void SetMaxFileSize(std::uint32_t AValue) override;
    void SetMaxBackupCount(std::uint16_t AValue) override;
    // Deletes the files behind the last place.
    virtual void CheckBackupCount();
    // Rolls over if it is time to.
    virtual void CheckRollover();
    // Raises what Initialize raises, and what the layout raises. A disk that has no room for the footer keeps nothing from
    // moving on, which may make room.
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
        bool IsStuck; // where it is
    };
    std::vector<TMember> Family();
    void Move(std::vector<TMember>& AFamily, TMember& AMember, std::int64_t APlace);
    void Shift();

    bool IsFull() const;
    bool IsOfFamily(std::u16string_view AName) const;

    std::uint64_t FNextTry = 0; // behind one in vain, in ticks
    std::uint32_t FMaxFileSize = 10 << 20;
    std::uint16_t FMaxBackupCount = 5;
};

} // namespace qz
