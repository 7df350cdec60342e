// What the system's databases of users know of one.
#pragma once

#include <string>

#include <sys/types.h>

namespace qz::platform::detail {

struct TUserRecord {
    std::string Name;
    std::string Home;
};

// Empty texts for a user that nobody knows, and where the databases cannot be asked at this moment.
TUserRecord UserRecord(uid_t AId);

// Takes the domain out of a name that reads DOMAIN\user or user@domain; empty for any other.
std::u16string TakeDomain(std::u16string& AName);

} // namespace qz::platform::detail
