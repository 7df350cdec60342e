#include <qz/common/uQzLogLayouts/SimpleLayout.h>

#include <gtest/gtest.h>

#include "tests/common/support/MemoryAppender.h"
#include "tests/support/Message.h"
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

UnicodeString WithoutTime(const UnicodeString& ALine) {
    const auto Digit = ALine.View().find_first_not_of(u' ');
    return UnicodeString(ALine.View().substr(0, Digit)) + u'@' + ALine.View().substr(Digit + 23);
}

TEST(SimpleLayout, LinesHaveTimeLevelLoggerMessageAndValue) {
    const Ref<IQzLogLayout> Layout = AsInterface<IQzLogLayout>(TQzSimpleLayout::Create(nullptr, u""));
    const TValue Value(17);
    EXPECT_EQ(WithoutTime(Layout->FormatLine(u"root", llInfo, u"started", nullptr, liIndentNone)),
              u"@ - Info root - started");
    EXPECT_EQ(WithoutTime(Layout->FormatLine(u"", llDoNotLog, u"a\nb", &Value, liIndentNone)),
              u"@ - Disabled  - a\nb - 17");
    const TDateTime Before = Now();
    const UnicodeString Line = Layout->FormatLine(u"root", llAll, u"", nullptr, liIndentNone);
    const UnicodeString Time(Line.View().substr(0, 23));
    EXPECT_LE(FormatDateTime(u"yyyy-mm-dd hh:mm:ss:zzz", Before), Time);
    EXPECT_LE(Time, FormatDateTime(u"yyyy-mm-dd hh:mm:ss:zzz", Now()));
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
        EXPECT_EQ(Line.View().find_first_not_of(u' '), static_cast<std::size_t>(Spaces));
    }
}

TEST(BaseAppender, KeepsItsLayoutWhenAnotherCannotBeMade) {
    const TLogTree Tree;
    TMemoryAppender& Out = AddMemory(Logger());
    Out.SetLayout(QzSimpleLayout);
    const Ref<IQzLogLayout> Layout = Out.GetLayout();
    EXPECT_EQ(Message([&] { Out.SetLayout(u"TNo"); }), u"Class TNo not found!");
    EXPECT_THROW(Out.SetLayout(TQzLogBaseClass::Of<TMemoryAppender>()), EAssertionFailed);
    EXPECT_EQ(Out.GetLayout(), Layout);
}

} // namespace
} // namespace qz
