// Local time and UTC, beside the functions of C, POCO's local dates and, as the least that can be, the
// addition of a fixed offset with std::chrono. Each step takes another of a thousand moments of the years
// 1950 to 2060, in New York's zone.
#include <benchmark/benchmark.h>

#include <Poco/LocalDateTime.h>

#include <array>
#include <chrono>
#include <ctime>
#include <random>

#include "bench/common/Samples.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/platform/Environment.h>
#include <qz/runtime/time/LocalClock.h>
#include <qz/runtime/time/TimeZone.h>

namespace {

constexpr std::size_t cMoments = 1024; // a power of two

struct TSample {
    std::time_t Unix;
    qz::TDateTime Utc, Local;
    std::tm LocalParts;
    Poco::DateTime Poco;
};

const std::array<TSample, cMoments>& Samples() {
    static const std::array<TSample, cMoments> Result = [] {
        qz::platform::SetEnvironment(u"TZ", u"America/New_York");
        tzset();
        qz::TTimeZone::Refresh();
        std::array<TSample, cMoments> Made;
        std::mt19937_64 Random(7);
        for (TSample& Sample : Made) {
            Sample.Unix = static_cast<std::time_t>(Random() % 3'471'292'800) - 631'152'000;
            Sample.Utc = 25569 + static_cast<double>(Sample.Unix) / 86400;
            Sample.Local = qz::QzUTCToLocal(Sample.Utc);
            localtime_r(&Sample.Unix, &Sample.LocalParts);
            Sample.Poco = Poco::Timestamp(Poco::Timestamp::TimeVal{Sample.Unix} * 1'000'000);
        }
        return Made;
    }();
    return Result;
}

// Runs AStep on one sample after the other.
template <class TStep> void Over(benchmark::State& AState, TStep AStep) {
    OverSamples(AState, Samples(), AStep);
}

void BM_ToLocal_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(qz::QzUTCToLocal(ASample.Utc).Value); });
}
BENCHMARK(BM_ToLocal_ours)->Threads(1)->Threads(4)->UseRealTime();

// With the parts of the date, as localtime gives them.
void BM_ToLocal_oursDecoded(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        std::uint16_t Year, Month, Day, Hour, Minute, Second, MSec;
        qz::DecodeDateTime(qz::QzUTCToLocal(ASample.Utc), Year, Month, Day, Hour, Minute, Second, MSec);
        Keep(Year, Month, Day, Hour, Minute, Second);
    });
}
BENCHMARK(BM_ToLocal_oursDecoded)->Threads(1)->Threads(4)->UseRealTime();

void BM_ToLocal_localtime(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        std::tm Parts;
        localtime_r(&ASample.Unix, &Parts);
        Keep(Parts.tm_year, Parts.tm_mon, Parts.tm_mday, Parts.tm_hour, Parts.tm_min, Parts.tm_sec);
    });
}
BENCHMARK(BM_ToLocal_localtime)->Threads(1)->Threads(4)->UseRealTime();

void BM_ToLocal_poco(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        const Poco::LocalDateTime Local(ASample.Poco);
        Keep(Local.year(), Local.hour());
    });
}
BENCHMARK(BM_ToLocal_poco)->Threads(1)->Threads(4)->UseRealTime();

// No zone is looked up.
void BM_ToLocal_chronoFixed(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        const auto Moment = std::chrono::system_clock::from_time_t(ASample.Unix) - std::chrono::hours(5);
        const auto Day = std::chrono::floor<std::chrono::days>(Moment);
        const std::chrono::year_month_day Date(Day);
        Keep(static_cast<int>(Date.year()), static_cast<unsigned>(Date.day()),
             std::chrono::hh_mm_ss(Moment - Day).hours().count());
    });
}
BENCHMARK(BM_ToLocal_chronoFixed);

void BM_ToUtc_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(qz::QzLocalToUTC(ASample.Local).Value); });
}
BENCHMARK(BM_ToUtc_ours)->Threads(1)->Threads(4)->UseRealTime();

void BM_ToUtc_mktime(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        std::tm Parts = ASample.LocalParts;
        Parts.tm_isdst = -1;
        Keep(std::mktime(&Parts));
    });
}
BENCHMARK(BM_ToUtc_mktime)->Threads(1)->Threads(4)->UseRealTime();

void BM_Offset_ours(benchmark::State& AState) {
    Over(AState,
         [](const TSample& ASample) { Keep(qz::TTimeZone::Local().GetUtcOffset(ASample.Local).Ticks); });
}
BENCHMARK(BM_Offset_ours);

void BM_OffsetNow_ours(benchmark::State& AState) {
    Over(AState, [](const TSample&) { Keep(qz::TTimeZone::Local().UtcOffset().Ticks); });
}
BENCHMARK(BM_OffsetNow_ours);

void BM_Now_localClock(benchmark::State& AState) {
    Over(AState, [](const TSample&) { Keep(qz::LocalClock().MSecs); });
}
BENCHMARK(BM_Now_localClock);

void BM_FindZone_ours(benchmark::State& AState) {
    static constexpr std::u16string_view cNames[] = {u"CET", u"central european time", u"Samoa Standard Time",
                                                     u"no such zone"};
    std::size_t Next = 0;
    qz::TQzTimeZone Zone;
    for (auto _ : AState)
        Keep(qz::TQzTimeZones::FindTimeZone(cNames[Next++ % 4], Zone));
}
BENCHMARK(BM_FindZone_ours);

} // namespace
