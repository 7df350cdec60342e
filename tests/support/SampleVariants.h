// A variant of each type that holds a value by itself, at the edges of its range.
#pragma once

#include <vector>

#include <qz/runtime/values/Variant.h>

namespace qz {

inline std::vector<Variant> SampleVariants() {
    std::vector<Variant> Result;
    const auto Add = [&Result](const auto&... AValues) { (Result.emplace_back(AValues), ...); };
    Add(std::int16_t(-2), INT32_MIN, 2.5F, -0.0, Currency(-4.5), TDateTime(5.5),
        WideString(UnicodeString(u"a\0b", 3)), true, false, u"wide", std::int8_t(-8), UINT8_MAX, UINT16_MAX,
        UINT32_MAX, INT64_MIN, UINT64_MAX, AnsiString("a"),
        Variant::Error(static_cast<std::int32_t>(0x80020004)), TSysDecimal(79, true, 28));
    return Result;
}

} // namespace qz
