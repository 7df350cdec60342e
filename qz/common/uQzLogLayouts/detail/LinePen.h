// TLinePen: writes a line into a buffer of known size. Internal.
#pragma once

#include <algorithm>
#include <string_view>

namespace qz::detail {

// The buffer has room for all that is put.
struct TLinePen {
    char16_t* Place;

    void Put(std::u16string_view AText) noexcept { Place = std::copy(AText.begin(), AText.end(), Place); }
    void Put(char16_t AChar) noexcept { *Place++ = AChar; }
    // With leading zeros.
    void PutNumber(unsigned ANumber, int ADigits) noexcept {
        for (int I = ADigits; I-- > 0; ANumber /= 10)
            Place[I] = static_cast<char16_t>(u'0' + ANumber % 10);
        Place += ADigits;
    }
    // 2024-01-31 and 07:15:02.
    void PutDate(unsigned AYear, unsigned AMonth, unsigned ADay) noexcept {
        PutNumber(AYear, 4);
        Put(u'-');
        PutNumber(AMonth, 2);
        Put(u'-');
        PutNumber(ADay, 2);
    }
    void PutTime(unsigned AHour, unsigned AMinute, unsigned ASecond) noexcept {
        PutNumber(AHour, 2);
        Put(u':');
        PutNumber(AMinute, 2);
        Put(u':');
        PutNumber(ASecond, 2);
    }
};

} // namespace qz::detail
