#include <qz/common/uQzTypes/Designing.h>

#include <mutex>

#include <qz/platform/Fork.h>
#include <qz/platform/Module.h>
#include <qz/runtime/base/StringUtils.h>

namespace qz {
namespace {

enum class TAnswer : std::uint8_t { NotAsked, Yes, No };

// It outlives the destructors of the program, which may ask.
struct TDesignHost {
    std::mutex Lock;
    UnicodeString Name;
    TAnswer Answer = TAnswer::NotAsked;
};

TDesignHost& DesignHost() {
    static auto* const Result = new TDesignHost;
    return *Result;
}

[[maybe_unused]] const bool GIsWatched =
    platform::HoldAroundFork(platform::TForkRank::Designing, [] { return &DesignHost().Lock; });

// A point in the name need not begin an extension.
bool IsHost(std::u16string_view APath, std::u16string_view AHost) {
    APath.remove_prefix(APath.find_last_of(u"/\\") + 1);
    return !AHost.empty() && (SameText(APath, AHost) || SameText(APath.substr(0, APath.rfind(u'.')), AHost));
}

} // namespace

bool IsDesigning() {
    TDesignHost& Host = DesignHost();
    const std::lock_guard Hold(Host.Lock);
    if (Host.Answer == TAnswer::NotAsked)
        Host.Answer = IsHost(platform::ExecutablePath(), Host.Name) ? TAnswer::Yes : TAnswer::No;
    return Host.Answer == TAnswer::Yes;
}

void QzSetDesignHost(const UnicodeString& AName) {
    TDesignHost& Host = DesignHost();
    const std::lock_guard Hold(Host.Lock);
    Host.Name = AName;
    Host.Answer = TAnswer::NotAsked;
}

} // namespace qz
