// The text parser beside the loops that one would write otherwise, over 64 MiB in memory.
#include <Poco/StringTokenizer.h>
#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>
#include <string>

#include <qz/common/uQzClasses/TextParser.h>
#include <qz/runtime/text/Encoding.h>

namespace {

constexpr std::size_t cTotal = std::size_t{64} << 20;

// Mixed text in that code page, with lines of some 70 characters.
const std::string& Text(std::uint16_t ACodePage) {
    static std::string Texts[3];
    std::string& Result = Texts[ACodePage == 1252 ? 0 : ACodePage == 1200 ? 1 : 2];
    if (Result.empty()) {
        const qz::TBytes Line = qz::TEncoding(ACodePage).GetBytes(
            u"The quick brown fox; größere Straßen, naïve café, 12345 67890 jumping\r\nover the lazy dog\n");
        while (Result.size() + Line.size() <= cTotal)
            Result.append(Line.begin(), Line.end());
    }
    return Result;
}

void BM_Next(benchmark::State& AState) {
    const auto CodePage = static_cast<std::uint16_t>(AState.range(0));
    const std::string& Bytes = Text(CodePage);
    std::int64_t Characters = 0;
    for (auto _ : AState) {
        qz::TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        for (; !Parser.Eof(); ++Characters)
            Parser.Next();
        benchmark::DoNotOptimize(Parser.LineNr());
    }
    AState.SetItemsProcessed(Characters);
}
BENCHMARK(BM_Next)->Arg(1252)->Arg(1200)->Arg(65001)->Unit(benchmark::kMillisecond);

// Runs of 40 letters between commas.
const std::string& Runs(std::uint16_t ACodePage) {
    static std::string Texts[3];
    std::string& Result = Texts[ACodePage == 1252 ? 0 : ACodePage == 1200 ? 1 : 2];
    if (Result.empty()) {
        const qz::TBytes Run =
            qz::TEncoding(ACodePage).GetBytes(u"abcdefghijklmnopqrstabcdefghijklmnopqrst,");
        while (Result.size() + Run.size() <= cTotal / 8)
            Result.append(Run.begin(), Run.end());
    }
    return Result;
}

constexpr qz::TCharSet cLetters = qz::TCharSet::Range('a', 'z');

void BM_SkipRuns_ours(benchmark::State& AState) {
    const auto CodePage = static_cast<std::uint16_t>(AState.range(0));
    const std::string& Bytes = Runs(CodePage);
    for (auto _ : AState) {
        qz::TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        while (!Parser.Eof()) {
            Parser.SkipWhileInSet(qz::sopIn, cLetters);
            Parser.Next();
        }
        benchmark::DoNotOptimize(Parser.ColNr());
    }
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(Bytes.size()));
}
BENCHMARK(BM_SkipRuns_ours)->Arg(1252)->Arg(1200)->Arg(65001)->Unit(benchmark::kMillisecond);

void BM_SkipRuns_loop(benchmark::State& AState) {
    const auto CodePage = static_cast<std::uint16_t>(AState.range(0));
    const std::string& Bytes = Runs(CodePage);
    for (auto _ : AState) {
        qz::TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), CodePage);
        while (!Parser.Eof()) {
            while (!Parser.Eof() && cLetters.Contains(char32_t{Parser.CurrChar()}))
                Parser.Next();
            Parser.Next();
        }
        benchmark::DoNotOptimize(Parser.ColNr());
    }
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(Bytes.size()));
}
BENCHMARK(BM_SkipRuns_loop)->Arg(1252)->Arg(1200)->Arg(65001)->Unit(benchmark::kMillisecond);

void BM_CountLines(benchmark::State& AState) {
    const std::string& Bytes = Text(1252);
    for (auto _ : AState) {
        qz::TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), 1252);
        while (!Parser.Eof()) {
            Parser.SkipWhile(qz::sopUnEq, qz::cQzLFA);
            if (!Parser.Eof())
                Parser.Next();
        }
        benchmark::DoNotOptimize(Parser.LineNr());
    }
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(Bytes.size()));
}
BENCHMARK(BM_CountLines)->Unit(benchmark::kMillisecond);

// Fields between commas and line ends, counted with their bytes.
const std::string& Fields() {
    static std::string Result;
    if (Result.empty()) {
        while (Result.size() < cTotal / 8)
            Result += "2026-11-22,connection,closed,12,queries in all,3 rows\n";
    }
    return Result;
}

constexpr qz::TCharSet cFieldEnds{',', '\n'};

void BM_Fields_ours(benchmark::State& AState) {
    const std::string& Bytes = Fields();
    for (auto _ : AState) {
        qz::TQzTextParser Parser(Bytes.data(), static_cast<std::ptrdiff_t>(Bytes.size()), 1252);
        std::size_t Count = 0, Sum = 0;
        std::string Field;
        while (!Parser.Eof()) {
            Parser.SetMark(qz::tpMarkPos1);
            Parser.SkipWhileInSet(qz::sopNotIn, cFieldEnds);
            const auto Selected = Parser.SelectedBytes(qz::tpMarkPos1, qz::tpCurPos);
            Field.assign(reinterpret_cast<const char*>(Selected.data()), Selected.size());
            ++Count;
            Sum += Field.size();
            if (!Parser.Eof())
                Parser.Next();
        }
        benchmark::DoNotOptimize(Count + Sum);
    }
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(Bytes.size()));
}
BENCHMARK(BM_Fields_ours)->Unit(benchmark::kMillisecond);

void BM_Fields_getline(benchmark::State& AState) {
    const std::string& Bytes = Fields();
    for (auto _ : AState) {
        std::istringstream Lines(Bytes);
        std::size_t Count = 0, Sum = 0;
        std::string Line, Field;
        while (std::getline(Lines, Line)) {
            std::istringstream Stream(Line);
            while (std::getline(Stream, Field, ',')) {
                ++Count;
                Sum += Field.size();
            }
        }
        benchmark::DoNotOptimize(Count + Sum);
    }
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(Bytes.size()));
}
BENCHMARK(BM_Fields_getline)->Unit(benchmark::kMillisecond);

void BM_Fields_poco(benchmark::State& AState) {
    const std::string& Bytes = Fields();
    for (auto _ : AState) {
        std::istringstream Lines(Bytes);
        std::size_t Count = 0, Sum = 0;
        std::string Line;
        while (std::getline(Lines, Line)) {
            for (const std::string& Field : Poco::StringTokenizer(Line, ",")) {
                ++Count;
                Sum += Field.size();
            }
        }
        benchmark::DoNotOptimize(Count + Sum);
    }
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(Bytes.size()));
}
BENCHMARK(BM_Fields_poco)->Unit(benchmark::kMillisecond);

} // namespace
