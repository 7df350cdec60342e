#include <qz/common/uQzLogLayouts/SimpleLayout.h>

#include <gtest/gtest.h>

#include "tests/common/support/MemoryAppender.h"
#include "tests/support/Message.h"
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/time/LocalClock.h>

namespace qz {
namespace {

UnicodeString WithoutTime(const UnicodeString& ALine) {
    const auto Digit = ALine.View().find_first_not_of(u' ');
    return UnicodeString(ALine.View().substr(0, Digit)) + u'@' + ALine.View().substr(Digit + 23);
}

TEST(SimpleLayout, LinesHaveTimeLevelLoggerMessageAndValue) {
    const Ref<IQzLogLayout> Layout = AsInterface<IQzLogLayout>(TQzSimpleLayout::Create(nullptr, u""));
    const TValue Value(17);
    EXPECT_EQ(u"@ - Info root - started",
              WithoutTime(Layout->FormatLine(u"root", llInfo, u"started", nullptr, liIndentNone)));
    EXPECT_EQ(u"@ - Disabled  - a\nb - 17",
              WithoutTime(Layout->FormatLine(u"", llDoNotLog, u"a\nb", &Value, liIndentNone)));
    EXPECT_EQ(
        u"@ -  r - m",
        WithoutTime(Layout->FormatLine(u"r", static_cast<TQzLogLevel>(200), u"m", nullptr, liIndentNone)));
    const TDateTime Before = Now();
    const UnicodeString Line = Layout->FormatLine(u"root", llAll, u"", nullptr, liIndentNone);
    const TDateTime After = Now();
    const UnicodeString Time(Line.View().substr(0, 23));
    EXPECT_LE(FormatDateTime(u"yyyy-mm-dd hh:mm:ss:zzz", Before), Time);
    EXPECT_LE(Time, FormatDateTime(u"yyyy-mm-dd hh:mm:ss:zzz", After));
    EXPECT_EQ(u" - All root - ", UnicodeString(Line.View().substr(23)));
    EXPECT_TRUE(Layout->GetHeader().View().starts_with(u"Log started on : "));
    EXPECT_TRUE(Layout->GetFooter().View().starts_with(u"Log stopped on : "));
}

TEST(SimpleLayout, EnteredMethodsStandDeeper) {
    const Ref<IQzLogLayout> Layout = AsInterface<IQzLogLayout>(TQzSimpleLayout::Create(nullptr, u""));
    const std::pair<TQzLogIndent, int> Steps[] = {
        {liIndentDecrease, 0}, {liIndentIncrease, 2}, {liIndentNone, 2},     {liIndentIncrease, 4},
        {liIndentDecrease, 2}, {liIndentDecrease, 0}, {liIndentDecrease, 0}, {liIndentIncrease, 2}};
    for (const auto& [Indent, Spaces] : Steps) {
        const UnicodeString Line = Layout->FormatLine(u"r", llInfo, u"m", nullptr, Indent);
        EXPECT_EQ(static_cast<std::size_t>(Spaces), Line.View().find_first_not_of(u' '));
    }
}

TEST(BaseAppender, OpensAtTheFirstMessageAndAgainWhenClosed) {
    const TLogTree Tree;
    TMemoryAppender& Out = AddMemory(Logger());
    Out.Close();
    EXPECT_EQ(0, Out.Opened);
    Logger().Info("x");
    Logger().Info("y");
    EXPECT_EQ(1, Out.Opened);
    Out.Close();
    Logger().Info("z");
    EXPECT_EQ(2, Out.Opened);
}

TEST(BaseAppender, KeepsItsLayoutWhenAnotherCannotBeMade) {
    const TLogTree Tree;
    TMemoryAppender& Out = AddMemory(Logger());
    Out.SetLayout(QzSimpleLayout);
    const Ref<IQzLogLayout> Layout = Out.GetLayout();
    EXPECT_EQ(u"TQzSimpleLayout", Layout->GetName());
    EXPECT_EQ(u"Class TNo not found!", Message([&] { Out.SetLayout(u"TNo"); }));
    EXPECT_THROW(Out.SetLayout(TQzLogBaseClass::Of<TMemoryAppender>()), EAssertionFailed);
    EXPECT_EQ(Layout, Out.GetLayout());
    Out.SetLayout(static_cast<IQzLogLayout*>(nullptr));
    EXPECT_EQ(nullptr, Out.GetLayout());
}

TEST(LocalClock, IsTheLocalTime) {
    for (int I = 0; I < 100; ++I) {
        const double Before = Now();
        const TLocalInstant Instant = LocalClock();
        const double After = Now();
        const double Value = Instant.Day + Instant.MSecs / double{MSecsPerDay};
        EXPECT_LE(Before - 1e-9, Value);
        EXPECT_LE(Value, After + 1e-9);
    }
}

} // namespace
} // namespace qz
