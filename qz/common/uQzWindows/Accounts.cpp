#include <qz/common/uQzWindows/Accounts.h>

#include <qz/platform/Accounts.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/EnumItems.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

constexpr auto cLevels = EnumItems({u"elDefault", u"elFull", u"elLimited"});

} // namespace

QZ_REGISTER_TYPES(TQzElevationLevel);

constinit const TTypeInfo TTypeDescription<TQzElevationLevel>::Info =
    DescribeEnum<TQzElevationLevel>(u"TQzElevationLevel", u"uQzWindows", cLevels);

TQzElevationLevel QzGetElevationLevel() noexcept {
    switch (platform::Elevation()) {
    case platform::TElevation::Full: return elFull;
    case platform::TElevation::Limited: return elLimited;
    case platform::TElevation::Unknown: break;
    }
    return elDefault;
}

UnicodeString QzGetComputerName() {
    return platform::ComputerName();
}

UnicodeString QzGetUserName() {
    return platform::UserName();
}

UnicodeString QzGetUserName(UnicodeString& ADomain) {
    const platform::TAccountName Account = platform::AccountName();
    ADomain = Account.Domain;
    return Account.Name;
}

std::uint32_t QzGetCurrentThreadId() noexcept {
    return platform::CurrentThreadId();
}

} // namespace qz
