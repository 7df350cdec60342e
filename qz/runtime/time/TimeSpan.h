// TTimeSpan: a length of time in ticks of 100 nanoseconds.
//
//     const TTimeSpan Ahead = TTimeZone::Local().UtcOffset();
//     Show(Ahead.Hours(), Ahead.Minutes());
//
// A plain value; anything about it is known to the compiler.
#pragma once

#include <compare>
#include <cstdint>

namespace qz {

struct TTimeSpan {
    static constexpr std::int64_t TicksPerMillisecond = 10'000;
    static constexpr std::int64_t TicksPerSecond = 1000 * TicksPerMillisecond;
    static constexpr std::int64_t TicksPerMinute = 60 * TicksPerSecond;
    static constexpr std::int64_t TicksPerHour = 60 * TicksPerMinute;
    static constexpr std::int64_t TicksPerDay = 24 * TicksPerHour;

    std::int64_t Ticks = 0;

    // What each part of a clock would show, negative in a negative span: -05:30 is -5 hours and -30 minutes.
    constexpr std::int64_t Days() const noexcept { return Ticks / TicksPerDay; }
    constexpr int Hours() const noexcept { return static_cast<int>(Ticks / TicksPerHour % 24); }
    constexpr int Minutes() const noexcept { return static_cast<int>(Ticks / TicksPerMinute % 60); }
    constexpr int Seconds() const noexcept { return static_cast<int>(Ticks / TicksPerSecond % 60); }
    constexpr double TotalHours() const noexcept { return static_cast<double>(Ticks) / TicksPerHour; }
    constexpr double TotalMinutes() const noexcept { return static_cast<double>(Ticks) / TicksPerMinute; }
    constexpr double TotalSeconds() const noexcept { return static_cast<double>(Ticks) / TicksPerSecond; }

    friend constexpr auto operator<=>(TTimeSpan, TTimeSpan) noexcept = default;
    friend constexpr TTimeSpan operator-(TTimeSpan ASpan) noexcept { return {-ASpan.Ticks}; }
    friend constexpr TTimeSpan operator+(TTimeSpan ALeft, TTimeSpan ARight) noexcept {
        return {ALeft.Ticks + ARight.Ticks};
    }
    friend constexpr TTimeSpan operator-(TTimeSpan ALeft, TTimeSpan ARight) noexcept {
        return {ALeft.Ticks - ARight.Ticks};
    }
};

} // namespace qz
