#include <qz/platform/Accounts.h>

#include <atomic>
#include <climits>
#include <string>
#include <utility>

#include <unistd.h>

#include <qz/platform/linux/NativeText.h>
#include <qz/platform/linux/UserRecord.h>

namespace qz::platform {

namespace {

// The users who were found, since databases of users may be far away. None is ever taken out. Who was not found may
// be at the next time.
struct TKnownUser {
    uid_t Id;
    std::string Name;
    const TKnownUser* Next;
};
constinit std::atomic<const TKnownUser*> GUsers{nullptr};

std::string EffectiveUser() {
    const uid_t Id = geteuid();
    for (const TKnownUser* User = GUsers.load(std::memory_order_acquire); User != nullptr;
         User = User->Next) {
        if (User->Id == Id)
            return User->Name;
    }
    std::string Name = detail::UserRecord(Id).Name;
    if (Name.empty())
        return std::to_string(Id);
    auto* const User = new TKnownUser{Id, std::move(Name), GUsers.load(std::memory_order_relaxed)};
    while (!GUsers.compare_exchange_weak(User->Next, User, std::memory_order_release,
                                         std::memory_order_relaxed)) {}
    return User->Name;
}

} // namespace

std::u16string ComputerName() {
    char Name[HOST_NAME_MAX + 1] = {};
    if (gethostname(Name, sizeof Name - 1) != 0)
        return {};
    return detail::FromNative(Name);
}

std::u16string UserName() {
    return detail::FromNative(EffectiveUser());
}

TAccountName AccountName() {
    TAccountName Result;
    Result.Name = UserName();
    Result.Domain = detail::TakeDomain(Result.Name);
    if (Result.Domain.empty())
        Result.Domain = ComputerName();
    return Result;
}

TElevation Elevation() noexcept {
    return geteuid() == 0 ? TElevation::Full : TElevation::Limited;
}

} // namespace qz::platform
