// Format beside snprintf with a conversion to 16-bit text; dates and numbers for themselves.
#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <string>

#include <qz/runtime/base/Utf.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTimeText.h>

namespace {

void FormatText(benchmark::State& AState) {
    const qz::UnicodeString Name = u"import of the daily files";
    int Count = 1234;
    for (auto _ : AState) {
        qz::UnicodeString Text = qz::Format(u"%s took %d ms for %d records", {Name, Count, 567});
        benchmark::DoNotOptimize(Text.data());
    }
}

void FormatTextPeer(benchmark::State& AState) {
    const std::string Name = "import of the daily files";
    int Count = 1234;
    for (auto _ : AState) {
        std::array<char, 256> Buffer;
        const int Length = std::snprintf(Buffer.data(), Buffer.size(), "%s took %d ms for %d records",
                                         Name.c_str(), Count, 567);
        std::u16string Text =
            qz::Utf8ToUtf16(std::string_view(Buffer.data(), static_cast<std::size_t>(Length)));
        benchmark::DoNotOptimize(Text.data());
    }
}

void FormatFloats(benchmark::State& AState) {
    double Value = 3.14159;
    for (auto _ : AState) {
        qz::UnicodeString Text = qz::Format(u"%8.2f and %.3f", {Value, Value * 1000});
        benchmark::DoNotOptimize(Text.data());
    }
}

void FormatFloatsPeer(benchmark::State& AState) {
    double Value = 3.14159;
    for (auto _ : AState) {
        std::array<char, 256> Buffer;
        const int Length = std::snprintf(Buffer.data(), Buffer.size(), "%8.2f and %.3f", Value, Value * 1000);
        std::u16string Text =
            qz::Utf8ToUtf16(std::string_view(Buffer.data(), static_cast<std::size_t>(Length)));
        benchmark::DoNotOptimize(Text.data());
    }
}

void IntegerToText(benchmark::State& AState) {
    std::int64_t Value = 123456789;
    for (auto _ : AState) {
        benchmark::DoNotOptimize(Value);
        qz::UnicodeString Text = qz::IntToStr(Value);
        benchmark::DoNotOptimize(Text.data());
    }
}

void IntegerToTextPeer(benchmark::State& AState) {
    std::int64_t Value = 123456789;
    for (auto _ : AState) {
        benchmark::DoNotOptimize(Value);
        std::array<char, 24> Buffer;
        const char* const End = std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), Value).ptr;
        std::u16string Text(static_cast<const char*>(Buffer.data()), End);
        benchmark::DoNotOptimize(Text.data());
    }
}

void TimeStamp(benchmark::State& AState) {
    const qz::TDateTime When = qz::EncodeDateTime(2024, 2, 29, 14, 5, 9, 7);
    for (auto _ : AState) {
        qz::UnicodeString Text = qz::FormatDateTime(u"yyyy-mm-dd hh:mm:ss:zzz", When);
        benchmark::DoNotOptimize(Text.data());
    }
}

BENCHMARK(FormatText);
BENCHMARK(FormatTextPeer);
BENCHMARK(FormatFloats);
BENCHMARK(FormatFloatsPeer);
BENCHMARK(IntegerToText);
BENCHMARK(IntegerToTextPeer);
BENCHMARK(TimeStamp);

} // namespace
