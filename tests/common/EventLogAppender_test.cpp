#include "common/uQzLogAppenders/EventLogAppender.h"

#include <gtest/gtest.h>

#include "common/uQzLogLayouts/SimpleLayout.h"
#include "platform/EventLog.h"
#include "runtime/files/FileNames.h"
#include "runtime/files/FileSystem.h"
#include "runtime/text/Format.h"
#include "tests/support/MemoryAppender.h"
#include "tests/support/Message.h"

namespace qz {
namespace {

// A log that writes down what it is asked for.
class TRecorder final : public platform::IEventLog {
public:
    void EnterSource(std::u16string_view AName, std::u16string_view AProgram) noexcept override {
        Trace += Format(u"enter(%s) ", {AName});
        EXPECT_EQ(ProgramFileName(), AProgram);
    }
    std::uintptr_t OpenSource(std::u16string_view AName) noexcept override {
        Trace += Format(u"open(%s) ", {AName});
        return Refuses ? 0 : ++Sources;
    }
    void CloseSource(std::uintptr_t ASource) noexcept override {
        if (ASource != 0)
            Trace += Format(u"close(%d) ", {static_cast<int>(ASource)});
    }
    bool Write(std::uintptr_t ASource, platform::TEventType AType, std::uint32_t AId,
               std::u16string_view AText) noexcept override {
        Trace += Format(u"%d:%d,%d,%s ", {static_cast<int>(ASource), static_cast<int>(AType), AId, AText});
        return false;
    }
    UnicodeString Take() { return std::exchange(Trace, {}); }

    UnicodeString Trace;
    std::uintptr_t Sources = 0;
    bool Refuses = false;
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

// The message itself, and nothing for "none".
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

class TServiceName : public TInterfacedObject, public IQzLogConfigurator {
    QZ_CLASS(TServiceName, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    Variant GetLoggerValue(const UnicodeString&, const UnicodeString&, TQzMainTypeKind,
                           const Variant& ADefault) override {
        return ADefault;
    }
    Variant GetAppenderValue(const UnicodeString& AAppender, const UnicodeString& AKey, TQzMainTypeKind AKind,
                             const Variant& ADefault) override {
        EXPECT_EQ(mtkString, AKind);
        Asked += AAppender + u'.' + AKey + u' ';
        return AKey == u"ServiceName" ? Variant(Answer) : ADefault;
    }

    UnicodeString Answer;
    UnicodeString Asked;

protected:
    TServiceName() = default;
};

const TClassRec TServiceName::ClassRec = DescribeClass<TServiceName>(
    u"TServiceName", {.Unit = u"Tests", .Interfaces = Interfaces<TServiceName, IQzLogConfigurator>()});

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
    EXPECT_EQ(u"open(" + Program + u") ", Log.Take());
    Write(*Appender, llInfo);
    EXPECT_EQ(u"", Log.Take()); // no layout
    Appender->SetLayout(TQzLogBaseClass::Of<TBareLayout>());
    for (int Level = 0; Level <= static_cast<int>(llDoNotLog); ++Level)
        Write(*Appender, static_cast<TQzLogLevel>(Level), QzLogLevelName(static_cast<TQzLogLevel>(Level)));
    Write(*Appender, llError, u"none");
    EXPECT_EQ(u"1:4,2,All 1:4,2,Trace 1:4,2,Debug 1:0,1,Info 1:2,3,Warn 1:1,4,Error 1:1,4,Fatal ",
              Log.Take());
}

TEST_F(EventLogAppender, ConfiguredNameBecomesTheSource) {
    Ref<TRecordedAppender> Appender = Make();
    Appender->SetLayout(TQzLogBaseClass::Of<TBareLayout>());
    Log.Take();
    const Ref<TServiceName> Names(TServiceName::Create());
    Names->Answer = u"Backup";
    Appender->SetConfig(nullptr);
    Appender->SetConfig(Names.Get());
    EXPECT_EQ(u"events.Layout events.ServiceName ", Names->Asked);
    EXPECT_EQ(u"Backup", Appender->GetName());
    Write(*Appender, llWarn);
    EXPECT_EQ(u"open(Backup) close(1) 2:2,3,m ", Log.Take());
    Names->Answer = u"no identifier";
    EXPECT_THROW(Appender->SetConfig(Names.Get()), EComponentError);
    Names->Answer = u"";
    Appender->SetConfig(Names.Get());
    EXPECT_EQ(u"", Appender->GetName());
    Write(*Appender, llWarn);
    Appender = {};
    EXPECT_EQ(u"2:2,3,m close(2) ", Log.Take());
}

TEST_F(EventLogAppender, SourceIsEnteredWithFullRightsOnly) {
    for (const TQzElevationLevel Level : {elDefault, elLimited}) {
        GLevel = Level;
        Make();
        EXPECT_EQ(std::u16string_view::npos, Log.Take().View().find(u"enter"));
    }
    GLevel = elFull;
    Log.Refuses = true;
    const Ref<TRecordedAppender> Appender = Make();
    Appender->SetLayout(TQzLogBaseClass::Of<TBareLayout>());
    Write(*Appender, llFatal); // a refused source is silent
    EXPECT_EQ(u"enter(" + Program + u") open(" + Program + u") ", Log.Take());
}

TEST_F(EventLogAppender, IsMadeByItsNameAndWritesToTheSystem) {
    const Ref<IQzLogBase> Made =
        MakeLogBase(RegisteredAppenders().GetClass(u"TQzEventLogAppender"), nullptr, u"events");
    const auto Appender = As<IQzLogAppenderEx>(Made);
    Appender->SetLayout(QzSimpleLayout);
    EXPECT_EQ(u"", Message([&] { Appender->Write(u"", u"root", llInfo, u"a test", nullptr, liIndentNone); }));
}

} // namespace
} // namespace qz
