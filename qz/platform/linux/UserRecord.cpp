#include <qz/platform/linux/UserRecord.h>

#include <cerrno>
#include <vector>

#include <pwd.h>

namespace qz::platform::detail {

TUserRecord UserRecord(uid_t AId) {
    constexpr std::size_t cLargestRecord = std::size_t{1} << 20;
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

std::u16string TakeDomain(std::u16string& AName) {
    std::u16string Domain;
    if (const std::size_t Slash = AName.find(u'\\'); Slash != std::u16string::npos) {
        Domain = AName.substr(0, Slash);
        AName.erase(0, Slash + 1);
    } else if (const std::size_t At = AName.rfind(u'@'); At != std::u16string::npos) {
        Domain = AName.substr(At + 1);
        AName.resize(At);
    }
    return Domain;
}

} // namespace qz::platform::detail
