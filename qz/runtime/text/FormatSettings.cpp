#include <qz/runtime/text/FormatSettings.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include <qz/platform/Fork.h>
#include <qz/platform/Locale.h>

namespace qz {
namespace {

template <std::size_t N>
void CopyNames(std::array<UnicodeString, N>& ATarget, const std::array<std::u16string, N>& ASource) {
    for (std::size_t I = 0; I < N; ++I)
        ATarget[I] = ASource[I];
}

// A pattern of the system in the letters of FormatDateTime, where "tt" is another pattern and "ampm" the half
// of the day. Literals stay as they are.
UnicodeString TimePattern(std::u16string_view APattern) {
    UnicodeString Result;
    bool IsLiteral = false;
    for (std::size_t Here = 0; Here < APattern.size(); ++Here) {
        const char16_t Char = APattern[Here];
        IsLiteral = IsLiteral != (Char == u'\'');
        if (IsLiteral || Char != u't') {
            Result += Char;
        } else if (Here == 0 || APattern[Here - 1] != u't') {
            Result += u"ampm";
        }
    }
    return Result;
}

TFormatSettings FromLocale(const platform::TLocale& ALocale) {
    TFormatSettings Result;
    Result.CurrencyString = ALocale.CurrencyString;
    Result.CurrencyFormat = ALocale.CurrencyFormat;
    Result.NegCurrFormat = ALocale.NegativeCurrencyFormat;
    Result.CurrencyDecimals = ALocale.CurrencyDecimals;
    Result.ThousandSeparator = ALocale.ThousandSeparator;
    Result.DecimalSeparator = ALocale.DecimalSeparator;
    Result.DateSeparator = ALocale.DateSeparator;
    Result.TimeSeparator = ALocale.TimeSeparator;
    Result.ListSeparator = ALocale.ListSeparator;
    Result.ShortDateFormat = ALocale.ShortDateFormat;
    Result.LongDateFormat = ALocale.LongDateFormat;
    Result.ShortTimeFormat = TimePattern(ALocale.ShortTimeFormat);
    Result.LongTimeFormat = TimePattern(ALocale.LongTimeFormat);
    Result.TimeAMString = ALocale.AMString;
    Result.TimePMString = ALocale.PMString;
    CopyNames(Result.ShortMonthNames, ALocale.ShortMonthNames);
    CopyNames(Result.LongMonthNames, ALocale.LongMonthNames);
    CopyNames(Result.ShortDayNames, ALocale.ShortDayNames);
    CopyNames(Result.LongDayNames, ALocale.LongDayNames);
    Result.TwoDigitYearCenturyWindow = ALocale.TwoDigitYearWindow;
    return Result;
}

// The current settings. Earlier ones stay readable, since references to them may exist.
std::atomic<const TFormatSettings*> GDefault{nullptr};
std::mutex GChange;
[[maybe_unused]] const bool GIsWatched = [] {
    TFormatSettings::Neutral(); // so that no fork happens while a thread makes it
    return platform::HoldAroundFork(platform::TForkRank::FormatSettings, [] { return &GChange; });
}();

const TFormatSettings& Install(const TFormatSettings& ASettings) {
    static auto* const Kept = new std::vector<std::unique_ptr<const TFormatSettings>>;
    auto Found = std::ranges::find_if(*Kept, [&](const auto& AEach) { return *AEach == ASettings; });
    if (Found == Kept->end())
        Found = Kept->insert(Found, std::make_unique<const TFormatSettings>(ASettings));
    GDefault.store(Found->get(), std::memory_order_release);
    return **Found;
}

} // namespace

TFormatSettings TFormatSettings::Create() {
    return FromLocale(platform::UserLocale());
}

const TFormatSettings& TFormatSettings::Neutral() {
    static const auto* const Settings = new TFormatSettings(FromLocale(platform::NeutralLocale()));
    return *Settings;
}

const TFormatSettings& DefaultFormatSettings() {
    if (const TFormatSettings* Settings = GDefault.load(std::memory_order_acquire))
        return *Settings;
    const std::lock_guard Hold(GChange);
    if (const TFormatSettings* Settings = GDefault.load(std::memory_order_acquire))
        return *Settings;
    return Install(TFormatSettings::Create());
}

void SetDefaultFormatSettings(const TFormatSettings& ASettings) {
    const std::lock_guard Hold(GChange);
    Install(ASettings);
}

} // namespace qz
