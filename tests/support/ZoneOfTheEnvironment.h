// Puts the zone of this process, which is TZ on Linux, to another one for a while.
#pragma once

#include <stdlib.h>
#include <time.h>

#include <qz/platform/Environment.h>
#include <qz/runtime/time/TimeZone.h>

namespace qz {

class TZoneOfTheEnvironment {
public:
    explicit TZoneOfTheEnvironment(const UnicodeString& AZone) { Set(AZone); }
    TZoneOfTheEnvironment(const TZoneOfTheEnvironment&) = delete;
    TZoneOfTheEnvironment& operator=(const TZoneOfTheEnvironment&) = delete;
    ~TZoneOfTheEnvironment() {
        platform::SetEnvironment(u"TZ", FOld ? std::optional<std::u16string_view>(*FOld) : std::nullopt);
        tzset();
        TTimeZone::Refresh();
    }

    static void Set(const UnicodeString& AZone) {
        platform::SetEnvironment(u"TZ", std::u16string_view(AZone));
        tzset();
        TTimeZone::Refresh();
    }

private:
    const std::optional<std::u16string> FOld = platform::GetEnvironment(u"TZ");
};

} // namespace qz
