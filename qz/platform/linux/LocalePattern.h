// From the patterns and amounts of the Unicode locale data to the forms of platform/Locale.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qz::platform::detail {

// A Unicode date or time pattern, in the letters of TLocale. Fields that those can't tell (era, zone,
// quarter) go, together with the blanks around them; quoted text stays quoted; special blanks become plain
// ones.
std::u16string PlainPattern(std::u16string_view APattern);

// A plain pattern whose year has four digits: "dd.MM.yy" gives "dd.MM.yyyy".
std::u16string WithLongYear(std::u16string_view APattern);

// The first unit between two fields of a plain pattern that isn't a blank; empty if there is none.
std::u16string_view FirstSeparator(std::u16string_view APattern);

// The positions of an amount of 1, or of -1, as ICU wrote it with the symbol ACurrency. A negative form that
// has no code gives the nearest to the positive one.
std::uint8_t PositiveCurrencyCode(std::u16string_view AAmount, std::u16string_view ACurrency);
std::uint8_t NegativeCurrencyCode(std::u16string_view AAmount, std::u16string_view ACurrency,
                                  std::uint8_t APositive);

} // namespace qz::platform::detail
