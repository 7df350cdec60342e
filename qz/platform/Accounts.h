// The computer, the user and the account of this process. Any thread. Each call asks the system, except as
// stated below.
//
//     const TAccountName Account = AccountName();
//     Show(Account.Domain, Account.Name);
#pragma once

#include <string>

#include <qz/platform/Export.h>

namespace qz::platform {

// The host name, or the NetBIOS name on Windows. Empty if the system reports none.
QZ_API std::u16string ComputerName();

// The user of the calling thread. On Linux the effective user, as a number where the user database has no
// name for it; a name is looked up once per process. Empty if Windows fails.
QZ_API std::u16string UserName();

struct TAccountName {
    std::u16string Name;
    std::u16string Domain; // of a local account the computer's name
};

// The account of the process and its domain.
// Both are empty if the system reports none. On Linux the names of
// network accounts, DOMAIN\user or user@domain, are split.
QZ_API TAccountName AccountName();

enum class TElevation { Unknown, Full, Limited };

// Whether the process has administrator rights; on Linux, whether its effective user is root.
QZ_API TElevation Elevation() noexcept;

} // namespace qz::platform
