#include <qz/common/uQzDateTimeUtils/detail/DateNumbers.h>

#include <qz/runtime/text/NumberText.h>

namespace qz::detail {

std::int32_t DateNumber(std::u16string_view AText) {
    constexpr std::size_t cSafeDigits = 9;
    std::int32_t Result = 0;
    bool IsPlain = !AText.empty() && AText.size() <= cSafeDigits;
    for (const char16_t Char : AText) {
        const unsigned Digit = Char - unsigned{u'0'};
        IsPlain = IsPlain && Digit <= 9;
        if (!IsPlain)
            return StrToInt(AText);
        Result = Result * 10 + static_cast<std::int32_t>(Digit);
    }
    return IsPlain ? Result : StrToInt(AText);
}

TDateTime JoinDayAndTime(TDateTime ADay, TDateTime ATime) {
    if (ADay >= 0)
        return ADay + ATime;
    return JoinDateTime({SplitDateTime(ADay).Day, SplitDateTime(ATime).MSecs});
}

TDateTime MoveMinutes(TDateTime ADate, std::int32_t AMinutes) {
    constexpr std::int64_t cMSecsPerMin = 60000;
    const TDayAndTime Parts = SplitDateTime(ADate);
    std::int64_t MSecs = Parts.MSecs + AMinutes * cMSecsPerMin;
    std::int64_t Days = MSecs / MSecsPerDay - (MSecs % MSecsPerDay < 0 ? 1 : 0);
    MSecs -= Days * MSecsPerDay;
    return JoinDateTime({static_cast<std::int32_t>(Parts.Day + Days), static_cast<std::int32_t>(MSecs)});
}

} // namespace qz::detail
