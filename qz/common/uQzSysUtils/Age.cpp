#include <qz/common/uQzSysUtils/Age.h>

namespace qz {

std::int32_t QzAge(TDateTime AReference, TDateTime ABirth) {
    if (!(ABirth > 0))
        return 0;
    std::uint16_t Year, Month, Day, BirthYear, BirthMonth, BirthDay;
    DecodeDate(AReference, Year, Month, Day);
    DecodeDate(ABirth, BirthYear, BirthMonth, BirthDay);
    const bool IsBeforeBirthday = Month < BirthMonth || (Month == BirthMonth && Day < BirthDay);
    return Year - BirthYear - (IsBeforeBirthday ? 1 : 0);
}

std::int32_t QzAge(TDateTime ABirth) {
    return QzAge(Now(), ABirth);
}

} // namespace qz
