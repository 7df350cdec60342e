// The locale of the system, here the environment's, and the settings of the process may differ.
#include <qz/common/uQzTypes/TextValues.h>

#include <gtest/gtest.h>

#include "tests/support/LocaleOfTheEnvironment.h"
#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/runtime/text/FormatSettings.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {
namespace {

TEST(TextValues, BothSeparatorsInEveryLocale) {
    const TFormatSettings Before = DefaultFormatSettings();
    for (const char* Name : {"de_DE.UTF-8", "C", "en_GB.UTF-8", "fr_FR.UTF-8"}) {
        const TLocaleOfTheEnvironment Locale(Name);
        SetDefaultFormatSettings(TFormatSettings::Create());
        EXPECT_EQ(QzStrToFloat(u"1,5"), 1.5) << Name;
        EXPECT_EQ(QzStrToFloat(u"1.5"), 1.5) << Name;
        EXPECT_EQ(EncodeDate(2016, 2, 29), QzVarToDate(u"2016-02-29", 0, true)) << Name;
    }
    SetDefaultFormatSettings(Before);
}

} // namespace
} // namespace qz
