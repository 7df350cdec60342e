#include <qz/runtime/text/detail/Decimal.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace qz::detail {

TDecimal::TDecimal(double AValue) noexcept {
    IsNegative = std::signbit(AValue);
    if (std::isnan(AValue) || std::isinf(AValue)) {
        Kind = std::isnan(AValue) ? TKind::NotANumber : TKind::Infinite;
        return;
    }
    if (AValue == 0) {
        IsNegative = false;
        return;
    }
    // "d.ddddde-xx", at most 17 digits.
    std::array<char, 32> Text;
    const char* End = std::to_chars(Text.data(), Text.data() + Text.size(), std::fabs(AValue),
                                    std::chars_format::scientific)
                          .ptr;
    const char* Here = Text.data();
    for (; *Here != 'e'; ++Here)
        if (*Here != '.')
            Digits[static_cast<std::size_t>(Count++)] = *Here;
    std::from_chars(Here[1] == '+' ? Here + 2 : Here + 1, End, Exponent);
    ++Exponent;
    while (Count > 0 && Digits[static_cast<std::size_t>(Count - 1)] == '0')
        --Count;
}

void TDecimal::Round(int ACount) noexcept {
    if (ACount >= Count)
        return;
    const bool IsUp = ACount >= 0 && Digits[static_cast<std::size_t>(ACount)] >= '5';
    Count = std::max(ACount, 0);
    if (IsUp) {
        while (Count > 0 && Digits[static_cast<std::size_t>(Count - 1)] == '9')
            --Count;
        if (Count > 0) {
            ++Digits[static_cast<std::size_t>(Count - 1)];
        } else {
            Digits[0] = '1';
            Count = 1;
            ++Exponent;
        }
    }
    while (Count > 0 && Digits[static_cast<std::size_t>(Count - 1)] == '0')
        --Count;
    if (Count == 0) {
        IsNegative = false;
        Exponent = 0;
    }
}

} // namespace qz::detail
