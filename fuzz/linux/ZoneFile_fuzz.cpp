// Any bytes as a compiled zone or a rule text are refused, or make a table that takes each local time back to
// its moment.

#include "fuzz/Fuzz.h"
#include <qz/platform/linux/ZoneFile.h>
#include <qz/platform/linux/ZoneText.h>
#include <qz/runtime/time/detail/ZoneTable.h>

namespace {

using qz::detail::cMSecsPerDay;

void CheckAt(const qz::detail::TZoneTable& ATable, std::int64_t AUtc) {
    const qz::detail::TZonePeriod& Period = ATable.AtUtc(AUtc);
    Require(std::abs(Period.Offset) < 26 * 3600 * 1000);
    const qz::detail::TZoneMatch Match = ATable.AtLocal(AUtc + Period.Offset);
    Require(Match.Standard != nullptr && Match.Daylight != nullptr);
    for (const auto* Each : {Match.Standard, Match.Daylight})
        Require(ATable.AtUtc(AUtc + Period.Offset - Each->Offset).Offset == Each->Offset);
}

void Check(qz::platform::TSystemZone AZone) {
    const std::vector<qz::platform::TZoneChange> Changes = AZone.Changes;
    const qz::detail::TZoneTable Table(std::move(AZone));
    for (const qz::platform::TZoneChange& Change : Changes) {
        if (std::abs(Change.From) > 60'000'000'000) // outside the years that can be asked for
            continue;
        for (const int Shift : {-1, 0, 1})
            CheckAt(Table, (Change.From + 25569 * 86400LL) * 1000 + Shift);
    }
    for (std::int64_t Day = -693592; Day < 2958464; Day += 36525 / 7)
        CheckAt(Table, Day * cMSecsPerDay + Day);
    for (const int Year : {1, 1970, 2037, 2438, 9999})
        Table.YearAt(Year);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    qz::platform::TSystemZone Zone;
    if (qz::platform::detail::ReadZoneFile({reinterpret_cast<const std::byte*>(AData), ASize}, Zone))
        Check(Zone);
    qz::platform::TSystemZone Rule;
    if (qz::platform::detail::ReadZoneText({reinterpret_cast<const char*>(AData), ASize}, Rule))
        Check(Rule);
    return 0;
}
