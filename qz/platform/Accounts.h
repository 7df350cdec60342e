// Who runs this process, and on which computer. Any thread; what is told is that of the moment, except as said below.
//
//     const TAccountName Account = AccountName();
//     Show(Account.Domain, Account.Name);
#pragma once

#include <string>

#include <qz/platform/Export.h>

namespace qz::platform {

// The computer's own name: the host name, or the NetBIOS name on Windows. Empty if the system does not tell.
QZ_API std::u16string ComputerName();

// The user as whom the thread acts: on Linux the effective one, by its number where no database of users tells its name.
// There a name that was found is kept for the life of the process; Windows may fail, which gives an empty text.
QZ_API std::u16string UserName();

struct TAccountName {
    std::u16string Name;
    std::u16string Domain; // of a local account the computer's name
};

// The account of the process and its domain.
// Both are empty if the system does not tell. Linux takes apart the names of accounts that other systems keep, which
// read DOMAIN\user or user@domain.
QZ_API TAccountName AccountName();

enum class TElevation { Unknown, Full, Limited };

// Whether the process has an administrator's rights now: on Linux, whether it acts as root.
QZ_API TElevation Elevation() noexcept;

} // namespace qz::platform
