// Dates of this library and time points of the standard library.
//
//     const TDateTime Sent = FromSysTime(std::chrono::system_clock::now());      // in UTC
//     const auto Moment = ToSysTime(Sent);
//
// To the millisecond: dates are rounded to the nearest one, time points down. Nothing is converted between
// zones: a sys_time is in UTC, as TQzUTCDateTime and NowUTC are, and a local_time is in no stated zone. Any
// thread.
#pragma once

#include <chrono>

#include <qz/runtime/time/DateTime.h>

namespace qz {

namespace detail {
inline constexpr std::chrono::days cUnixEpoch{25569}; // 1970-01-01, from 1899-12-30
// Milliseconds since 1970. Raises EConvertError outside the years 1 to 9999.
QZ_API std::chrono::milliseconds SinceUnixEpoch(TDateTime ADate);
QZ_API TDateTime AtUnixEpoch(std::chrono::milliseconds ASince);
} // namespace detail

// Each raises EConvertError, "Invalid date and time", for a date outside the years 1 to 9999.
template <class TTag> std::chrono::sys_time<std::chrono::milliseconds> ToSysTime(TDateTimeKind<TTag> ADate) {
    return std::chrono::sys_time<std::chrono::milliseconds>(detail::SinceUnixEpoch(ADate));
}
template <class TTag>
std::chrono::local_time<std::chrono::milliseconds> ToLocalTime(TDateTimeKind<TTag> ADate) {
    return std::chrono::local_time<std::chrono::milliseconds>(detail::SinceUnixEpoch(ADate));
}
template <class TDuration> TDateTime FromSysTime(std::chrono::sys_time<TDuration> ATime) {
    return detail::AtUnixEpoch(std::chrono::floor<std::chrono::milliseconds>(ATime.time_since_epoch()));
}
template <class TDuration> TDateTime FromLocalTime(std::chrono::local_time<TDuration> ATime) {
    return detail::AtUnixEpoch(std::chrono::floor<std::chrono::milliseconds>(ATime.time_since_epoch()));
}

} // namespace qz
