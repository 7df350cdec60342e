// A user's record in the system's user databases.
#pragma once

#include <string>

#include <sys/types.h>

namespace qz::platform::detail {

struct TUserRecord {
    std::string Name;
    std::string Home;
};

// Empty for an unknown user, and if the databases are not available.
TUserRecord UserRecord(uid_t AId);

// Takes the domain out of a name that reads DOMAIN\user or user@domain; empty for any other.
std::u16string TakeDomain(std::u16string& AName);

} // namespace qz::platform::detail
