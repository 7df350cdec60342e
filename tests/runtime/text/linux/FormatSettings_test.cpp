// The settings are those of the locale in the environment, whether it is installed or not.
#include <qz/runtime/text/FormatSettings.h>

#include <gtest/gtest.h>

#include "tests/support/LocaleOfTheEnvironment.h"
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

// Of those whose patterns hold no words.
TEST(FormatSettings, DatesSurviveTheRoundTripInManyLocales) {
    for (const char* Name : {"C",     "en_US", "en_GB", "en_CA", "de_DE", "fr_FR", "es_ES", "hu_HU",
                             "fi_FI", "ko_KR", "ja_JP", "zh_CN", "zh_TW", "ru_RU", "sv_SE", "da_DK",
                             "pl_PL", "el_GR", "cs_CZ", "pt_BR", "vi_VN", "hi_IN"}) {
        const TLocaleOfTheEnvironment Locale(Name);
        const TFormatSettings Settings = TFormatSettings::Create();
        for (const int Hour : {0, 9, 12, 14}) {
            const TDateTime Value = EncodeDateTime(2024, 3, 29, Hour, 5, 9, 0);
            const UnicodeString Text = DateTimeToStr(Value, Settings);
            TDateTime Same;
            EXPECT_TRUE(TryStrToDateTime(Text, Same, Settings)) << Name << ": " << ToUtf8(Text);
            EXPECT_EQ(Same, Value) << Name << ": " << ToUtf8(Text);
        }
    }
}

} // namespace
} // namespace qz
