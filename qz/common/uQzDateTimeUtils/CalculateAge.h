// QzCalculateAge: the age in whole years today. QzAge (uQzSysUtils/Age.h) says how it counts.
//
//     QzCalculateAge(Born);
#pragma once

#include <qz/common/uQzSysUtils/Age.h>

namespace qz {

// QzAge of the same argument, under the name of this unit.
inline std::int32_t QzCalculateAge(TDateTime ABirth) {
    return QzAge(ABirth);
}

} // namespace qz
