#include <qz/common/uQzLogAppenders/DailyRollingFileAppender.h>

#include <qz/common/uQzDateTimeUtils/LocalZone.h>
#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/common/uQzWindows/FileNames.h>
#include <qz/common/uQzWindows/FileTimes.h>
#include <qz/platform/FileTimes.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/time/LocalClock.h>

namespace qz {

QZ_REGISTER_TYPES(TQzDailyRollingFileAppender);

constinit const TClassRec TQzDailyRollingFileAppender::ClassRec =
    DescribeLogBase<TQzDailyRollingFileAppender>(
        u"TQzDailyRollingFileAppender",
        {.Unit = u"uQzLogAppenders",
         .Interfaces = Interfaces<TQzDailyRollingFileAppender, IQzDailyRollingFileAppender>()});

namespace {

constexpr TTextConstant cPattern = u"yyyy-mm-dd";
constexpr std::uint32_t cLargestSize = 0x7FFFFFFF;
constexpr std::int64_t cSecondsPerDay = 86400;
constexpr std::int32_t cMSecsPerSecond = 1000;
constexpr double cMSecsPerDay = 86400000;

// Letters for times of the day. They are found in literals too, which only costs time.
constexpr std::u16string_view cWithinDay = u"HhNnSsTtCcAaPpZz";
constexpr std::u16string_view cWithinSecond = u"Zz";

} // namespace

TQzDailyRollingFileAppender::TQzDailyRollingFileAppender(TQzLogger* ALogger, const UnicodeString& AName)
    : TQzFileAppenderWith(ALogger, AName),
      FDatePattern(cPattern) {
    Inherited::SetMaxFileSize(cLargestSize);
}

// Called for each message, so that the text is kept while it cannot change.
const UnicodeString& TQzDailyRollingFileAppender::TextOfNow() {
    const TLocalInstant Now = LocalClock();
    const std::int64_t Unit =
        FChangesWithinDay ? Now.Day * cSecondsPerDay + Now.MSecs / cMSecsPerSecond : Now.Day;
    if (FTextUnit != Unit || FChangesWithinSecond) {
        FText = FormatDateTime(FDatePattern, Now.Day + Now.MSecs / cMSecsPerDay);
        FTextUnit = Unit;
    }
    return FText;
}

// The text for the existing file; false if its creation time cannot be read.
bool TQzDailyRollingFileAppender::TextOfFile(UnicodeString& AText) {
    const platform::TResult<platform::TFileTimes> Times = platform::ReadFileTimes(FileName());
    if (!Times)
        return false;
    AText = FormatDateTime(FDatePattern, QzUTCToLocal(QzFileTimeToDateTime(Times->Created)));
    return true;
}

void TQzDailyRollingFileAppender::StorePattern(const UnicodeString& AValue) {
    FDatePattern = AValue;
    FChangesWithinDay =
        AValue.IsEmpty() || AValue.View().find_first_of(cWithinDay) != std::u16string_view::npos;
    FChangesWithinSecond = AValue.View().find_first_of(cWithinSecond) != std::u16string_view::npos;
    FTextUnit = -1;
}

void TQzDailyRollingFileAppender::CheckRollover() {
    const TScopedLock Hold(*this);
    Inherited::CheckRollover();
    if (File() != nullptr && TextOfNow() != FCurrent)
        RollOver();
}

// Renames the file to its date.
void TQzDailyRollingFileAppender::PutAside() {
    if (!FileExists(FileName()))
        return;
    UnicodeString Text;
    if (!TextOfFile(Text))
        throw EAbort(u"Failed to get the attributes");
    const UnicodeString Name = BasePath() + u'.' + Text + FileExt();
    if (FileExists(Name))
        throw EAbort(u"Already Exists");
    if (!RenameFile(FileName(), Name))
        throw EAbort(u"Failed to rename the file");
}

void TQzDailyRollingFileAppender::RollOver() {
    const TScopedLock Hold(*this);
    CloseQuietly();
    try {
        PutAside();
        if (!IsInitializing())
            Initialize();
    } catch (const Exception&) {
        Inherited::RollOver();
    }
}

TQzFileInfo TQzDailyRollingFileAppender::CreateFileInfo(const UnicodeString& AFileName) {
    const TScopedLock Hold(*this);
    TQzFileInfo Result = Inherited::CreateFileInfo(AFileName);
    if (Result.Index == 0)
        Result.FileNameRight = u'.' + QzCleanupFileName(FCurrent);
    return Result;
}

void TQzDailyRollingFileAppender::Initialize() {
    const TScopedLock Hold(*this);
    const TInitializing Now(*this);
    UnicodeString Text;
    if (!TrimView(FileName()).empty() && FileExists(FileName()) && TextOfFile(Text)) {
        FCurrent = Text;
        if (Text != TextOfNow())
            RollOver();
    }
    Inherited::Initialize();
    FCurrent = TextOfNow();
}

UnicodeString TQzDailyRollingFileAppender::GetDatePattern() {
    const TScopedLock Hold(*this);
    return FDatePattern;
}

void TQzDailyRollingFileAppender::SetDatePattern(const UnicodeString& AValue) {
    const TScopedLock Hold(*this);
    StorePattern(AValue);
    if (File() != nullptr && TextOfNow() != FCurrent)
        RollOver();
}

void TQzDailyRollingFileAppender::SetConfig(IQzLogConfigurator* AConfigurator) {
    const TScopedLock Hold(*this);
    Inherited::SetConfig(AConfigurator);
    if (AConfigurator != nullptr) {
        StorePattern(QzVarToStr(
            AConfigurator->GetAppenderValue(ConfiguredName(), u"DatePattern", mtkString, FDatePattern),
            FDatePattern, true));
    }
}

} // namespace qz
