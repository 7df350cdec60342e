// TQzDailyRollingFileAppender: a file that is put aside under its date, as often as the text of a date pattern changes.
//
//     Ref<TQzDailyRollingFileAppender> File(TQzDailyRollingFileAppender::Create(nullptr, u"main"));
//     File->SetLayout(QzSimpleLayout);
//     File->SetFileName(u"/var/log/app/app.log");      // yesterday's is app.2024-01-31.log
//     File->SetDatePattern(u"yyyy-mm-dd-hh");          // one an hour
//
// The date of a file is that of its making, which it keeps when the program is started again, in local time; one that is
// left from an earlier day is put aside at the first message. The size of a file counts too, as in TQzRollingFileAppender.
// Where the dated name is taken, or cannot be a name, the file gets a number and its date, app.1.2024-01-31.log, and all of the family move up.
// Dated files are counted, and deleted, only by that and by SetMaxBackupCount.
#pragma once

#include <qz/common/uQzLogAppenders/RollingFileAppender.h>

namespace qz {

class IQzDailyRollingFileAppender : public IQzRollingFileAppender {
public:
    static constexpr TGUID IID = IQzFileAppender::IID;

    virtual UnicodeString GetDatePattern() = 0;
    // As FormatDateTime takes it. Rolls over when its text is another one now.
    virtual void SetDatePattern(const UnicodeString& AValue) = 0;

protected:
    ~IQzDailyRollingFileAppender() = default;
};

class QZ_API TQzDailyRollingFileAppender
    : public TQzFileAppenderWith<TQzRollingFileAppender, IQzDailyRollingFileAppender> {
    QZ_CLASS(TQzDailyRollingFileAppender, TQzRollingFileAppender)

public:
    void Initialize() override;
    // Asks for "DatePattern" beside what its base asks for; nothing rolls over by that.
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
    // "yyyy-mm-dd" at first; the size is 2 GiB less one byte.
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
    UnicodeString FCurrent; // the text for the file that is open
    // The text of a moment, which holds for that day, or that second.
    UnicodeString FText;
    std::int64_t FTextUnit = -1;
    bool FChangesWithinDay = false;
    bool FChangesWithinSecond = false;
};

} // namespace qz
