#include <qz/common/uQzLogAppenders/EventLogAppender.h>

#include <gtest/gtest.h>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/LogFiles.h"
#include "tests/common/support/MemoryAppender.h"
#include <qz/platform/EventLog.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

// A log that records its calls.
class TRecorder final : public platform::IEventLog {
public:
    void EnterSource(std::u16string_view AName, std::u16string_view AProgram) noexcept override {
        Trace += Format(u"enter(%s) ", {AName});
        EXPECT_EQ(AProgram, ProgramFileName());
    }
    std::uintptr_t OpenSource(std::u16string_view AName) noexcept override {
        Trace += Format(u"open(%s) ", {AName});
        return Refuses ? 0 : ++Sources;
    }
    void CloseSource(std::uintptr_t ASource) noexcept override {
        Trace += ASource == 0 ? UnicodeString() : Format(u"close(%d) ", {static_cast<int>(ASource)});
    }
    bool Write(std::uintptr_t ASource, platform::TEventType AType, std::uint32_t AId,
               std::u16string_view AText, std::int32_t) noexcept override {
        Trace += Format(u"%d:%d,%d,%s ", {static_cast<int>(ASource), static_cast<int>(AType), AId, AText});
        return !Loses;
    }
    UnicodeString Take() { return std::exchange(Trace, {}); }

    std::uintptr_t Sources = 0;
    bool Refuses = false;
    bool Loses = false;
    UnicodeString Trace;
};

TRecorder* GRecorder = nullptr;
TQzElevationLevel GLevel = elLimited;

TQzElevationLevel LevelOfTest() noexcept {
    return GLevel;
}

class TRecordedAppender : public TQzEventLogAppender {
    QZ_CLASS(TRecordedAppender, TQzEventLogAppender)

protected:
    TRecordedAppender(TQzLogger* ALogger, const UnicodeString& AName)
        : Inherited(ALogger, AName, *GRecorder, &LevelOfTest) {}
};

const TClassRec TRecordedAppender::ClassRec =
    DescribeLogBase<TRecordedAppender>(u"TRecordedAppender", {.Unit = u"Tests"});

class EventLogAppender : public testing::Test {
protected:
    EventLogAppender() { GRecorder = &Log; }

    static Ref<TRecordedAppender> Make() {
        const Ref<TRecordedAppender> Result(TRecordedAppender::Create(nullptr, u"events"));
        Result->SetLayout(TQzLogBaseClass::Of<TPlainLayout>());
        return Result;
    }
    static void Write(TRecordedAppender& AAppender, TQzLogLevel ALevel,
                      const UnicodeString& AMessage = u"m") {
        AAppender.Write(u"", u"", ALevel, AMessage, nullptr, liIndentNone);
    }

    const UnicodeString Program = ChangeFileExt(ExtractFileName(ProgramFileName()), u"");
    TRecorder Log;
    const Ref<TConfiguration> Config{TConfiguration::Create()};
};

TEST_F(EventLogAppender, LevelsAreTypesAndNumbers) {
    const Ref<TRecordedAppender> Appender = Make();
    EXPECT_EQ(Log.Take(), u"open(" + Program + u") ");
    for (int Level = 0; Level <= static_cast<int>(llDoNotLog); ++Level)
        Write(*Appender, static_cast<TQzLogLevel>(Level), QzLogLevelName(static_cast<TQzLogLevel>(Level)));
    Write(*Appender, llError, u""); // the line is empty
    EXPECT_EQ(Log.Take(),
              u"1:4,2,All 1:4,2,Trace 1:4,2,Debug 1:0,1,Info 1:2,3,Warn 1:1,4,Error 1:1,4,Fatal ");
}

TEST_F(EventLogAppender, ConfiguredNameBecomesTheSource) {
    Ref<TRecordedAppender> Appender = Make();
    Log.Take();
    const std::tuple<const char16_t*, const char16_t*, const char16_t*> Cases[] = {
        {u"Backup", u"Backup", u"open(Backup) close(1) 2:2,3,m "},
        {u"my-backup", u"Backup", u"open(my-backup) close(2) 3:2,3,m "},
        {u"", u"", u"3:2,3,m "}};
    for (const auto& [Answer, Name, Trace] : Cases) {
        Config->Answers[u"events/ServiceName"] = UnicodeString(Answer);
        Appender->SetConfig(Config.Get());
        Write(*Appender, llWarn);
        EXPECT_EQ(Log.Take(), Trace);
        EXPECT_EQ(Appender->GetName(), Name);
    }
    Appender = {};
    EXPECT_EQ(Log.Take(), u"close(3) ");
}

TEST_F(EventLogAppender, SourceIsEnteredWithFullRightsOnly) {
    const std::uint64_t Before = QzDroppedLogMessages();
    Make();
    EXPECT_EQ(Log.Take(), u"open(" + Program + u") close(1) ");
    GLevel = elFull;
    Log.Refuses = true;
    Write(*Make(), llFatal); // nothing is written without a source
    GLevel = elLimited;
    EXPECT_EQ(Log.Take(), u"enter(" + Program + u") open(" + Program + u") ");
    EXPECT_EQ(QzDroppedLogMessages(), Before);
    Log.Refuses = false;
    Log.Loses = true;
    Write(*Make(), llInfo);
    EXPECT_EQ(QzDroppedLogMessages(), Before + 1);
    EXPECT_EQ(detail::EventSourceOf(u"/opt/a.b.exe") + detail::EventSourceOf(u"/opt/.svc"), u"a.b.svc");
}

} // namespace
} // namespace qz
