// The levels of messages, the steps of indentation, and values that go with a message.
//
//     QzLogLevels[static_cast<int>(llWarn)];      // u"Warn"
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz {

class TValue;

// From the least to the most serious; the ordinals are stored in log files. llAll and llDoNotLog serve as
// thresholds.
enum class TQzLogLevel : std::uint8_t {
    llAll,
    llTrace,
    llDebug,
    llInfo,
    llWarn,
    llError,
    llFatal,
    llDoNotLog
};
using enum TQzLogLevel;

// By TQzLogLevel.
inline constexpr std::u16string_view QzLogLevels[] = {u"All",  u"Trace", u"Debug", u"Info",
                                                      u"Warn", u"Error", u"Fatal", u"Disabled"};

// The name; empty for any other number.
constexpr std::u16string_view QzLogLevelName(TQzLogLevel ALevel) noexcept {
    return ALevel <= llDoNotLog ? QzLogLevels[static_cast<int>(ALevel)] : std::u16string_view();
}

// Writes the name.
QZ_API std::ostream& operator<<(std::ostream& AStream, TQzLogLevel ALevel);

// The level of that number. Raises ERangeError, "9 is not a log level".
QZ_API TQzLogLevel QzLogLevelOf(std::int32_t ANumber);

// The change of indentation for this line and those after it.
enum class TQzLogIndent : std::uint8_t { liIndentNone, liIndentIncrease, liIndentDecrease };
using enum TQzLogIndent;

// The value of a message, null for none. It is valid during the call.
using PQzDataRec = const TValue*;

} // namespace qz
