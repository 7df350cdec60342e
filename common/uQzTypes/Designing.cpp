#include "common/uQzTypes/Designing.h"

#include <mutex>

#include "platform/Module.h"
#include "runtime/text/StringUtils.h"

namespace qz {
namespace {

enum class TAnswer : std::uint8_t { NotAsked, Yes, No };

std::mutex GLock;
UnicodeString GHost;
TAnswer GAnswer = TAnswer::NotAsked;

bool IsHost(std::u16string_view APath, std::u16string_view AHost) {
    APath.remove_prefix(APath.find_last_of(u"/\\") + 1);
    return !AHost.empty() && SameText(APath.substr(0, APath.rfind(u'.')), AHost);
}

} // namespace

bool IsDesigning() {
    const std::lock_guard Hold(GLock);
    if (GAnswer == TAnswer::NotAsked)
        GAnswer = IsHost(platform::ExecutablePath(), GHost) ? TAnswer::Yes : TAnswer::No;
    return GAnswer == TAnswer::Yes;
}

void QzSetDesignHost(const UnicodeString& AName) {
    const std::lock_guard Hold(GLock);
    GHost = AName;
    GAnswer = TAnswer::NotAsked;
}

} // namespace qz
