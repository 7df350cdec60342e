// Any pattern writes any date; any text is read or refused; what is read survives being written and read.
#include <cstring>

#include "fuzz/Fuzz.h"
#include <qz/runtime/time/DateTimeText.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::TFormatSettings& Neutral = qz::TFormatSettings::Neutral();
    const qz::UnicodeString Text = TextOf(AData, ASize);
    qz::TDateTime Value;
    if (qz::TryStrToDateTime(Text, Value, Neutral)) {
        qz::TDateTime Same;
        Require(qz::TryStrToDateTime(qz::FormatDateTime("mm/dd/yyyy hh:nn:ss.zzz", Value, Neutral), Same,
                                     Neutral));
        Require(Same == Value);
    }
    if (ASize >= sizeof Value.Value)
        std::memcpy(&Value.Value, AData, sizeof Value.Value);
    qz::TDayAndTime Parts;
    if (!qz::TrySplitDateTime(Value, Parts))
        Value = 45000.75;
    qz::FormatDateTime(Text, Value, Neutral);

    qz::TFormatSettings Mine = Neutral; // the text as a pattern of the settings, which may refer to itself
    Mine.ShortDateFormat = Text;
    Mine.LongTimeFormat = Text;
    qz::TryStrToDateTime(qz::DateTimeToStr(Value, Mine), Value, Mine);
    return 0;
}
