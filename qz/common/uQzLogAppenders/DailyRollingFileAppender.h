// TQzDailyRollingFileAppender: a file that is renamed to its date whenever the text of a date pattern
// changes.
//
//     Ref<TQzDailyRollingFileAppender> File(TQzDailyRollingFileAppender::Create(nullptr, u"main"));
//     File->SetLayout(QzSimpleLayout);
//     File->SetFileName(u"/var/log/app/app.log");      // yesterday's is app.2024-01-31.log
//     File->SetDatePattern(u"yyyy-mm-dd-hh");          // one an hour
//
// The date of a file is its creation time in local time, also after a restart of the program: the first
// message renames a file of an earlier day. The size of the file counts too, as in TQzRollingFileAppender. If
// the dated name exists or is no valid name, the file gets a number and its date, app.1.2024-01-31.log, and
// the numbers of the whole family grow. Only that and SetMaxBackupCount count dated files and delete them.
#pragma once

#include <qz/common/uQzLogAppenders/RollingFileAppender.h>

namespace qz {

class IQzDailyRollingFileAppender : public IQzRollingFileAppender {
public:
    static constexpr TGUID IID = IQzFileAppender::IID;

    virtual UnicodeString GetDatePattern() = 0;
    // A pattern of FormatDateTime. Rolls over if its text for now differs from that of the open file.
    virtual void SetDatePattern(const UnicodeString& AValue) = 0;

protected:
    ~IQzDailyRollingFileAppender() = default;
};

class QZ_API TQzDailyRollingFileAppender
    : public TQzFileAppenderWith<TQzRollingFileAppender, IQzDailyRollingFileAppender> {
    QZ_CLASS(TQzDailyRollingFileAppender, TQzRollingFileAppender)

public:
    void Initialize() override;
    // Asks for "DatePattern" too, which causes no rollover.
    void SetConfig(IQzLogConfigurator* AConfigurator) override;
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override {
        Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
    }
    std::uint32_t GetMaxFileSize() override { return Inherited::GetMaxFileSize(); }
    std::uint16_t GetMaxBackupCount() override { return Inherited::GetMaxBackupCount(); }
    void SetMaxFileSize(std::uint32_t AValue) override { Inherited::SetMaxFileSize(AValue); }
    void SetMaxBackupCount(std::uint16_t AValue) override { Inherited::SetMaxBackupCount(AValue); }
    TQzFileInfo CreateFileInfo(const UnicodeString& AFileName) override;
    void CheckRollover() override;
    void RollOver() override;
    // The default is "yyyy-mm-dd". That of the size is 2 GiB less one byte.
    UnicodeString GetDatePattern() override;
    void SetDatePattern(const UnicodeString& AValue) override;

protected:
    TQzDailyRollingFileAppender(TQzLogger* ALogger, const UnicodeString& AName);

private:
    bool TextOfFile(UnicodeString& AText);
    const UnicodeString& TextOfNow();
    void StorePattern(const UnicodeString& AValue);
    void PutAside();

    UnicodeString FDatePattern;
    UnicodeString FCurrent; // the text for the open file
    // The last text, which is valid for its day or second.
    UnicodeString FText;
    std::int64_t FTextUnit = -1;
    bool FChangesWithinDay = false;
    bool FChangesWithinSecond = false;
};

} // namespace qz
