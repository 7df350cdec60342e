#include <qz/common/uQzLogger/LogTypes.h>

#include <ostream>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {

std::ostream& operator<<(std::ostream& AStream, TQzLogLevel ALevel) {
    return AStream << UnicodeString(QzLogLevelName(ALevel));
}

TQzLogLevel QzLogLevelOf(std::int32_t ANumber) {
    if (ANumber < static_cast<std::int32_t>(llAll) || ANumber > static_cast<std::int32_t>(llDoNotLog))
        throw ERangeError(u"%d is not a log level", {ANumber});
    return static_cast<TQzLogLevel>(ANumber);
}

} // namespace qz
