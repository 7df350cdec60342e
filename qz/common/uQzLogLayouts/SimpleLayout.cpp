#include <qz/common/uQzLogLayouts/SimpleLayout.h>

#include <qz/common/uQzLogLayouts/detail/LinePen.h>
#include <qz/common/uQzLogger/DataRec.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/time/LocalClock.h>

namespace qz {

using detail::TLinePen;

QZ_REGISTER_TYPES(TQzSimpleLayout);

constinit const TClassRec TQzSimpleLayout::ClassRec = DescribeLogBase<TQzSimpleLayout>(
    u"TQzSimpleLayout",
    {.Unit = u"uQzLogLayouts", .Interfaces = Interfaces<TQzSimpleLayout, IQzLogLayout, _IQzLogLayout>()});

namespace {

constexpr std::u16string_view cDash = u" - ";
constexpr std::size_t cTimeLength = 23; // 2024-01-31 08:15:02:047

// "2024-01-31 ", computed once per day and thread.
std::u16string_view DateText(std::int32_t ADay) noexcept {
    struct TDateText {
        std::int32_t Day = INT32_MIN;
        char16_t Text[11]{};
    };
    constinit static thread_local TDateText Known;
    if (Known.Day != ADay) {
        std::uint16_t Year = 0;
        std::uint16_t Month = 0;
        std::uint16_t Day = 0;
        DecodeDate(static_cast<double>(ADay), Year, Month, Day);
        TLinePen Pen{Known.Text};
        Pen.PutDate(Year, Month, Day);
        Pen.Put(u' ');
        Known.Day = ADay;
    }
    return {Known.Text, std::size(Known.Text)};
}

void PutTime(TLinePen& APen) noexcept {
    const TLocalInstant Now = LocalClock();
    const auto MSecs = static_cast<unsigned>(Now.MSecs);
    APen.Put(DateText(Now.Day));
    APen.PutTime(MSecs / 3600000, MSecs / 60000 % 60, MSecs / 1000 % 60);
    APen.Put(u':');
    APen.PutNumber(MSecs % 1000, 3);
}

} // namespace

UnicodeString TQzSimpleLayout::GetHeader() {
    return u"Log started on : " + DateTimeToStr(Now());
}

UnicodeString TQzSimpleLayout::GetFooter() {
    return u"Log stopped on : " + DateTimeToStr(Now());
}

void TQzSimpleLayout::Initialize(TQzLogBase*) {}

// The line of EnterMethod is indented already, that of ExitMethod no longer.
std::size_t TQzSimpleLayout::Indent(TQzLogIndent AIndent) noexcept {
    std::size_t Steps = FIndent.load(std::memory_order_relaxed);
    if (AIndent == liIndentIncrease)
        return FIndent.fetch_add(1, std::memory_order_relaxed) + 1;
    if (AIndent == liIndentDecrease) {
        while (Steps > 0 && !FIndent.compare_exchange_weak(Steps, Steps - 1, std::memory_order_relaxed)) {}
        return Steps == 0 ? 0 : Steps - 1;
    }
    return Steps;
}

UnicodeString TQzSimpleLayout::FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel,
                                          const UnicodeString& AMessage, PQzDataRec AValue,
                                          TQzLogIndent AIndent) {
    const std::size_t Spaces = 2 * Indent(AIndent);
    const UnicodeString Value = AValue == nullptr ? UnicodeString() : QzDataRecToString(AValue);
    const std::u16string_view Level = QzLogLevelName(ALevel);
    const std::size_t Tail = AValue == nullptr ? 0 : cDash.size() + Value.size();
    UnicodeString Result = UnicodeString::ForOverwrite(
        Spaces + cTimeLength + 2 * cDash.size() + Level.size() + 1 + ALogger.size() + AMessage.size() + Tail);
    TLinePen Pen{std::fill_n(Result.UniqueData(), Spaces, u' ')};
    PutTime(Pen);
    Pen.Put(cDash);
    Pen.Put(Level);
    Pen.Put(u' ');
    Pen.Put(ALogger);
    Pen.Put(cDash);
    Pen.Put(AMessage);
    if (AValue != nullptr) {
        Pen.Put(cDash);
        Pen.Put(Value);
    }
    return Result;
}

} // namespace qz
