// Any text is read by each reader of dates, or refused by its exceptions; parts that make a date survive
// being written.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/runtime/lists/Strings.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/TimeZone.h>

namespace {

template <class TRead> void Try(TRead ARead) {
    try {
        ARead();
    } catch (const qz::EConvertError&) {
    } catch (const qz::EStringListError&) {
    } catch (const qz::ELocalTimeInvalid&) {
    } catch (const qz::Exception& Error) {
        Require(Error.ClassType() == qz::ClassOf<qz::Exception>());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::UnicodeString Text = TextOf(AData, ASize);
    Try([&] {
        qz::TQzDateTimeParts Parts = qz::QzDecodeISODateTime(Text);
        Parts.UTC();
        const qz::TDateTime Value = Parts.DateTime();
        if (!Parts.IsBC && Parts.HasDate)
            Require(qz::QzDecodeISODateTime(qz::QzDateTimeToISOStr(Value, true)).DateTime() == Value);
    });
    Try([&] { qz::QzISOStrToDate(Text); });
    Try([&] { qz::QzISOStrToTime(Text); });
    Try([&] { qz::QzISOStrToDateTime(Text); });
    Try([&] { qz::ConvertLUOToDateTime(Text); });
    Try([&] { qz::QzStrToDateTime(Text); });
    for (const qz::TQzTimeRange Range : {qz::trDuration, qz::trPointOfTime, qz::trEndTime})
        for (const qz::TQzTimeFormat Format : {qz::tfHourMin, qz::tfHourMinSec})
            Try([&] { qz::QzStrToTimeToInt(Text, true, Range, Format, 86400); });
    return 0;
}
