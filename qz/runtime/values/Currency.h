// Currency: an amount with four decimals, exact, in 64 bits.
//
//     Currency Price(19.99);
//     Price = Price + Currency(5);            // 24.99
//     CurrToStr(Price);                       // "24.99"
//
// It holds -922337203685477.5808 to 922337203685477.5807. What does not fit raises ERangeError. All functions
// are pure and may run on any number of threads.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/objects/TypeInfo.h>
#include <qz/runtime/text/FormatSettings.h>

namespace qz {

class Currency {
public:
    static constexpr std::int64_t cUnitsPerOne = 10000;

    constexpr Currency() noexcept = default;
    // The shortest decimal number that reads back as AValue, rounded to four decimals, halves to the even
    // one. Raises ERangeError if out of range, and for NaN.
    QZ_API explicit Currency(double AValue);
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    explicit constexpr Currency(T AValue) : FUnits(UnitsOf(AValue)) {}
    static constexpr Currency FromUnits(std::int64_t AUnits) noexcept {
        Currency Result;
        Result.FUnits = AUnits;
        return Result;
    }
    // False, and ACurrency unchanged, where the constructor raises.
    QZ_API static bool TryFromDouble(double AValue, Currency& ACurrency) noexcept;

    constexpr std::int64_t Units() const noexcept { return FUnits; }
    // The nearest double.
    constexpr double ToDouble() const noexcept {
        constexpr std::int64_t cExact = std::int64_t{1} << 53;
        return -cExact <= FUnits && FUnits <= cExact ? static_cast<double>(FUnits) / cUnitsPerOne
                                                     : LargeToDouble(FUnits);
    }

    friend constexpr bool operator==(Currency ALeft, Currency ARight) noexcept = default;
    friend constexpr std::strong_ordering operator<=>(Currency ALeft, Currency ARight) noexcept = default;
    friend QZ_API Currency operator+(Currency ALeft, Currency ARight);
    friend QZ_API Currency operator-(Currency ALeft, Currency ARight);

private:
    [[noreturn]] QZ_API static void RaiseRange();
    QZ_API static double LargeToDouble(std::int64_t AUnits) noexcept;
    template <std::integral T> static constexpr std::int64_t UnitsOf(T AValue) {
        constexpr std::int64_t cMost = std::numeric_limits<std::int64_t>::max() / cUnitsPerOne;
        if (std::cmp_greater(AValue, cMost) || std::cmp_less(AValue, -cMost))
            RaiseRange();
        return static_cast<std::int64_t>(AValue) * cUnitsPerOne;
    }

    std::int64_t FUnits = 0;
};

static_assert(sizeof(Currency) == 8);

// Decimal digits with no more decimals than needed, and the decimal separator of the settings.
QZ_API UnicodeString CurrToStr(Currency AValue);
QZ_API UnicodeString CurrToStr(Currency AValue, const TFormatSettings& ASettings);
// Reads blanks, a sign, digits with the decimal separator, blanks; rounds to four decimals, halves to the
// even one. Gives false, and 0 as the value, for any other text and for what does not fit.
QZ_API bool TryStrToCurr(const TStringArg& AText, Currency& AValue);
QZ_API bool TryStrToCurr(const TStringArg& AText, Currency& AValue, const TFormatSettings& ASettings);
// Raises EConvertError, "'%s' is not a valid currency value", instead.
QZ_API Currency StrToCurr(const TStringArg& AText);
QZ_API Currency StrToCurr(const TStringArg& AText, const TFormatSettings& ASettings);

} // namespace qz

QZ_TYPE_INFO(qz::Currency);
