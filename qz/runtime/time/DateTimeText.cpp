#include <qz/runtime/time/DateTimeText.h>

#include <algorithm>
#include <array>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

using TView = std::u16string_view;

// A pattern, and the patterns of the settings that it refers to.
constexpr int cMaxDepth = 2;

constexpr bool IsLetter(char16_t AChar) noexcept {
    return AChar >= u'a' && AChar <= u'z';
}

// The length of the mark of the half of the day that AText begins with, or 0.
std::size_t HalfDayMark(TView AText) noexcept {
    for (const TView Mark : {u"am/pm", u"ampm", u"a/p"})
        if (StartsText(Mark, AText))
            return Mark.size();
    return 0;
}

// The end of the literal whose quote stands at AStart, after the closing quote if there is one.
std::size_t LiteralEnd(TView APattern, std::size_t AStart) noexcept {
    const std::size_t End = APattern.find(APattern[AStart], AStart + 1);
    return End == TView::npos ? APattern.size() : End + 1;
}

// Whether the hour that ends at AFrom counts to 12: a mark comes before the next hour.
bool HasHalfDayMark(TView APattern, std::size_t AFrom) noexcept {
    while (AFrom < APattern.size()) {
        const char16_t Char = LowCase(APattern[AFrom]);
        if (Char == u'h')
            return false;
        if (Char == u'a' && HalfDayMark(APattern.substr(AFrom)) != 0)
            return true;
        AFrom = Char == u'\'' || Char == u'"' ? LiteralEnd(APattern, AFrom) : AFrom + 1;
    }
    return false;
}

class TDateTimeWriter {
public:
    TDateTimeWriter(TDateTime AValue, const TFormatSettings& ASettings) : FSettings(ASettings) {
        DecodeDate(AValue, FYear, FMonth, FDay);
        DecodeTime(AValue, FHour, FMinute, FSecond, FMilliSecond);
        FDayOfWeek = static_cast<std::size_t>(DayOfWeek(AValue));
    }

    UnicodeString Run(TView APattern) {
        FResult.Reserve(APattern.size() + 12);
        WritePattern(APattern.empty() ? TView(u"c") : APattern);
        return std::move(FResult);
    }

private:
    // What has been met in the pattern that is being written.
    struct TPlace {
        TView Pattern;
        std::size_t Here = 0;
        char16_t LastLetter = 0;
        bool HasHour = false;
        bool BeginsWithMark = false; // before the first hour
    };

    void WritePattern(TView APattern) {
        if (FDepth == cMaxDepth)
            return;
        ++FDepth;
        TPlace Place{APattern};
        while (Place.Here < APattern.size()) {
            const char16_t Char = LowCase(APattern[Place.Here]);
            if (!IsLetter(Char))
                WriteOther(Place);
            else if (Char == u'a')
                WriteHalfDay(Place);
            else
                WriteField(Place, Char);
        }
        --FDepth;
    }

    void WriteOther(TPlace& APlace) {
        const char16_t Char = APlace.Pattern[APlace.Here];
        if (Char == u'\'' || Char == u'"')
            return WriteLiteral(APlace, Char);
        ++APlace.Here;
        if (Char == u'/')
            WriteSeparator(FSettings.DateSeparator);
        else if (Char == u':')
            WriteSeparator(FSettings.TimeSeparator);
        else
            FResult += Char;
    }

    void WriteSeparator(char16_t AChar) {
        if (AChar != u'\0')
            FResult += AChar;
    }

    // A quote right after the closing one opens the literal again and stands for itself.
    void WriteLiteral(TPlace& APlace, char16_t AQuote) {
        while (true) {
            const std::size_t End = LiteralEnd(APlace.Pattern, APlace.Here);
            const bool IsClosed = End > APlace.Here + 1 && APlace.Pattern[End - 1] == AQuote;
            FResult.Append(APlace.Pattern.substr(APlace.Here + 1, End - APlace.Here - (IsClosed ? 2u : 1u)));
            APlace.Here = End;
            if (!IsClosed || End == APlace.Pattern.size() || APlace.Pattern[End] != AQuote)
                return;
            FResult += AQuote;
        }
    }

    void WriteHalfDay(TPlace& APlace) {
        const TView Rest = APlace.Pattern.substr(APlace.Here);
        const std::size_t Length = HalfDayMark(Rest);
        const bool IsAfternoon = FHour >= 12;
        if (Length == 5)
            FResult.Append(Rest.substr(IsAfternoon ? 3 : 0, 2));
        else if (Length == 4)
            FResult += IsAfternoon ? FSettings.TimePMString : FSettings.TimeAMString;
        else
            FResult += Rest[Length == 3 && IsAfternoon ? 2 : 0];
        APlace.BeginsWithMark = APlace.BeginsWithMark || (Length != 0 && !APlace.HasHour);
        APlace.LastLetter = u'a';
        APlace.Here += std::max<std::size_t>(Length, 1);
    }

    void WriteField(TPlace& APlace, char16_t ALetter) {
        const std::size_t Start = APlace.Here;
        while (APlace.Here < APlace.Pattern.size() && LowCase(APlace.Pattern[APlace.Here]) == ALetter)
            ++APlace.Here;
        const std::size_t Count = APlace.Here - Start;
        const char16_t Letter = ALetter == u'm' && APlace.LastLetter == u'h' ? u'n' : ALetter;
        APlace.LastLetter = Letter;
        switch (Letter) {
        case u'y': return Count <= 2 ? WriteNumber(FYear % 100u, 2) : WriteNumber(FYear, 4);
        case u'm': return WriteMonth(Count);
        case u'd': return WriteDay(Count);
        case u'h': return WriteHour(APlace, Count);
        case u'n': return WriteNumber(FMinute, std::min<std::size_t>(Count, 2));
        case u's': return WriteNumber(FSecond, std::min<std::size_t>(Count, 2));
        case u'z': return WriteNumber(FMilliSecond, std::min<std::size_t>(Count, 3));
        case u't': return WritePattern(Count == 1 ? FSettings.ShortTimeFormat : FSettings.LongTimeFormat);
        case u'c': return WriteDateAndTime();
        default: FResult.Append(APlace.Pattern.substr(Start, Count));
        }
    }

    void WriteMonth(std::size_t ACount) {
        if (ACount <= 2)
            WriteNumber(FMonth, ACount);
        else
            FResult += (ACount == 3 ? FSettings.ShortMonthNames : FSettings.LongMonthNames)[FMonth - 1u];
    }

    void WriteDay(std::size_t ACount) {
        switch (ACount) {
        case 1:
        case 2: return WriteNumber(FDay, ACount);
        case 3: FResult += FSettings.ShortDayNames[FDayOfWeek - 1]; return;
        case 4: FResult += FSettings.LongDayNames[FDayOfWeek - 1]; return;
        case 5: return WritePattern(FSettings.ShortDateFormat);
        default: return WritePattern(FSettings.LongDateFormat);
        }
    }

    void WriteHour(TPlace& APlace, std::size_t ACount) {
        const bool UpTo12 =
            (APlace.BeginsWithMark && !APlace.HasHour) || HasHalfDayMark(APlace.Pattern, APlace.Here);
        APlace.HasHour = true;
        WriteNumber(UpTo12 ? (FHour + 11u) % 12 + 1 : FHour, std::min<std::size_t>(ACount, 2));
    }

    void WriteDateAndTime() {
        WritePattern(FSettings.ShortDateFormat);
        if (FHour == 0 && FMinute == 0 && FSecond == 0 && FMilliSecond == 0)
            return;
        FResult += u' ';
        WritePattern(FSettings.LongTimeFormat);
    }

    void WriteNumber(unsigned AValue, std::size_t ADigits) {
        std::array<char16_t, detail::cMaxIntLength> Buffer;
        char16_t* End = Buffer.data() + Buffer.size();
        char16_t* Start = detail::WriteDecimal(AValue, End);
        while (End - Start < static_cast<std::ptrdiff_t>(ADigits))
            *--Start = u'0';
        FResult.Append({Start, static_cast<std::size_t>(End - Start)});
    }

    const TFormatSettings& FSettings;
    UnicodeString FResult;
    int FDepth = 0;
    std::uint16_t FYear;
    std::uint16_t FMonth;
    std::uint16_t FDay;
    std::uint16_t FHour;
    std::uint16_t FMinute;
    std::uint16_t FSecond;
    std::uint16_t FMilliSecond;
    std::size_t FDayOfWeek;
};

} // namespace

UnicodeString FormatDateTime(const TStringArg& APattern, TDateTime AValue) {
    return FormatDateTime(APattern, AValue, DefaultFormatSettings());
}

UnicodeString FormatDateTime(const TStringArg& APattern, TDateTime AValue, const TFormatSettings& ASettings) {
    return TDateTimeWriter(AValue, ASettings).Run(APattern);
}

UnicodeString DateToStr(TDateTime AValue) {
    return DateToStr(AValue, DefaultFormatSettings());
}
UnicodeString DateToStr(TDateTime AValue, const TFormatSettings& ASettings) {
    return FormatDateTime(u"ddddd", AValue, ASettings);
}
UnicodeString TimeToStr(TDateTime AValue) {
    return TimeToStr(AValue, DefaultFormatSettings());
}
UnicodeString TimeToStr(TDateTime AValue, const TFormatSettings& ASettings) {
    return FormatDateTime(u"tt", AValue, ASettings);
}
UnicodeString DateTimeToStr(TDateTime AValue) {
    return DateTimeToStr(AValue, DefaultFormatSettings());
}
UnicodeString DateTimeToStr(TDateTime AValue, const TFormatSettings& ASettings) {
    return FormatDateTime(u"c", AValue, ASettings);
}

} // namespace qz
