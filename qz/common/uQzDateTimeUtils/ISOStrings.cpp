#include <qz/common/uQzDateTimeUtils/ISOStrings.h>

#include <array>
#include <cmath>

#include <qz/common/uQzDateTimeUtils/LocalZone.h>
#include <qz/common/uQzDateTimeUtils/detail/DateNumbers.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using detail::DateNumber;
using detail::PieceOf;

constexpr auto cNowhere = std::u16string_view::npos;

// Writes so many digits, and gives the place after them.
char16_t* PutDigits(char16_t* APlace, unsigned AValue, int ACount) noexcept {
    for (char16_t* Here = APlace + ACount; Here != APlace; AValue /= 10)
        *--Here = static_cast<char16_t>(u'0' + AValue % 10);
    return APlace + ACount;
}

char16_t* Put(char16_t* APlace, char16_t AChar) noexcept {
    *APlace = AChar;
    return APlace + 1;
}

char16_t* PutDate(char16_t* APlace, unsigned AYear, unsigned AMonth, unsigned ADay) noexcept {
    APlace = Put(PutDigits(APlace, AYear, 4), u'-');
    return PutDigits(Put(PutDigits(APlace, AMonth, 2), u'-'), ADay, 2);
}

bool EndsInZ(std::u16string_view AText) noexcept {
    return !AText.empty() && AText.back() == u'Z';
}

// The milliseconds after the point, up to the first "-", or else the first "+".
std::int32_t ReadMSecs(std::u16string_view AText) {
    std::size_t End = AText.find(u'-');
    if (End == cNowhere)
        End = AText.find(u'+');
    return DateNumber(AText.substr(0, End));
}

TDateTime ReadTime(std::u16string_view AText) {
    if (AText.empty())
        return 0;
    const std::size_t Start = AText.find(u'T') + 1; // 0 without a "T"
    const int Hour = DateNumber(PieceOf(AText, Start, 2));
    const int Minute = DateNumber(PieceOf(AText, Start + 3, 2));
    const int Second = DateNumber(PieceOf(AText, Start + 6, 2));
    const int MSec = PieceOf(AText, Start + 8, 1) == u"." ? ReadMSecs(PieceOf(AText, Start + 9)) : 0;
    const TDateTime Result = EncodeTime(Hour, Minute, Second, MSec);
    return EndsInZ(AText) ? QzUTCToLocal(Result) : Result;
}

TDateTime ReadDate(std::u16string_view AText) {
    if (AText.empty())
        return 0;
    std::array<char16_t, 8> Digits;
    std::size_t Count = 0;
    for (const char16_t Char : AText) {
        if (Count == Digits.size())
            break;
        if (Char != u'-')
            Digits[Count++] = Char;
    }
    const std::u16string_view Text(Digits.data(), Count);
    const std::int64_t Year = DateNumber(PieceOf(Text, 0, 4));
    const std::int64_t Month = DateNumber(PieceOf(Text, 4, 2));
    const std::int64_t Day = DateNumber(PieceOf(Text, 6, 2));
    if (Year + Month + Day == 0)
        return 0;
    return EncodeDate(static_cast<int>(Year), static_cast<int>(Month), static_cast<int>(Day));
}

// The minutes to add to reach UTC; the text is a sign, hours and minutes.
std::int32_t ReadOffset(std::u16string_view AZone) {
    if (AZone.empty() || (AZone[0] != u'+' && AZone[0] != u'-'))
        throw EConvertError(u"'%s' is not a valid integer value", {AZone});
    const std::int32_t Minutes = DateNumber(PieceOf(AZone, 1, 2)) * 60 + DateNumber(PieceOf(AZone, 4, 2));
    return AZone[0] == u'+' ? -Minutes : Minutes;
}

} // namespace

UnicodeString QzDateToISOStr(TDateTime AValue) {
    std::uint16_t Year, Month, Day;
    DecodeDate(AValue, Year, Month, Day);
    UnicodeString Result = UnicodeString::ForOverwrite(10);
    PutDate(Result.UniqueData(), Year, Month, Day);
    return Result;
}

UnicodeString QzDateTimeToISOStr(TDateTime AValue, bool AWithMSecs) {
    std::uint16_t Year, Month, Day, Hour, Minute, Second, MSec;
    DecodeDateTime(AValue, Year, Month, Day, Hour, Minute, Second, MSec);
    UnicodeString Result = UnicodeString::ForOverwrite(AWithMSecs ? 23 : 19);
    char16_t* Here = Put(PutDate(Result.UniqueData(), Year, Month, Day), u'T');
    Here = Put(PutDigits(Here, Hour, 2), u':');
    Here = PutDigits(Put(PutDigits(Here, Minute, 2), u':'), Second, 2);
    if (AWithMSecs)
        PutDigits(Put(Here, u'.'), MSec, 3);
    return Result;
}

UnicodeString QzTimeToISOStr(TDateTime AValue, bool AWithMSecs) {
    return QzDateTimeToISOStr(AValue.Value - std::trunc(AValue.Value), AWithMSecs);
}

TDateTime QzISOStrToDate(const TStringArg& AText) {
    return ReadDate(AText);
}

TDateTime QzISOStrToTime(const TStringArg& AText) {
    return ReadTime(AText);
}

TDateTime QzISOStrToDateTime(const TStringArg& AText) {
    const std::u16string_view Text = AText;
    if (Text.empty() || Text == u"0")
        return 0;
    const std::size_t Mark = Text.find(u'T');
    if (Mark == cNowhere)
        return EndsInZ(Text) ? QzUTCToLocal(ReadDate(Text)) : ReadDate(Text);
    const TDateTime Date = ReadDate(Text.substr(0, Mark));
    std::u16string_view Time = Text.substr(Mark + 1);
    if (EndsInZ(Time)) {
        Time.remove_suffix(1);
        return QzUTCToLocal(detail::JoinDayAndTime(Date, ReadTime(Time)));
    }
    // The positions of both signs are added, as if there were one at most.
    const std::size_t Sum = (Time.find(u'+') + 1) + (Time.find(u'-') + 1);
    if (Sum == 0)
        return detail::JoinDayAndTime(Date, ReadTime(Time));
    const std::int32_t Minutes = ReadOffset(PieceOf(Time, Sum - 1));
    return QzUTCToLocal(
        detail::MoveMinutes(detail::JoinDayAndTime(Date, ReadTime(Time.substr(0, Sum - 1))), Minutes));
}

} // namespace qz
