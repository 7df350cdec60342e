// The settings are those of the locale in the environment, whether it is installed or not.
#include <qz/runtime/text/FormatSettings.h>

#include <gtest/gtest.h>

#include "tests/support/LocaleOfTheEnvironment.h"
#include <qz/runtime/time/DateTimeText.h>

namespace qz {
namespace {

TEST(FormatSettings, HoursCountToTwelveWhereTheLocaleDoes) {
    const TDateTime Value = EncodeTime(14, 5, 9, 0);
    const std::pair<const char*, const char16_t*> Cases[] = {
        {"en_US.UTF-8", u"2:05:09 PM"}, {"de_DE.UTF-8", u"14:05:09"}, {"C", u"14:05:09"}};
    for (const auto& [Name, Expected] : Cases) {
        const TLocaleOfTheEnvironment Locale(Name);
        EXPECT_EQ(TimeToStr(Value, TFormatSettings::Create()), Expected) << Name;
    }
}

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
