// Dates put together, taken apart and moved, beside the calendar types of the standard library, the functions
// of C and the dates of POCO. Each step takes another of a thousand dates of the years 1900 to 2100.
#include <benchmark/benchmark.h>

#include <Poco/DateTime.h>
#include <Poco/LocalDateTime.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <random>

#include "bench/common/Samples.h"
#include <qz/common/uQzDateTimeUtils.h>

namespace {

constexpr std::size_t cDates = 1024; // a power of two

struct TSample {
    int Year, Month, Day;
    qz::TDateTime Ours;
    std::chrono::sys_days Days;
    Poco::Timestamp Poco;
    std::time_t Unix;
};

const std::array<TSample, cDates>& Samples() {
    static const std::array<TSample, cDates> Result = [] {
        std::array<TSample, cDates> Made;
        std::mt19937 Random(7);
        for (TSample& Sample : Made) {
            Sample.Year = 1900 + static_cast<int>(Random() % 200);
            Sample.Month = 1 + static_cast<int>(Random() % 12);
            Sample.Day = 1 + static_cast<int>(Random() % qz::QzDaysInMonth(Sample.Year, Sample.Month));
            Sample.Ours = qz::EncodeDateTime(Sample.Year, Sample.Month, Sample.Day, 13, 30, 15, 250);
            Sample.Days = std::chrono::year_month_day(std::chrono::year(Sample.Year),
                                                      std::chrono::month(static_cast<unsigned>(Sample.Month)),
                                                      std::chrono::day(static_cast<unsigned>(Sample.Day)));
            Sample.Unix = std::time_t{Sample.Days.time_since_epoch().count()} * 86400 + 48615;
            Sample.Poco = Poco::Timestamp(Poco::Timestamp::TimeVal{Sample.Unix} * 1000000 + 250000);
        }
        return Made;
    }();
    return Result;
}

// Runs AStep on one sample after the other.
template <class TStep> void Over(benchmark::State& AState, TStep AStep) {
    OverSamples(AState, Samples(), AStep);
}

void BM_EncodeDate_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        Keep(qz::EncodeDate(ASample.Year, ASample.Month, ASample.Day).Value);
    });
}
BENCHMARK(BM_EncodeDate_ours);

// Checked as ours is.
void BM_EncodeDate_chrono(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        const std::chrono::year_month_day Date(std::chrono::year(ASample.Year),
                                               std::chrono::month(static_cast<unsigned>(ASample.Month)),
                                               std::chrono::day(static_cast<unsigned>(ASample.Day)));
        if (!Date.ok())
            std::abort();
        Keep(std::chrono::sys_days(Date).time_since_epoch().count());
    });
}
BENCHMARK(BM_EncodeDate_chrono);

void BM_EncodeDate_poco(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        Keep(Poco::DateTime(ASample.Year, ASample.Month, ASample.Day).utcTime());
    });
}
BENCHMARK(BM_EncodeDate_poco);

void BM_EncodeDate_pocoLocal(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        Keep(Poco::LocalDateTime(ASample.Year, ASample.Month, ASample.Day).utcTime());
    });
}
BENCHMARK(BM_EncodeDate_pocoLocal);

void BM_EncodeDate_mktime(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        std::tm Parts{};
        Parts.tm_year = ASample.Year - 1900;
        Parts.tm_mon = ASample.Month - 1;
        Parts.tm_mday = ASample.Day;
        Keep(std::mktime(&Parts));
    });
}
BENCHMARK(BM_EncodeDate_mktime);

void BM_DecodeDate_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        std::uint16_t Year, Month, Day;
        qz::DecodeDate(ASample.Ours, Year, Month, Day);
        Keep(Year, Month, Day);
    });
}
BENCHMARK(BM_DecodeDate_ours);

void BM_DecodeDate_chrono(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        const std::chrono::year_month_day Date(ASample.Days);
        Keep(static_cast<int>(Date.year()), static_cast<unsigned>(Date.month()),
             static_cast<unsigned>(Date.day()));
    });
}
BENCHMARK(BM_DecodeDate_chrono);

// From the same float as ours, rounded to the millisecond.
void BM_DecodeDate_chronoFromFloat(benchmark::State& AState) {
    using namespace std::chrono;
    Over(AState, [](const TSample& ASample) {
        constexpr sys_days cDayZero = year(1899) / 12 / 30;
        const duration<double, days::period> Span(ASample.Ours.Value);
        const year_month_day Date(floor<days>(cDayZero + round<milliseconds>(Span)));
        if (!Date.ok())
            std::abort();
        Keep(static_cast<int>(Date.year()), static_cast<unsigned>(Date.month()),
             static_cast<unsigned>(Date.day()));
    });
}
BENCHMARK(BM_DecodeDate_chronoFromFloat);

void BM_DecodeDateTime_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        std::uint16_t Year, Month, Day, Hour, Minute, Second, MSec;
        qz::DecodeDateTime(ASample.Ours, Year, Month, Day, Hour, Minute, Second, MSec);
        Keep(Year, Month, Day, Hour, Minute, Second, MSec);
    });
}
BENCHMARK(BM_DecodeDateTime_ours);

// POCO's dates take themselves apart when they are made, time of day included.
void BM_DecodeDateTime_poco(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        const Poco::DateTime Date(ASample.Poco);
        Keep(Date.year(), Date.month(), Date.day(), Date.hour(), Date.minute(), Date.second(),
             Date.millisecond());
    });
}
BENCHMARK(BM_DecodeDateTime_poco);

void BM_DecodeDateTime_pocoLocal(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        const Poco::LocalDateTime Date{Poco::DateTime(ASample.Poco)};
        Keep(Date.year(), Date.month(), Date.day(), Date.hour(), Date.minute(), Date.second(),
             Date.millisecond());
    });
}
BENCHMARK(BM_DecodeDateTime_pocoLocal);

void BM_DecodeDateTime_localtime(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        std::tm Parts{};
        localtime_r(&ASample.Unix, &Parts);
        Keep(Parts.tm_year, Parts.tm_mon, Parts.tm_mday, Parts.tm_hour, Parts.tm_min, Parts.tm_sec);
    });
}
BENCHMARK(BM_DecodeDateTime_localtime);

void BM_AddMonths_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(qz::QzAddMonths(ASample.Ours, ASample.Day - 14).Value); });
}
BENCHMARK(BM_AddMonths_ours);

void BM_AddMonths_chrono(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) {
        auto Date = std::chrono::year_month_day(ASample.Days) + std::chrono::months(ASample.Day - 14);
        if (!Date.ok())
            Date = Date.year() / Date.month() / std::chrono::last;
        Keep(std::chrono::sys_days(Date).time_since_epoch().count());
    });
}
BENCHMARK(BM_AddMonths_chrono);

void BM_WeekOfYear_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(qz::QzWeekOfYear(ASample.Ours)); });
}
BENCHMARK(BM_WeekOfYear_ours);

// Weeks that start on Monday, by POCO's own rule.
void BM_WeekOfYear_poco(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(Poco::DateTime(ASample.Poco).week()); });
}
BENCHMARK(BM_WeekOfYear_poco);

void BM_WeekOfYearText_ours(benchmark::State& AState) {
    Over(AState, [](const TSample& ASample) { Keep(qz::QzWeekOfYear(ASample.Ours, true).size()); });
}
BENCHMARK(BM_WeekOfYearText_ours);

} // namespace
