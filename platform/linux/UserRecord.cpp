#include "platform/linux/UserRecord.h"

#include <cerrno>
#include <vector>

#include <pwd.h>

namespace qz::platform::detail {

TUserRecord UserRecord(uid_t AId) {
    constexpr size_t cLargestRecord = size_t{1} << 20;
    std::vector<char> Buffer(1024);
    passwd Record;
    passwd* Found = nullptr;
    for (;;) {
        const int Code = getpwuid_r(AId, &Record, Buffer.data(), Buffer.size(), &Found);
        if (Code == ERANGE && Buffer.size() < cLargestRecord)
            Buffer.resize(Buffer.size() * 2);
        else if (Code != EINTR)
            break;
    }
    if (Found == nullptr)
        return {};
    return {Found->pw_name, Found->pw_dir};
}

} // namespace qz::platform::detail
