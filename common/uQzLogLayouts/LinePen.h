// What layouts write a line with. Internal.
#pragma once

#include <algorithm>
#include <string_view>

namespace qz::detail {

// Writes from one end of a text that has room for it to the other.
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
};

} // namespace qz::detail
