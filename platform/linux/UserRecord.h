// What the system's databases of users know of one.
#pragma once

#include <string>

#include <sys/types.h>

namespace qz::platform::detail {

struct TUserRecord {
    std::string Name;
    std::string Home;
};

// Empty texts for a user that nobody knows.
TUserRecord UserRecord(uid_t AId);

} // namespace qz::platform::detail
