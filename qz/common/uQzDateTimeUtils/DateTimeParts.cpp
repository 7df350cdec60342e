#include <qz/common/uQzDateTimeUtils/DateTimeParts.h>

#include <qz/common/uQzDateTimeUtils/LocalZone.h>
#include <qz/common/uQzDateTimeUtils/detail/DateNumbers.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

using TParts = TQzDateTimeParts;

constexpr TFieldInfo cFields[] = {Field<&TParts::HasDate>(u"HasDate"),
                                  Field<&TParts::Year>(u"Year"),
                                  Field<&TParts::Month>(u"Month"),
                                  Field<&TParts::Day>(u"Day"),
                                  Field<&TParts::HasTime>(u"HasTime"),
                                  Field<&TParts::Hour>(u"Hour"),
                                  Field<&TParts::Min>(u"Min"),
                                  Field<&TParts::Sec>(u"Sec"),
                                  Field<&TParts::MSec>(u"MSec"),
                                  Field<&TParts::IsBC>(u"IsBC"),
                                  Field<&TParts::TimeZoneFormat>(u"TimeZoneFormat"),
                                  Field<&TParts::OffSet>(u"OffSet")};

bool IsDigit(char16_t AChar) noexcept {
    return AChar >= u'0' && AChar <= u'9';
}

[[noreturn]] void RaiseNoNumber(std::u16string_view AText) {
    throw EConvertError(u"'%s' is not a valid integer value", {AText});
}

std::uint16_t Number(std::u16string_view AText) {
    const std::int32_t Result = detail::DateNumber(AText);
    if (Result < 0 || Result > 0xFFFF)
        RaiseNoNumber(AText);
    return static_cast<std::uint16_t>(Result);
}

// Steps through a text as TQzTextParser does: a step passes the control characters after it. At the end it
// stays.
class TIsoReader {
public:
    explicit TIsoReader(std::u16string_view AText) noexcept : FText(AText) {}

    TParts Read() {
        if (Current() == u'-') {
            FParts.IsBC = true;
            Step();
        }
        const std::size_t Mark = FHere;
        const std::u16string_view First = Take(2);
        if (Current() == u':') {
            ReadTime(First);
        } else if (ReadDate(Mark); Current() == u'T') {
            Step();
            ReadTime(Take(2));
        }
        ReadZone();
        return FParts;
    }

private:
    bool IsAtEnd() const noexcept { return FHere == FText.size(); }
    char16_t Current() const noexcept { return IsAtEnd() ? u'\0' : FText[FHere]; }
    void Step() noexcept {
        if (IsAtEnd())
            return;
        do {
            ++FHere;
        } while (!IsAtEnd() && FText[FHere] < u' ');
    }
    std::u16string_view Take(int ACount) noexcept {
        const std::size_t Mark = FHere;
        for (; ACount > 0; --ACount)
            Step();
        return FText.substr(Mark, FHere - Mark);
    }
    std::u16string_view TakeDigits() noexcept {
        const std::size_t Mark = FHere;
        while (IsDigit(Current()))
            ++FHere;
        return FText.substr(Mark, FHere - Mark);
    }
    // After the first two characters of the year, which starts at AMark.
    void ReadDate(std::size_t AMark) {
        FParts.HasDate = true;
        Take(2);
        FParts.Year = Number(FText.substr(AMark, FHere - AMark));
        for (std::uint16_t* Part : {&FParts.Month, &FParts.Day}) {
            if (Current() == u'-')
                Step();
            *Part = Number(Take(2));
        }
    }
    void ReadTime(std::u16string_view AHour) {
        FParts.HasTime = true;
        FParts.Hour = Number(AHour);
        Step();
        FParts.Min = Number(Take(2));
        if (!IsAtEnd() && Current() != u'+' && Current() != u'-') {
            Step();
            const std::u16string_view Seconds = TakeDigits();
            FParts.Sec = Seconds.empty() ? std::uint16_t{0} : Number(Seconds);
        }
        if (Current() == u'.' || Current() == u',') {
            Step();
            const std::u16string_view Digits = TakeDigits();
            for (std::size_t I = 0; I < 3; ++I)
                FParts.MSec =
                    static_cast<std::uint16_t>(FParts.MSec * 10 + (I < Digits.size() ? Digits[I] - u'0' : 0));
        }
    }
    void ReadZone() {
        const char16_t Sign = Current();
        if (Sign == u'Z')
            FParts.TimeZoneFormat = tzfUTC;
        if (Sign != u'+' && Sign != u'-')
            return;
        FParts.TimeZoneFormat = tzfOffset;
        Step();
        const int Hours = Number(Take(2));
        Step();
        const int Minutes = Hours * 60 + Number(Take(2));
        FParts.OffSet = static_cast<std::int16_t>(Sign == u'-' ? -Minutes : Minutes);
    }

    std::u16string_view FText;
    std::size_t FHere = 0;
    TParts FParts;
};

// 0 stays 0, without a sign.
TDateTime Signed(TDateTime AValue, bool AIsBC) noexcept {
    return AIsBC && AValue != 0 ? -AValue.Value : AValue.Value;
}

} // namespace

QZ_REGISTER_TYPES(TQzDateTimeParts);

constinit const TTypeInfo TTypeDescription<TQzDateTimeParts>::Info =
    DescribeRecord<TQzDateTimeParts>(u"TQzDateTimeParts", u"uQzDateTimeUtils", cFields);

TDateTime TQzDateTimeParts::Date() const {
    return Signed(HasDate ? EncodeDate(Year, Month, Day) : TDateTime(), IsBC);
}

TDateTime TQzDateTimeParts::Time() const {
    return Signed(HasTime ? EncodeTime(Hour, Min, Sec, MSec) : TDateTime(), IsBC);
}

TDateTime TQzDateTimeParts::DateTime() const {
    if (!HasDate)
        return Time();
    if (!HasTime)
        return Date();
    return Signed(EncodeDateTime(Year, Month, Day, Hour, Min, Sec, MSec), IsBC);
}

TDateTime TQzDateTimeParts::UTC() const {
    switch (TimeZoneFormat) {
    case tzfOffset: return detail::MoveMinutes(DateTime(), -OffSet);
    case tzfUTC: return DateTime();
    case tzfNA: break;
    }
    return QzLocalToUTC(DateTime());
}

TQzDateTimeParts QzDecodeISODateTime(const TStringArg& AText) {
    const std::u16string_view Text = AText;
    return Text.empty() || Text == u"0" ? TParts() : TIsoReader(Text).Read();
}

TQzDateTimeParts QzDecodeISODateTimeDef(const TStringArg& AText, TDateTime ADefault) {
    try {
        return QzDecodeISODateTime(AText);
    } catch (const std::exception&) {
        TParts Result;
        DecodeDateTime(ADefault, Result.Year, Result.Month, Result.Day, Result.Hour, Result.Min, Result.Sec,
                       Result.MSec);
        return Result;
    }
}

} // namespace qz
