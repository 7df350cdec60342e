#include <array>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

using TView = std::u16string_view;

// More digits than any number here may have.
constexpr int cMaxDigits = 9;

enum class TDateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

// Plain blanks, and those that do not break, which patterns of the system may hold.
constexpr bool IsBlank(char16_t AChar) noexcept {
    return AChar == u' ' || AChar == u'\t' || AChar == u'\u00A0' || AChar == u'\u202F';
}

// By the first letter outside literals that names one of them.
TDateOrder OrderOf(TView AShortDateFormat) noexcept {
    char16_t Quote = 0;
    for (const char16_t Char : AShortDateFormat) {
        if (Quote != 0) {
            Quote = Char == Quote ? u'\0' : Quote;
            continue;
        }
        switch (LowCase(Char)) {
        case u'\'':
        case u'"': Quote = Char; break;
        case u'y': return TDateOrder::YearMonthDay;
        case u'm': return TDateOrder::MonthDayYear;
        case u'd': return TDateOrder::DayMonthYear;
        default: break;
        }
    }
    return TDateOrder::MonthDayYear;
}

int PresentYear() {
    std::uint16_t Year;
    std::uint16_t Month;
    std::uint16_t Day;
    DecodeDate(Date(), Year, Month, Day);
    return Year;
}

// A year of two digits put into the hundred years of the window.
int FullYear(int AYear, const TFormatSettings& ASettings) {
    const int First = PresentYear() - ASettings.TwoDigitYearCenturyWindow;
    const int Year = First / 100 * 100 + AYear;
    return ASettings.TwoDigitYearCenturyWindow > 0 && Year < First ? Year + 100 : Year;
}

class TDateTimeReader {
public:
    TDateTimeReader(TView AText, const TFormatSettings& ASettings) : FText(AText), FSettings(ASettings) {}

    // Moves after what is read and the blanks that follow it; false when something else stands here.
    bool ReadDate(TDateTime& AValue) {
        TField First;
        TField Second;
        if (!ReadField(First) || !TakeSeparator(FSettings.DateSeparator) || !ReadField(Second))
            return false;
        TField Third;
        const bool HasThird = TakeSeparator(FSettings.DateSeparator);
        if (HasThird && !ReadField(Third))
            return false;
        TakeSeparator(FSettings.DateSeparator);
        SkipBlanks();
        const TDateOrder Order = OrderOf(FSettings.ShortDateFormat);
        if (!HasThird)
            return Order == TDateOrder::DayMonthYear ? Encode({}, Second, First, AValue)
                                                     : Encode({}, First, Second, AValue);
        switch (Order) {
        case TDateOrder::MonthDayYear: return Encode(Third, First, Second, AValue);
        case TDateOrder::DayMonthYear: return Encode(Third, Second, First, AValue);
        default: return Encode(First, Second, Third, AValue);
        }
    }

    bool ReadTime(TDateTime& AValue) {
        int Noon = ReadHalfDay();
        TField Hour;
        TField Minute;
        TField Second;
        TField MilliSecond;
        if (!ReadNumber(Hour))
            return false;
        if (TakeSeparator(FSettings.TimeSeparator)) {
            if (!ReadNumber(Minute))
                return false;
            if (TakeSeparator(FSettings.TimeSeparator)) {
                if (!ReadNumber(Second))
                    return false;
                if ((TakeSeparator(FSettings.DecimalSeparator) || TakeSeparator(u'.')) &&
                    !ReadNumber(MilliSecond))
                    return false;
            }
        }
        if (Noon < 0)
            Noon = ReadHalfDay();
        SkipBlanks();
        if (Noon >= 0) {
            if (Hour.Value < 1 || Hour.Value > 12)
                return false;
            Hour.Value = Hour.Value % 12 + Noon;
        }
        return TryEncodeTime(Hour.Value, Minute.Value, Second.Value, MilliSecond.Value, AValue);
    }

    bool IsAtEnd() const noexcept { return FHere == FText.size(); }

private:
    enum class TFieldKind { Missing, Number, MonthName };
    struct TField {
        TFieldKind Kind = TFieldKind::Missing;
        int Value = 0;
        int Digits = 0;
    };

    bool Encode(const TField& AYear, const TField& AMonth, const TField& ADay, TDateTime& AValue) const {
        if (AYear.Kind == TFieldKind::MonthName || ADay.Kind == TFieldKind::MonthName)
            return false;
        int Year = AYear.Value;
        if (AYear.Kind == TFieldKind::Missing)
            Year = PresentYear();
        else if (AYear.Digits <= 2)
            Year = FullYear(Year, FSettings);
        return TryEncodeDate(Year, AMonth.Value, ADay.Value, AValue);
    }

    bool SkipBlanks() noexcept {
        const std::size_t Start = FHere;
        while (FHere < FText.size() && IsBlank(FText[FHere]))
            ++FHere;
        return FHere > Start;
    }

    // A separator that is a blank itself is there when any blank is.
    bool TakeSeparator(char16_t ASeparator) noexcept {
        const bool HasBlank = SkipBlanks();
        if (FHere < FText.size() && FText[FHere] == ASeparator) {
            ++FHere;
            return true;
        }
        return HasBlank && IsBlank(ASeparator);
    }

    bool TakeText(TView APiece) noexcept {
        if (APiece.empty() || !StartsText(APiece, FText.substr(FHere)))
            return false;
        FHere += APiece.size();
        return true;
    }

    bool ReadNumber(TField& AField) noexcept {
        SkipBlanks();
        while (FHere < FText.size() && FText[FHere] >= u'0' && FText[FHere] <= u'9') {
            if (++AField.Digits > cMaxDigits)
                return false;
            AField.Value = AField.Value * 10 + (FText[FHere++] - u'0');
        }
        AField.Kind = TFieldKind::Number;
        return AField.Digits > 0;
    }

    bool ReadField(TField& AField) noexcept {
        if (ReadNumber(AField))
            return true;
        if (AField.Digits > 0)
            return false;
        AField.Kind = TFieldKind::MonthName;
        return ReadName(FSettings.LongMonthNames, AField) || ReadName(FSettings.ShortMonthNames, AField);
    }

    // The longest name that stands here, since one month may begin with the name of another.
    bool ReadName(const std::array<UnicodeString, 12>& ANames, TField& AField) noexcept {
        std::size_t Longest = 0;
        for (std::size_t I = 0; I < ANames.size(); ++I) {
            if (ANames[I].size() > Longest && StartsText(ANames[I], FText.substr(FHere))) {
                Longest = ANames[I].size();
                AField.Value = static_cast<int>(I) + 1;
            }
        }
        FHere += Longest;
        return Longest > 0;
    }

    // The hour that the half of the day which stands here begins with, or -1.
    int ReadHalfDay() noexcept {
        SkipBlanks();
        // The longest that stands here, since a mark of the settings may be the start of a fixed one.
        const std::pair<std::u16string_view, int> Marks[] = {
            {FSettings.TimeAMString, 0}, {u"AM", 0}, {FSettings.TimePMString, 12}, {u"PM", 12}};
        std::size_t Longest = 0;
        int Hours = -1;
        for (const auto& [Mark, Half] : Marks) {
            if (Mark.size() > Longest && StartsText(Mark, FText.substr(FHere))) {
                Longest = Mark.size();
                Hours = Half;
            }
        }
        FHere += Longest;
        return Hours;
    }

    TView FText;
    const TFormatSettings& FSettings;
    std::size_t FHere = 0;
};

using TTryRead = bool (*)(const TStringArg&, TDateTime&, const TFormatSettings&);

TDateTime Require(TTryRead ARead, const TStringArg& AText, const TFormatSettings& ASettings, TView AMessage) {
    TDateTime Result;
    if (!ARead(AText, Result, ASettings))
        throw EConvertError(AMessage, {AText.View()});
    return Result;
}

TDateTime OrDefault(TTryRead ARead, const TStringArg& AText, TDateTime ADefault,
                    const TFormatSettings& ASettings) {
    TDateTime Result;
    return ARead(AText, Result, ASettings) ? Result : ADefault;
}

} // namespace

bool TryStrToDate(const TStringArg& AText, TDateTime& AValue) {
    return TryStrToDate(AText, AValue, DefaultFormatSettings());
}

bool TryStrToDate(const TStringArg& AText, TDateTime& AValue, const TFormatSettings& ASettings) {
    TDateTimeReader Reader(AText, ASettings);
    TDateTime Value;
    const bool IsDate = Reader.ReadDate(Value) && Reader.IsAtEnd();
    AValue = IsDate ? Value : TDateTime();
    return IsDate;
}

bool TryStrToTime(const TStringArg& AText, TDateTime& AValue) {
    return TryStrToTime(AText, AValue, DefaultFormatSettings());
}

bool TryStrToTime(const TStringArg& AText, TDateTime& AValue, const TFormatSettings& ASettings) {
    TDateTimeReader Reader(AText, ASettings);
    TDateTime Value;
    const bool IsTime = Reader.ReadTime(Value) && Reader.IsAtEnd();
    AValue = IsTime ? Value : TDateTime();
    return IsTime;
}

bool TryStrToDateTime(const TStringArg& AText, TDateTime& AValue) {
    return TryStrToDateTime(AText, AValue, DefaultFormatSettings());
}

bool TryStrToDateTime(const TStringArg& AText, TDateTime& AValue, const TFormatSettings& ASettings) {
    TDateTimeReader Reader(AText, ASettings);
    TDateTime Day;
    TDateTime Time;
    if (!Reader.ReadDate(Day) || !(Reader.IsAtEnd() || (Reader.ReadTime(Time) && Reader.IsAtEnd())))
        return TryStrToTime(AText, AValue, ASettings);
    AValue = Day;
    ReplaceTime(AValue, Time);
    return true;
}

TDateTime StrToDate(const TStringArg& AText) {
    return StrToDate(AText, DefaultFormatSettings());
}
TDateTime StrToDate(const TStringArg& AText, const TFormatSettings& ASettings) {
    return Require(TryStrToDate, AText, ASettings, u"'%s' is not a valid date");
}
TDateTime StrToTime(const TStringArg& AText) {
    return StrToTime(AText, DefaultFormatSettings());
}
TDateTime StrToTime(const TStringArg& AText, const TFormatSettings& ASettings) {
    return Require(TryStrToTime, AText, ASettings, u"'%s' is not a valid time");
}
TDateTime StrToDateTime(const TStringArg& AText) {
    return StrToDateTime(AText, DefaultFormatSettings());
}
TDateTime StrToDateTime(const TStringArg& AText, const TFormatSettings& ASettings) {
    return Require(TryStrToDateTime, AText, ASettings, u"'%s' is not a valid date and time");
}

TDateTime StrToDateDef(const TStringArg& AText, TDateTime ADefault) {
    return StrToDateDef(AText, ADefault, DefaultFormatSettings());
}
TDateTime StrToDateDef(const TStringArg& AText, TDateTime ADefault, const TFormatSettings& ASettings) {
    return OrDefault(TryStrToDate, AText, ADefault, ASettings);
}
TDateTime StrToTimeDef(const TStringArg& AText, TDateTime ADefault) {
    return StrToTimeDef(AText, ADefault, DefaultFormatSettings());
}
TDateTime StrToTimeDef(const TStringArg& AText, TDateTime ADefault, const TFormatSettings& ASettings) {
    return OrDefault(TryStrToTime, AText, ADefault, ASettings);
}
TDateTime StrToDateTimeDef(const TStringArg& AText, TDateTime ADefault) {
    return StrToDateTimeDef(AText, ADefault, DefaultFormatSettings());
}
TDateTime StrToDateTimeDef(const TStringArg& AText, TDateTime ADefault, const TFormatSettings& ASettings) {
    return OrDefault(TryStrToDateTime, AText, ADefault, ASettings);
}

} // namespace qz
