// Dates written and read as ISO 8601, beside POCO and Howard Hinnant's date. Each step takes another of a
// thousand dates.
#include <benchmark/benchmark.h>

#include <Poco/DateTime.h>
#include <Poco/DateTimeFormat.h>
#include <Poco/DateTimeFormatter.h>
#include <Poco/DateTimeParser.h>
#include <date/date.h>

#include <array>
#include <random>
#include <sstream>

#include "bench/common/Samples.h"
#include <qz/common/uQzDateTimeUtils.h>

namespace {

using TSeconds = date::sys_time<std::chrono::seconds>;

struct TSample {
    qz::TDateTime Date;
    qz::UnicodeString Text;
    std::string Narrow;
    Poco::DateTime Poco;
    TSeconds Seconds;
};

const std::array<TSample, 1024>& Samples() {
    static const auto Result = [] {
        std::array<TSample, 1024> Made;
        std::mt19937 Random(3);
        for (TSample& Sample : Made) {
            const auto Day = static_cast<std::int32_t>(Random() % 40000 + 20000);
            const auto Second = static_cast<std::int32_t>(Random() % 86400);
            Sample.Date = qz::JoinDateTime({Day, Second * 1000});
            Sample.Text = qz::QzDateTimeToISOStr(Sample.Date);
            Sample.Narrow = std::string(Sample.Text) + "Z";
            Sample.Seconds = TSeconds(std::chrono::seconds((Day - 25569LL) * 86400 + Second));
            Sample.Poco = Poco::Timestamp(Sample.Seconds.time_since_epoch().count() *
                                          Poco::Timestamp::TimeVal{1000000});
        }
        return Made;
    }();
    return Result;
}

template <class TStep> void Over(benchmark::State& AState, TStep AStep) {
    OverSamples(AState, Samples(), AStep);
}

void BM_WriteIso_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(qz::QzDateTimeToISOStr(ASample.Date).size()); });
}
BENCHMARK(BM_WriteIso_ours);

void BM_WriteIso_poco(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        Keep(Poco::DateTimeFormatter::format(ASample.Poco, Poco::DateTimeFormat::ISO8601_FORMAT).size());
    });
}
BENCHMARK(BM_WriteIso_poco);

void BM_WriteIso_hinnant(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(date::format("%FT%T", ASample.Seconds).size()); });
}
BENCHMARK(BM_WriteIso_hinnant);

void BM_ReadIso_oursParts(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(qz::QzDecodeISODateTime(ASample.Text).Day); });
}
BENCHMARK(BM_ReadIso_oursParts);

void BM_ReadIso_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(qz::QzISOStrToDateTime(ASample.Text).Value); });
}
BENCHMARK(BM_ReadIso_ours);

void BM_ReadIso_poco(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        int Difference = 0;
        const Poco::DateTime Date =
            Poco::DateTimeParser::parse(Poco::DateTimeFormat::ISO8601_FORMAT, ASample.Narrow, Difference);
        Keep(Date.day());
    });
}
BENCHMARK(BM_ReadIso_poco);

void BM_ReadIso_hinnant(benchmark::State& AState) {
    std::istringstream Stream;
    Over(AState, [&](const TSample& ASample) {
        Stream.clear();
        Stream.str(ASample.Narrow);
        TSeconds Seconds;
        Stream >> date::parse("%FT%TZ", Seconds);
        Keep(Seconds.time_since_epoch().count());
    });
}
BENCHMARK(BM_ReadIso_hinnant);

} // namespace
