#include <qz/runtime/text/detail/Decimal.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace qz::detail {

namespace {

// Whether AValue, which is positive, is below the number of these digits, the shortest that reads back as it.
bool IsBelow(double AValue, std::string_view ADigits) noexcept {
    constexpr int cAllDigits = 766; // after the first one; no double has more
    std::array<char, cAllDigits + 32> Text;
    std::to_chars(Text.data(), Text.data() + Text.size(), AValue, std::chars_format::scientific, cAllDigits);
    Text[1] = Text[0]; // replaces the point
    return std::string_view(&Text[1], ADigits.size()) < ADigits;
}

} // namespace

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

// The shortest digits lie on the same side of a half as the value does, unless they are that half.
void TDecimal::RoundNearest(double AValue, int ACount) noexcept {
    if (ACount >= 0 && ACount + 1 == Count) {
        char& Last = Digits[static_cast<std::size_t>(ACount)];
        const std::string_view All(Digits.data(), static_cast<std::size_t>(Count));
        if (Last == '5' && IsBelow(std::fabs(AValue), All))
            Last = '4';
    }
    Round(ACount);
}

} // namespace qz::detail
