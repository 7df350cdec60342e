// Any date and any number are refused by EConvertError or give what fits the date they came from.
#include <cmath>
#include <cstring>

#include "fuzz/Fuzz.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/runtime/objects/Exceptions.h>

namespace {

// Runs what may refuse its input.
template <class TCall> void Try(TCall ACall) {
    try {
        ACall();
    } catch (const qz::EConvertError&) { // NOLINT(bugprone-empty-catch): that is the answer
    }
}

std::int32_t MSecsOf(qz::TDateTime ADate) {
    return qz::SplitDateTime(ADate).MSecs;
}

void CheckDate(qz::TDateTime ADate, std::int32_t ANumber) {
    Try([=] {
        const qz::TDateTime Start = qz::QzBOWeek(ADate, ANumber);
        Require(qz::DayOfWeek(Start) == ANumber && std::abs(MSecsOf(Start) - MSecsOf(ADate)) <= 1);
        Require(qz::SplitDateTime(ADate).Day - qz::SplitDateTime(Start).Day < 7);
    });
    Try([=] {
        const qz::TDateTime Moved = qz::QzAddMonths(ADate, ANumber);
        Require(qz::QzDayOfMonth(Moved) <= qz::QzDayOfMonth(ADate) && MSecsOf(Moved) == MSecsOf(ADate));
    });
    Try([=] {
        const qz::TDateTime Rounded = qz::QzRoundTime(ADate, ANumber);
        Require(MSecsOf(Rounded) % 60000 == 0 && MSecsOf(Rounded) + 60000 > MSecsOf(ADate));
    });
    Try([=] {
        const int Week = qz::QzWeekOfYear(ADate);
        Require(Week >= 1 && Week <= 53 && qz::QzWeekOfYear(ADate, true).size() == 6);
    });
    Try([=] { Require(qz::QzDayOfYear(ADate) >= 1 && qz::QzDayOfYear(ADate) <= qz::QzDaysInYear(ADate)); });
    Try([=] { Require(qz::QzDateCompare(ADate, ANumber) == -qz::QzDateCompare(ANumber, ADate)); });
}

void CheckNumbers(std::int32_t AYear, std::int32_t AOther) {
    Try([=] { Require(qz::QzEOMonth(AYear, AOther) - qz::QzBOMonth(AYear, AOther) >= 27); });
    Try([=] { Require(qz::DayOfWeek(qz::QzWeekToDate(AYear, AOther)) == 2); });
    Try([=] { Require(qz::QzEOYear(AYear) - qz::QzBOYear(AYear) + 1 == qz::QzDaysInYear(AYear)); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    double Value = 0;
    std::int32_t Number = 0;
    if (ASize < sizeof Value + sizeof Number)
        return 0;
    std::memcpy(&Value, AData, sizeof Value);
    std::memcpy(&Number, AData + sizeof Value, sizeof Number);
    CheckDate(Value, Number);
    CheckDate(std::fmod(Value, 3e6), Number % 64); // a date of our time and its likes
    CheckNumbers(Number, static_cast<std::int8_t>(AData[0]));
    CheckNumbers(Number % 10001, Number / 10001 % 64);
    return 0;
}
