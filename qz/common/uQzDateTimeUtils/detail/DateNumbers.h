// Numbers within texts of dates, and dates that cross day 0. Internal.
#pragma once

#include <string_view>

#include <qz/runtime/time/DateTime.h>

namespace qz::detail {

// The number as StrToInt reads it, and raises what that raises; plain digits are read at once.
std::int32_t DateNumber(std::u16string_view AText);

// At most ACount characters from AFrom on, as Copy gives them.
constexpr std::u16string_view PieceOf(std::u16string_view AText, std::size_t AFrom,
                                      std::size_t ACount = std::u16string_view::npos) noexcept {
    return AFrom < AText.size() ? AText.substr(AFrom, ACount) : std::u16string_view();
}

// A day and a time of day as one value. The time of day counts forward also before day 0, where a sum would
// count it backwards.
TDateTime JoinDayAndTime(TDateTime ADay, TDateTime ATime);

// So many minutes later, to the millisecond. Before day 0 a sum would move the time of day backwards.
TDateTime MoveMinutes(TDateTime ADate, std::int32_t AMinutes);

} // namespace qz::detail
