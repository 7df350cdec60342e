#include <qz/common/uQzDateTimeUtils/SpelledDates.h>

#include <algorithm>

#include <qz/common/uQzDateTimeUtils/detail/DateNumbers.h>
#include <qz/common/uQzSysUtils/Tokenize.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

constexpr std::u16string_view cMonths = u"JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";
constexpr auto cNowhere = std::u16string_view::npos;

// By its place in the table, 0 for a name that is not in it.
int MonthOf(const UnicodeString& AName) {
    const std::size_t Place = cMonths.find(AName.View());
    return Place == cNowhere ? 0 : static_cast<int>(Place + 3) / 3;
}

} // namespace

UnicodeString ConvertDateTimeToLUO(TDateTime AValue) {
    std::uint16_t Year, Month, Day, Hour, Minute, Second, MSec;
    DecodeDateTime(AValue, Year, Month, Day, Hour, Minute, Second, MSec);
    const std::u16string_view Name = cMonths.substr((Month - std::size_t{1}) * 3, 3);
    const std::u16string_view Half = Hour < 12 ? u"AM" : u"PM";
    return Format(u"%s %2d %4d %2d:%.2d:%.2d:%.3d%s",
                  {Name, Day, Year, (Hour + 11) % 12 + 1, Minute, Second, MSec, Half});
}

TDateTime ConvertLUOToDateTime(const TStringArg& AText) {
    TStringList Tokens;
    QzTokenize(AText, Tokens);
    const auto Number = [&Tokens](int AIndex) { return detail::DateNumber(Tokens[AIndex].View()); };
    const int Year = Number(2);
    const int Day = Number(1);
    int Hour = Number(3);
    const int Minute = Number(4);
    const int Second = Number(5);
    const int Month = MonthOf(UpperCase(Tokens[0]));
    const UnicodeString Last = UpperCase(Tokens[6]);
    if (Last.View().find(u"PM") != cNowhere && Hour != 12)
        Hour = std::min(Hour, 24) + 12;
    else if (Last.View().find(u"AM") != cNowhere && Hour == 12)
        Hour = 0;
    const int MSec = detail::DateNumber(detail::PieceOf(Last, 0, 3));
    return detail::JoinDayAndTime(EncodeDate(Year, Month, Day), EncodeTime(Hour, Minute, Second, MSec));
}

TDateTime QzStrToDateTime(const TStringArg& AText) {
    TFormatSettings Settings = TFormatSettings::Create();
    Settings.DateSeparator = u'-';
    Settings.ShortDateFormat = u"dd-MM-yyyy";
    return StrToDateTime(AText, Settings);
}

UnicodeString QzShortDateFormatY2k() {
    std::u16string Result(DefaultFormatSettings().ShortDateFormat.View());
    while (LowerCase(Result).View().find(u"yyyy") == cNowhere) {
        const std::size_t Place = Result.find_first_of(u"yY");
        Result.insert(Place == cNowhere ? 0 : Place, 1, u'y');
    }
    return Result;
}

} // namespace qz
