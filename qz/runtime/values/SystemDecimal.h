// TSysDecimal: a decimal number of 96 bits with up to 28 decimals, laid out as OLE Automation lays it out.
//
//     TSysDecimal Number;
//     TryStrToDecimal(u"79228162514264337593543950335", Number);
//     DecimalToStr(Number);                   // the same digits: a text of 28 decimals or less is kept as it is
//
// 1.5 and 1.50 are equal, yet each keeps its own number of decimals. All functions are pure and may run on
// any number of threads.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>

#include <qz/runtime/values/Currency.h>

namespace qz {

struct TSysDecimal {
    std::uint16_t Reserved = 0; // where a variant has its type
    std::uint8_t Scale = 0;     // decimals; more than cMaxScale count as so many
    std::uint8_t Sign = 0;      // cNegative or 0
    std::uint32_t High = 0;     // the upper 32 bits of the magnitude
    std::uint64_t Low = 0;      // the lower 64

    static constexpr std::uint8_t cMaxScale = 28;
    static constexpr std::uint8_t cNegative = 0x80;

    constexpr TSysDecimal() noexcept = default;
    constexpr TSysDecimal(std::uint64_t AMagnitude, bool AIsNegative, std::uint8_t AScale = 0) noexcept
        : Scale(AScale),
          Sign(AIsNegative ? cNegative : std::uint8_t{0}),
          Low(AMagnitude) {}
    // By value and exact.
    static QZ_API TSysDecimal FromInt64(std::int64_t AValue) noexcept;
    static QZ_API TSysDecimal FromCurrency(Currency AValue) noexcept;
    // A whole number exactly, of any other the shortest decimal number that reads back as AValue, rounded to
    // what fits, halves away from zero. False, and ADecimal unchanged, for a number out of range and for NaN.
    static QZ_API bool TryFromDouble(double AValue, TSysDecimal& ADecimal) noexcept;

    bool IsNegative() const noexcept { return Sign != 0; }
    bool IsZero() const noexcept { return High == 0 && Low == 0; }
    // Decimals that are too many are rounded away, halves to the even digit.
    QZ_API TSysDecimal Rounded(std::uint8_t AScale) const noexcept;
    // The nearest double.
    QZ_API double ToDouble() const noexcept;
    // Rounded to four decimals. False, and ACurrency unchanged, for what does not fit.
    QZ_API bool TryToCurrency(Currency& ACurrency) const noexcept;

    // By value.
    friend QZ_API std::strong_ordering operator<=>(const TSysDecimal& ALeft,
                                                   const TSysDecimal& ARight) noexcept;
    friend bool operator==(const TSysDecimal& ALeft, const TSysDecimal& ARight) noexcept {
        return std::is_eq(ALeft <=> ARight);
    }
};

static_assert(sizeof(TSysDecimal) == 16 && offsetof(TSysDecimal, Scale) == 2 &&
              offsetof(TSysDecimal, Sign) == 3);
static_assert(offsetof(TSysDecimal, High) == 4 && offsetof(TSysDecimal, Low) == 8);

// All decimals of the number, also zeros, with the decimal separator of the settings.
QZ_API UnicodeString DecimalToStr(const TSysDecimal& AValue);
QZ_API UnicodeString DecimalToStr(const TSysDecimal& AValue, const TFormatSettings& ASettings);
// Reads blanks, a sign, digits with the decimal separator, blanks; decimals that do not fit are rounded,
// halves to the even digit. Gives false, and 0 as the value, for any other text and for a number that is too
// large.
QZ_API bool TryStrToDecimal(const TStringArg& AText, TSysDecimal& AValue);
QZ_API bool TryStrToDecimal(const TStringArg& AText, TSysDecimal& AValue, const TFormatSettings& ASettings);

} // namespace qz
