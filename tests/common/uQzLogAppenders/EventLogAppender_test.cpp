#include <qz/common/uQzLogAppenders/EventLogAppender.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/common/support/LogConfiguration.h"
#include "tests/common/support/MemoryAppender.h"
#include <qz/common/uQzLogLayouts/SimpleLayout.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/platform/EventLog.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

// A log that records its calls and counts those that overlap.
class TRecorder final : public platform::IEventLog {
public:
    void EnterSource(std::u16string_view AName, std::u16string_view AProgram) noexcept override {
        Trace += Format(u"enter(%s) ", {AName});
        EXPECT_EQ(AProgram, ProgramFileName());
    }
    std::uintptr_t OpenSource(std::u16string_view AName) noexcept override {
        const TCall Call(*this);
        Trace += Format(u"open(%s) ", {AName});
        return Refuses ? 0 : ++Sources;
    }
    void CloseSource(std::uintptr_t ASource) noexcept override {
        const TCall Call(*this);
        if (ASource != 0)
            Trace += Format(u"close(%d) ", {static_cast<int>(ASource)});
    }
    bool Write(std::uintptr_t ASource, platform::TEventType AType, std::uint32_t AId,
               std::u16string_view AText, std::int32_t) noexcept override {
        const TCall Call(*this);
        Trace += Format(u"%d:%d,%d,%s ", {static_cast<int>(ASource), static_cast<int>(AType), AId, AText});
        return !Loses;
    }
    UnicodeString Take() { return std::exchange(Trace, {}); }

    UnicodeString Trace;
    std::uintptr_t Sources = 0;
    bool Refuses = false;
    bool Loses = false;
    std::atomic<int> Calls{0};
    std::atomic<int> Overlaps{0};

private:
    struct TCall {
        explicit TCall(TRecorder& ALog) : Log(ALog) {
            Log.Overlaps += Log.Calls++;
            std::this_thread::yield();
        }
        TCall(const TCall&) = delete;
        TCall& operator=(const TCall&) = delete;
        ~TCall() { --Log.Calls; }
        TRecorder& Log;
    };
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

// Gives the message, or an empty line for "none".
class TBareLayout : public TQzSimpleLayout {
    QZ_CLASS(TBareLayout, TQzSimpleLayout)

public:
    UnicodeString FormatLine(const UnicodeString&, TQzLogLevel, const UnicodeString& AMessage, PQzDataRec,
                             TQzLogIndent) override {
        return AMessage == u"none" ? UnicodeString() : AMessage;
    }

protected:
    using TQzSimpleLayout::TQzSimpleLayout;
};

const TClassRec TBareLayout::ClassRec = DescribeLogBase<TBareLayout>(u"TBareLayout", {.Unit = u"Tests"});

class EventLogAppender : public testing::Test {
protected:
    EventLogAppender() {
        GRecorder = &Log;
        GLevel = elLimited;
    }

    static Ref<TRecordedAppender> Make() {
        return Ref<TRecordedAppender>(TRecordedAppender::Create(nullptr, u"events"));
    }
    static void Write(TRecordedAppender& AAppender, TQzLogLevel ALevel,
                      const UnicodeString& AMessage = u"m") {
        AAppender.Write(u"", u"", ALevel, AMessage, nullptr, liIndentNone);
    }

    const UnicodeString Program = ChangeFileExt(ExtractFileName(ProgramFileName()), u"");
    TRecorder Log;
};

TEST_F(EventLogAppender, LevelsAreTypesAndNumbers) {
    const Ref<TRecordedAppender> Appender = Make();
    EXPECT_EQ(Log.Take(), u"open(" + Program + u") ");
    Write(*Appender, llInfo);
    EXPECT_EQ(Log.Take(), u""); // no layout
    Appender->SetLayout(TQzLogBaseClass::Of<TBareLayout>());
    for (int Level = 0; Level <= static_cast<int>(llDoNotLog); ++Level)
        Write(*Appender, static_cast<TQzLogLevel>(Level), QzLogLevelName(static_cast<TQzLogLevel>(Level)));
    Write(*Appender, llError, u"none");
    EXPECT_EQ(Log.Take(),
              u"1:4,2,All 1:4,2,Trace 1:4,2,Debug 1:0,1,Info 1:2,3,Warn 1:1,4,Error 1:1,4,Fatal ");
}

TEST_F(EventLogAppender, ConfiguredNameBecomesTheSource) {
    Ref<TRecordedAppender> Appender = Make();
    Appender->SetLayout(TQzLogBaseClass::Of<TBareLayout>());
    Log.Take();
    const Ref<TConfiguration> Config(TConfiguration::Create());
    Appender->SetConfig(nullptr);
    struct TCase {
        const char16_t* Answer;
        const char16_t* Name;
        const char16_t* Trace;
    };
    for (const TCase& Case : {TCase{u"Backup", u"Backup", u"open(Backup) close(1) 2:2,3,m "},
                              {u"my-backup", u"Backup", u"open(my-backup) close(2) 3:2,3,m "},
                              {u"", u"", u"3:2,3,m "}}) {
        Config->Answers[u"events/ServiceName"] = UnicodeString(Case.Answer);
        Appender->SetConfig(Config.Get());
        Write(*Appender, llWarn);
        EXPECT_EQ(Log.Take(), Case.Trace);
        EXPECT_EQ(Appender->GetName(), Case.Name);
        EXPECT_EQ(Appender->ConfiguredName(), u"events");
    }
    EXPECT_TRUE(Config->Asked.View().starts_with(u"events/Layout:3 events/ServiceName:3 "));
    Appender = {};
    EXPECT_EQ(Log.Take(), u"close(3) ");
}

TEST_F(EventLogAppender, ConfiguringAgainMakesNoOther) {
    const TLogTree Tree;
    RegisteredAppenders().Add(TQzLogBaseClass::Of<TRecordedAppender>());
    const Ref<TConfiguration> Config(TConfiguration::Create());
    Config->Answers = {{u"root/Level", 0},
                       {u"root/Appenders", VarArrayOf({u"events", u"2nd"})},
                       {u"events/class", u"TRecordedAppender"},
                       {u"2nd/class", u"TRecordedAppender"},
                       {u"events/ServiceName", u"Backup"}};
    for (int Round = 0; Round < 3; ++Round) {
        Logger().SetConfig(Config.Get());
        EXPECT_EQ(AppenderInstances().Count(), 2);
    }
    EXPECT_EQ(AppenderInstances().Find(u"events")->GetName(), u"Backup");
    EXPECT_EQ(AppenderInstances().Find(u"Backup"), AppenderInstances().Find(u"events"));
}

// The log gets one call at a time, while other threads read names.
TEST_F(EventLogAppender, ThreadsTakeTurns) {
    const Ref<TRecordedAppender> Appender = Make();
    Appender->SetLayout(TQzLogBaseClass::Of<TBareLayout>());
    const Ref<TConfiguration> Config(TConfiguration::Create());
    Config->Answers[u"events/ServiceName"] = u"Backup";
    std::atomic<bool> Stop{false};
    std::vector<std::thread> Threads;
    for (int I = 0; I < 2; ++I)
        Threads.emplace_back([&] {
            while (!Stop)
                Write(*Appender, llInfo);
        });
    Threads.emplace_back([&] {
        while (!Stop)
            Appender->RegisterLogger(u"other");
    });
    for (int Round = 0; Round < 300; ++Round) {
        Config->Answers[u"events/ServiceName"] = Round % 2 == 0 ? u"Even" : u"Odd";
        std::thread Asks([&] {
            EXPECT_NE(nullptr, AppenderInstances().Find(u"events"));
            EXPECT_FALSE(Appender->GetName().IsEmpty());
        });
        Appender->SetConfig(Config.Get());
        Asks.join();
    }
    Stop = true;
    for (std::thread& Thread : Threads)
        Thread.join();
    EXPECT_EQ(Log.Overlaps, 0);
}

TEST_F(EventLogAppender, LostEventsAreCounted) {
    const Ref<TRecordedAppender> Appender = Make();
    Appender->SetLayout(TQzLogBaseClass::Of<TBareLayout>());
    const std::uint64_t Before = QzDroppedLogMessages();
    Write(*Appender, llInfo);
    EXPECT_EQ(QzDroppedLogMessages(), Before);
    Log.Loses = true;
    Write(*Appender, llInfo);
    EXPECT_EQ(QzDroppedLogMessages(), Before + 1);
}

TEST_F(EventLogAppender, SourceIsEnteredWithFullRightsOnly) {
    for (const TQzElevationLevel Level : {elDefault, elLimited}) {
        GLevel = Level;
        Make();
        EXPECT_EQ(Log.Take().View().find(u"enter"), std::u16string_view::npos);
    }
    GLevel = elFull;
    Log.Refuses = true;
    const Ref<TRecordedAppender> Appender = Make();
    Appender->SetLayout(TQzLogBaseClass::Of<TBareLayout>());
    Write(*Appender, llFatal); // nothing is written without a source
    EXPECT_EQ(Log.Take(), u"enter(" + Program + u") open(" + Program + u") ");
}

TEST_F(EventLogAppender, IsMadeByItsNameForTheProgram) {
    EXPECT_NE(nullptr, MakeLogBase(RegisteredAppenders().GetClass(QzEventLogAppender), nullptr, u"events"));
    const std::pair<const char16_t*, const char16_t*> Programs[] = {
        {u"/opt/a.b.exe", u"a.b"}, {u"/opt/.svc", u".svc"}, {u"tool", u"tool"}};
    for (const auto& [Path, Source] : Programs)
        EXPECT_EQ(detail::EventSourceOf(Path), Source);
}

} // namespace
} // namespace qz
